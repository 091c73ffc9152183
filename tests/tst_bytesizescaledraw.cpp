// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ByteSizeScaleDraw.h"
#include "TestCase.h"

#include <qwt_text.h>

#include <QLocale>

#include <cmath>
#include <limits>

class ByteSizeScaleDrawTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labelsSizes_data();
    void labelsSizes();
    void labelsTheSameInAnyLocale_data();
    void labelsTheSameInAnyLocale();
};

void ByteSizeScaleDrawTest::labelsSizes_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("label");

    QTest::newRow("0") << 0.0 << "0.00  B";
    QTest::newRow("9.996 is rounded up") << 9.996 << "10.00  B";
    QTest::newRow("10") << 10.0 << "10.0  B";
    QTest::newRow("12") << 12.0 << "12.0  B";
    QTest::newRow("99.96 is rounded up") << 99.96 << "100.0  B";
    QTest::newRow("100") << 100.0 << "100  B";
    QTest::newRow("512") << 512.0 << "512  B";
    QTest::newRow("1023") << 1023.0 << "1023  B";
    QTest::newRow("1023.9 stays in bytes") << 1023.9 << "1024  B";
    QTest::newRow("1 KB") << 1024.0 << "1.00 KB";
    QTest::newRow("1.5 KB") << 1536.0 << "1.50 KB";
    QTest::newRow("10 KB") << 10240.0 << "10.0 KB";
    QTest::newRow("100 KB") << 102400.0 << "100 KB";
    QTest::newRow("a byte short of 1 MB") << 1048575.0 << "1024 KB";
    QTest::newRow("1 MB") << 1048576.0 << "1.00 MB";
    QTest::newRow("1 GB") << std::pow(1024.0, 3) << "1.00 GB";
    QTest::newRow("1 TB") << std::pow(1024.0, 4) << "1.00 TB";
    QTest::newRow("1 PB") << std::pow(1024.0, 5) << "1.00 PB";
    QTest::newRow("1 EB") << std::pow(1024.0, 6) << "1.00 EB";
    QTest::newRow("1 ZB") << std::pow(1024.0, 7) << "1.00 ZB";
    QTest::newRow("1 YB") << std::pow(1024.0, 8) << "1.00 YB";
    QTest::newRow("1000 YB") << 1000.0 * std::pow(1024.0, 8) << "1000 YB";
    QTest::newRow("beyond all units") << std::pow(1024.0, 9) << "";
    QTest::newRow("far beyond") << 1e300 << "";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "";
    QTest::newRow("negative") << -512.0 << "-512  B";
    QTest::newRow("small negative") << -1.5 << "-1.50  B";
    QTest::newRow("negative tens") << -12.0 << "-12.0  B";
    QTest::newRow("large negative") << -1048576.0 << "-1048576  B";
    QTest::newRow("negative beyond an int") << -1e15 << "-1000000000000000  B";
}

void ByteSizeScaleDrawTest::labelsSizes()
{
    QFETCH(double, value);
    const ByteSizeScaleDraw draw;

    QTEST(draw.label(value).text(), "label");
}

void ByteSizeScaleDrawTest::labelsTheSameInAnyLocale_data()
{
    QTest::addColumn<QString>("locale");

    QTest::newRow("decimal comma") << "de_DE";
    QTest::newRow("other digits") << "ar_EG";
}

void ByteSizeScaleDrawTest::labelsTheSameInAnyLocale()
{
    QFETCH(QString, locale);
    const ByteSizeScaleDraw draw;
    QLocale::setDefault(QLocale(locale));

    const QString label = draw.label(1536).text();

    QLocale::setDefault(QLocale::c());
    QCOMPARE(label, QString("1.50 KB"));
}

TESSALINE_TEST_MAIN(ByteSizeScaleDrawTest)
#include "tst_bytesizescaledraw.moc"
