// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {

/// A shown three-column table whose horizontal header is 400 pixels wide.
struct Table
{
    explicit Table(int stretchSection = 1, const QString &initial = "100,200,100")
        : model(2, 3)
    {
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setStretchSection(-1);
        view.setModel(&model);
        showWindow(&view, 400 + 2 * view.frameWidth(), 200);
        setWidths(&view, initial);
        view.setStretchSection(stretchSection);
    }

    QHeaderView *header() const
    {
        return view.horizontalHeader();
    }

    /// Resizes the view as a user does, to this width of the header.
    void setHeaderWidth(int width)
    {
        view.resize(width + 2 * view.frameWidth(), view.height() + 1);
    }

    /// Drags the right edge of a section with the mouse.
    void drag(int section, int distance) const
    {
        const int edge
            = header()->sectionViewportPosition(section) + header()->sectionSize(section);
        const QPoint start(edge - 1, header()->height() / 2);
        const QPoint end = start + QPoint(distance, 0);
        QWidget *target = header()->viewport();
        QTest::mousePress(target, Qt::LeftButton, Qt::KeyboardModifiers(), start);
        QMouseEvent move(QEvent::MouseMove, end, target->mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        QTest::mouseRelease(target, Qt::LeftButton, Qt::KeyboardModifiers(), end);
    }

    QStandardItemModel model;
    EditableTableView view;
};

} // namespace

class SectionSizingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theStretchSectionAbsorbsAResize_data();
    void theStretchSectionAbsorbsAResize();
    void absorbsOneResizeAfterAnother();
    void announcesEachResizeOnce();
    void appliesANewStretchSectionAtTheNextResizeOnly();
    void theNeighbourAbsorbsADrag_data();
    void theNeighbourAbsorbsADrag();
    void aFixedNeighbourHandsTheDifferenceToTheLeft_data();
    void aFixedNeighbourHandsTheDifferenceToTheLeft();
    void readsTheLogicalNeighbourAsAVisualPosition();
    void asksTheLogicalNeighbourForItsMode();
    void findsTheStretchSectionByItsLogicalIndex();
    void compensatesASectionResizedByCode();
    void resizesOneSectionWithoutItsNeighbour_data();
    void resizesOneSectionWithoutItsNeighbour();
    void countsAHiddenSectionAsNothing();
    void compensatesAfterItsOwnResizeAgain();
    void showsNoScrollBarWhenTheColumnsFit();
    void leavesTheDragLimitAlone();
    void fillsTheViewWhenAModelIsSetLater();
    void fillsTheViewWhenItIsFirstShown();
    void resizesASectionWhileTheViewResizesAnother();
    void declaringColumnsLeavesTheHeaderAlone();

public Q_SLOTS:
    void resizeLastSection(int section);

private:
    EditableTableView *resizedView = nullptr;
};

void SectionSizingTest::theStretchSectionAbsorbsAResize_data()
{
    QTest::addColumn<int>("stretchSection");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("after");

    QTest::newRow("gap") << 1 << "100,100,100" << 400 << "100,200,100";
    QTest::newRow("grown") << 1 << "100,200,100" << 450 << "100,250,100";
    QTest::newRow("shrunk") << 1 << "100,200,100" << 350 << "100,150,100";
    QTest::newRow("first section") << 0 << "100,200,100" << 450 << "150,200,100";
    QTest::newRow("last section") << 2 << "100,200,100" << 450 << "100,200,150";
    QTest::newRow("down to the least") << 1 << "100,200,100" << 220 << "100,20,100";
    QTest::newRow("below the least") << 1 << "100,200,100" << 150 << "100,20,100";
    QTest::newRow("one above the least") << 1 << "100,200,100" << 221 << "100,21,100";
    QTest::newRow("no section") << -1 << "100,200,100" << 450 << "100,200,100";
    QTest::newRow("beyond the last") << 3 << "100,200,100" << 450 << "100,200,100";
    QTest::newRow("far beyond") << 7 << "100,100,100" << 450 << "100,100,100";
}

void SectionSizingTest::theStretchSectionAbsorbsAResize()
{
    QFETCH(int, stretchSection);
    QFETCH(QString, before);
    QFETCH(int, width);
    Table table(stretchSection, before);

    table.setHeaderWidth(width);

    QCOMPARE(table.header()->width(), width);
    QTEST(widths(table.view), "after");
}

void SectionSizingTest::absorbsOneResizeAfterAnother()
{
    Table table;
    table.setHeaderWidth(450);

    table.setHeaderWidth(500);

    QCOMPARE(widths(table.view), QString("100,300,100"));
}

void SectionSizingTest::announcesEachResizeOnce()
{
    Table table;
    QSignalSpy spy(&table.view, SIGNAL(resizeView()));

    table.setHeaderWidth(300);

    QCOMPARE(spy.count(), 1);
}

void SectionSizingTest::appliesANewStretchSectionAtTheNextResizeOnly()
{
    Table table(1, "100,100,100");

    table.view.setStretchSection(2);

    QCOMPARE(widths(table.view), QString("100,100,100"));
    table.setHeaderWidth(400);
    QCOMPARE(widths(table.view), QString("100,100,200"));
}

void SectionSizingTest::theNeighbourAbsorbsADrag_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("distance");
    QTest::addColumn<QString>("after");

    QTest::newRow("wider") << 0 << 30 << "130,170,100";
    QTest::newRow("narrower") << 0 << -30 << "70,230,100";
    QTest::newRow("middle") << 1 << 50 << "100,250,50";
    QTest::newRow("over the neighbour's least") << 1 << 150 << "100,350,20";
    QTest::newRow("last wider") << 2 << 30 << "100,200,130";
    QTest::newRow("last narrower") << 2 << -30 << "100,200,70";
}

void SectionSizingTest::theNeighbourAbsorbsADrag()
{
    QFETCH(int, section);
    QFETCH(int, distance);
    Table table;

    table.drag(section, distance);

    QTEST(widths(table.view), "after");
}

void SectionSizingTest::aFixedNeighbourHandsTheDifferenceToTheLeft_data()
{
    QTest::addColumn<int>("fixedSection");
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("after");

    QTest::newRow("first section snaps back") << 1 << 0 << "100,200,100";
    QTest::newRow("left neighbour absorbs") << 2 << 1 << "70,230,100";
    QTest::newRow("other section fixed") << 2 << 0 << "130,170,100";
}

void SectionSizingTest::aFixedNeighbourHandsTheDifferenceToTheLeft()
{
    QFETCH(int, fixedSection);
    QFETCH(int, section);
    Table table;
    compat::fixSection(table.header(), fixedSection);

    table.drag(section, 30);

    QTEST(widths(table.view), "after");
}

void SectionSizingTest::readsTheLogicalNeighbourAsAVisualPosition()
{
    Table table;
    table.header()->moveSection(2, 0); // shown: 2, 0, 1

    table.header()->resizeSection(0, 130);

    // Beside section 0 stands logical 1, but the visual position 1 holds section 0 itself.
    QCOMPARE(widths(table.view), QString("100,200,100"));
}

void SectionSizingTest::asksTheLogicalNeighbourForItsMode()
{
    Table table;
    table.header()->moveSection(0, 2); // shown: 1, 2, 0
    compat::fixSection(table.header(), 2);

    table.header()->resizeSection(1, 230);

    // Logical 2 is fixed, so the left neighbour absorbs: visual position 0, which is section 1.
    QCOMPARE(widths(table.view), QString("100,200,100"));
}

void SectionSizingTest::findsTheStretchSectionByItsLogicalIndex()
{
    Table table;
    table.header()->moveSection(2, 0); // shown: 2, 0, 1

    table.setHeaderWidth(450);

    QCOMPARE(widths(table.view), QString("100,250,100"));
}

void SectionSizingTest::compensatesASectionResizedByCode()
{
    Table table;

    table.header()->resizeSection(0, 130);

    QCOMPARE(widths(table.view), QString("130,170,100"));
}

void SectionSizingTest::resizesOneSectionWithoutItsNeighbour_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("after");

    QTest::newRow("narrower") << 50 << "100,50,100";
    QTest::newRow("wider") << 350 << "100,350,100";
    QTest::newRow("under the style's limit") << 5 << "100,5,100";
    QTest::newRow("none") << 0 << "100,0,100";
    QTest::newRow("negative") << -50 << "100,0,100";
}

void SectionSizingTest::resizesOneSectionWithoutItsNeighbour()
{
    QFETCH(int, size);
    Table table;

    table.view.resizeSection(1, size);

    QTEST(widths(table.view), "after");
}

void SectionSizingTest::countsAHiddenSectionAsNothing()
{
    Table table;
    table.header()->hideSection(2);

    table.setHeaderWidth(450);

    QCOMPARE(widths(table.view), QString("100,350,0"));
}

void SectionSizingTest::compensatesAfterItsOwnResizeAgain()
{
    Table table;
    table.view.resizeSection(1, 50);

    table.drag(0, 30);

    QCOMPARE(widths(table.view), QString("130,170,100"));
}

void SectionSizingTest::showsNoScrollBarWhenTheColumnsFit()
{
    Table table;
    table.view.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    table.setHeaderWidth(300);
    QCoreApplication::processEvents();

    QCOMPARE(widths(table.view), QString("100,100,100"));
    QCOMPARE(table.view.horizontalScrollBar()->maximum(), 0);
    table.setHeaderWidth(150);
    QCoreApplication::processEvents();
    QVERIFY(table.view.horizontalScrollBar()->maximum() > 0);
}

void SectionSizingTest::leavesTheDragLimitAlone()
{
    Table table;
    const int limit = table.header()->minimumSectionSize();

    table.setHeaderWidth(150);

    QCOMPARE(table.header()->minimumSectionSize(), limit);
    table.drag(0, -95);
    QCOMPARE(table.header()->sectionSize(0), limit);
}

void SectionSizingTest::fillsTheViewWhenAModelIsSetLater()
{
    EditableTableView view;
    QStandardItemModel model(2, 3);
    showWindow(&view, 500, 200);

    view.setModel(&model);
    view.resize(501, 200);

    int total = 0;
    for (int section = 0; section < 3; ++section) {
        total += view.horizontalHeader()->sectionSize(section);
    }
    QCOMPARE(total, view.viewport()->width());
}

void SectionSizingTest::fillsTheViewWhenItIsFirstShown()
{
    QStandardItemModel model(2, 2);
    EditableTableView view;
    view.setModel(&model);
    setWidths(&view, "100,70");

    showWindow(&view, 500, 200);

    QCOMPARE(widths(view), QString("%1,70").arg(view.viewport()->width() - 70));
}

void SectionSizingTest::resizeLastSection(int section)
{
    if (section == 1) {
        resizedView->resizeSection(2, 60);
    }
}

void SectionSizingTest::resizesASectionWhileTheViewResizesAnother()
{
    Table table;
    resizedView = &table.view;
    connect(table.header(), SIGNAL(sectionResized(int,int,int)), SLOT(resizeLastSection(int)));

    table.setHeaderWidth(450);

    QCOMPARE(widths(table.view), QString("100,250,60"));
}

void SectionSizingTest::declaringColumnsLeavesTheHeaderAlone()
{
    Table table(1, "100,150,100");
    table.view.setHorizontalHeaderClickable(true);

    table.view.setColumns(QStringList() << "editbox"
                                        << "button");

    QCOMPARE(widths(table.view), QString("100,150,100"));
    QVERIFY(compat::sectionsClickable(table.header()));
}

TESSALINE_TEST_MAIN(SectionSizingTest)
#include "tst_sectionsizing.moc"
