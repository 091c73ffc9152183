// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TestCase.h"
#include "TimeScaleDraw.h"

#include <qwt_text.h>

#include <QLocale>

#include <limits>

class TimeScaleDrawTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labelsSecondsAsTimes_data();
    void labelsSecondsAsTimes();
    void labelsTheSameInAnyLocale_data();
    void labelsTheSameInAnyLocale();
};

void TimeScaleDrawTest::labelsSecondsAsTimes_data()
{
    QTest::addColumn<QTime>("base");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("label");

    const QTime late(23, 55);
    QTest::newRow("base") << QTime(9, 5) << 0.0 << "09:05";
    QTest::newRow("afternoon") << QTime(14, 0) << 300.0 << "14:05";
    QTest::newRow("over midnight") << late << 600.0 << "00:05";
    QTest::newRow("before the base") << late << -300.0 << "23:50";
    QTest::newRow("before midnight") << QTime(0, 5) << -600.0 << "23:55";
    QTest::newRow("a second short") << QTime(9, 5) << 59.0 << "09:05";
    QTest::newRow("fraction is cut off") << QTime(9, 5) << 59.9 << "09:05";
    QTest::newRow("negative fraction is cut off") << QTime(9, 5) << -0.9 << "09:05";
    QTest::newRow("negative second") << QTime(9, 5) << -1.0 << "09:04";
    QTest::newRow("a day") << late << 86400.0 << "23:55";
    QTest::newRow("30 days and 5 minutes") << QTime(12, 1) << 2592300.0 << "12:06";
    QTest::newRow("a negative day") << late << -86700.0 << "23:50";
    QTest::newRow("infinite") << QTime(9, 5) << std::numeric_limits<double>::infinity() << "09:05";
    QTest::newRow("no number") << QTime(9, 5) << std::numeric_limits<double>::quiet_NaN()
                               << "09:05";
    QTest::newRow("beyond an int") << QTime(0, 0) << 86400.0 * 1e6 + 60 << "00:01";
}

void TimeScaleDrawTest::labelsSecondsAsTimes()
{
    QFETCH(QTime, base);
    QFETCH(double, value);
    const TimeScaleDraw draw(base);

    QTEST(draw.label(value).text(), "label");
}

void TimeScaleDrawTest::labelsTheSameInAnyLocale_data()
{
    QTest::addColumn<QString>("locale");

    QTest::newRow("12-hour clock") << "en_US";
    QTest::newRow("other digits") << "ar_EG";
}

void TimeScaleDrawTest::labelsTheSameInAnyLocale()
{
    QFETCH(QString, locale);
    const TimeScaleDraw draw(QTime(14, 5));
    QLocale::setDefault(QLocale(locale));

    const QString label = draw.label(0).text();

    QLocale::setDefault(QLocale::c());
    QCOMPARE(label, QString("14:05"));
}

TESSALINE_TEST_MAIN(TimeScaleDrawTest)
#include "tst_timescaledraw.moc"
