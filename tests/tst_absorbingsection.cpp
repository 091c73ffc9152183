// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QtCompat.h"
#include "SectionSizing.h"
#include "TestCase.h"

#include <QHeaderView>
#include <QStandardItemModel>

namespace {

const int sectionCount = 4;

/// A header of its own, 400 pixels wide, with sections of these widths.
struct Header
{
    explicit Header(const QString &widths = "100,100,100,100")
        : model(0, sectionCount)
        , header(Qt::Horizontal)
    {
        header.setMinimumSectionSize(0);
        header.setModel(&model);
        header.resize(400, 20);
        const QStringList texts = widths.split(',');
        for (int section = 0; section < sectionCount; ++section) {
            header.resizeSection(section, texts.at(section).toInt());
        }
    }

    int absorberOf(int section) const
    {
        return SectionSizing::absorberOf(header, section, sectionCount);
    }

    int absorbingWidth(int section) const
    {
        return SectionSizing::absorbingWidth(header, section, sectionCount);
    }

    QStandardItemModel model;
    QHeaderView header;
};

} // namespace

/// Which section of a header takes up a difference, and how wide that makes it. No view is needed.
class AbsorbingSectionTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isTheNextOne_data();
    void isTheNextOne();
    void isTheNextOneThoughThatFitsItsContents();
    void isTheOneBeforeWhereTheNextIsFixed_data();
    void isTheOneBeforeWhereTheNextIsFixed();
    void standsWhereTheNeighboursIndexSays();
    void fillsTheHeader_data();
    void fillsTheHeader();
    void countsNoHiddenSection();
    void countsTheColumnsOnly();
};

void AbsorbingSectionTest::isTheNextOne_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("absorber");

    QTest::newRow("first") << 0 << 1;
    QTest::newRow("last but one") << 2 << 3;
    QTest::newRow("last has none") << 3 << -1;
    QTest::newRow("beyond the last") << 4 << -1;
}

void AbsorbingSectionTest::isTheNextOne()
{
    QFETCH(int, section);
    const Header header;

    QTEST(header.absorberOf(section), "absorber");
}

void AbsorbingSectionTest::isTheOneBeforeWhereTheNextIsFixed_data()
{
    QTest::addColumn<int>("fixed");
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("absorber");

    QTest::newRow("in the middle") << 2 << 1 << 0;
    QTest::newRow("the first itself") << 1 << 0 << 0;
    QTest::newRow("fixed itself") << 1 << 1 << 2;
    QTest::newRow("fixed before") << 0 << 1 << 2;
}

void AbsorbingSectionTest::isTheOneBeforeWhereTheNextIsFixed()
{
    QFETCH(int, fixed);
    QFETCH(int, section);
    Header header;
    compat::fixSection(&header.header, fixed);

    QTEST(header.absorberOf(section), "absorber");
}

void AbsorbingSectionTest::standsWhereTheNeighboursIndexSays()
{
    Header header;
    header.header.moveSection(3, 1); // 0 3 1 2

    QCOMPARE(header.absorberOf(0), 3);
}

void AbsorbingSectionTest::fillsTheHeader_data()
{
    QTest::addColumn<QString>("widths");
    QTest::addColumn<int>("width");

    QTest::newRow("all is full") << "100,100,100,100" << 100;
    QTest::newRow("gap") << "100,50,100,100" << 100;
    QTest::newRow("too wide") << "100,150,130,100" << 70;
    QTest::newRow("just wide enough") << "100,100,180,100" << 20;
    QTest::newRow("never narrower") << "100,100,181,100" << 20;
    QTest::newRow("others exceed the header") << "300,100,300,100" << 20;
}

void AbsorbingSectionTest::fillsTheHeader()
{
    QFETCH(QString, widths);
    const Header header(widths);

    QTEST(header.absorbingWidth(1), "width");
}

void AbsorbingSectionTest::countsNoHiddenSection()
{
    Header header;
    header.header.hideSection(3);

    QCOMPARE(header.absorbingWidth(1), 200);
}

void AbsorbingSectionTest::countsTheColumnsOnly()
{
    const Header header;

    // While a model goes, the header may have more sections than there are columns.
    QCOMPARE(SectionSizing::absorbingWidth(header.header, 1, 2), 300);
}

void AbsorbingSectionTest::isTheNextOneThoughThatFitsItsContents()
{
    Header header;
    compat::setSectionResizeMode(&header.header, QHeaderView::ResizeToContents);

    QCOMPARE(header.absorberOf(0), 1);
}

TESSALINE_TEST_MAIN(AbsorbingSectionTest)
#include "tst_absorbingsection.moc"
