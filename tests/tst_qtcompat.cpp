// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QtCompat.h"
#include "TestCase.h"

#include <QDateTime>
#include <QFont>
#include <QStandardItemModel>
#include <QTableView>

class QtCompatTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void turnsValuesIntoTheSameTextEverywhere_data();
    void turnsValuesIntoTheSameTextEverywhere();
    void resizesASectionToAnySize_data();
    void resizesASectionToAnySize();
    void leavesTheDragLimitToTheStyle();
    void restoresTheApplicationsDragLimit();
    void reducesSourceTextsToLatin1_data();
    void reducesSourceTextsToLatin1();
};

void QtCompatTest::turnsValuesIntoTheSameTextEverywhere_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QVariant() << "";
    QTest::newRow("text") << QVariant(QString::fromLatin1("abc")) << "abc";
    QTest::newRow("integer") << QVariant(-5) << "-5";
    QTest::newRow("64 bits") << QVariant(qlonglong(9223372036854775807LL)) << "9223372036854775807";
    QTest::newRow("true") << QVariant(true) << "true";
    QTest::newRow("round double") << QVariant(2048.0) << "2048";
    QTest::newRow("million") << QVariant(1000000.0) << "1000000";
    QTest::newRow("fraction") << QVariant(0.1) << "0.1";
    QTest::newRow("15 digits") << QVariant(1.0 / 3.0) << "0.333333333333333";
    QTest::newRow("too long for 15 digits") << QVariant(1e15) << "1e+15";
    QTest::newRow("float") << QVariant(1.0F / 3.0F) << "0.333333";
    QTest::newRow("list") << QVariant(QVariantList()) << "";
}

void QtCompatTest::turnsValuesIntoTheSameTextEverywhere()
{
    QFETCH(QVariant, value);

    QTEST(compat::text(value), "text");
}

void QtCompatTest::resizesASectionToAnySize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");

    QTest::newRow("wide") << 300 << 300;
    QTest::newRow("narrower than any style's limit") << 5 << 5;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -50 << 0;
}

void QtCompatTest::resizesASectionToAnySize()
{
    QFETCH(int, size);
    QStandardItemModel model(1, 2);
    QTableView view;
    view.setModel(&model);

    compat::resizeSection(view.horizontalHeader(), 1, size);

    QTEST(view.horizontalHeader()->sectionSize(1), "result");
}

void QtCompatTest::leavesTheDragLimitToTheStyle()
{
    QStandardItemModel model(1, 2);
    QTableView view;
    view.setModel(&model);
    const int limit = view.horizontalHeader()->minimumSectionSize();

    compat::resizeSection(view.horizontalHeader(), 1, 5);

    QCOMPARE(view.horizontalHeader()->minimumSectionSize(), limit);
    QFont huge = view.font();
    huge.setPointSize(60);
    view.horizontalHeader()->setFont(huge);
    QVERIFY(view.horizontalHeader()->minimumSectionSize() > limit);
}

void QtCompatTest::restoresTheApplicationsDragLimit()
{
    QStandardItemModel model(1, 2);
    QTableView view;
    view.setModel(&model);
    view.horizontalHeader()->setMinimumSectionSize(70);

    compat::resizeSection(view.horizontalHeader(), 1, 5);

    QCOMPARE(view.horizontalHeader()->minimumSectionSize(), 70);
}

void QtCompatTest::reducesSourceTextsToLatin1_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("shown");

    QTest::newRow("ASCII") << "Remove"
                           << "Remove";
    QTest::newRow("Latin-1") << QString::fromUtf8("L\xc3\xb6schen")
                             << QString::fromUtf8("L\xc3\xb6schen");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("\xd0\x94\xd0\xb0") << "??";
    QTest::newRow("empty") << ""
                           << "";
}

void QtCompatTest::reducesSourceTextsToLatin1()
{
    QFETCH(QString, source);

    QTEST(QObject::tr(compat::trSource(source).constData()), "shown");
}

TESSALINE_TEST_MAIN(QtCompatTest)
#include "tst_qtcompat.moc"
