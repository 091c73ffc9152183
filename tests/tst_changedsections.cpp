// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "QtCompat.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>

namespace {

/// A shown three-column table whose horizontal header is 400 pixels wide.
struct Table
{
    explicit Table(int stretchSection = 1)
        : model(2, 3)
        , header(view.horizontalHeader())
    {
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setStretchSection(-1);
        view.setModel(&model);
        showWindow(&view, 400 + 2 * view.frameWidth(), 200);
        setWidths(&view, "100,200,100");
        view.setStretchSection(stretchSection);
    }

    void setHeaderWidth(int width)
    {
        view.resize(width + 2 * view.frameWidth(), view.height());
    }

    /// Shows the rows of the second row, which have three columns, where the top level has two.
    void showAWiderParent()
    {
        QStandardItem *parent = new QStandardItem;
        model.setColumnCount(2);
        model.setItem(1, 0, parent);
        parent->setColumnCount(3);
        parent->setRowCount(1);
        view.setRootIndex(parent->index());
        goThroughEvents();
        setSectionWidths();
    }

    void setSectionWidths()
    {
        const bool wasBlocked = header->blockSignals(true);
        header->resizeSection(0, 100);
        header->resizeSection(1, 200);
        header->resizeSection(2, 100);
        header->blockSignals(wasBlocked);
    }

    QString sectionWidths() const
    {
        QStringList parts;
        for (int section = 0; section < header->count(); ++section) {
            parts.append(QString::number(header->sectionSize(section)));
        }
        return parts.join(",");
    }

    QStandardItemModel model;
    EditableTableView view;
    QHeaderView *const header;
};

} // namespace

/// How sections fill the view when they were hidden, moved or replaced in between.
class ChangedSectionsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fillTheViewWhenTheStretchSectionComesBack();
    void fillTheViewWhenANeighbourComesBack();
    void fillTheViewWhenASectionIsHidden();
    void fillTheViewWhenASectionIsShownAgain();
    void fillTheViewByTheStretchSectionAloneWhenAnotherFitsItsContents();
    void readTheStretchSectionWhenTheViewIsResized();
    void readTheStretchSectionAmongNewColumns();
    void keepTheirWidthsWhenTheStretchSectionIsGone();
    void keepTheirWidthsWhenAnotherModelIsShown();
    void leaveRoomForTheScrollBar();
    void fillTheViewByTheColumnsOfTheTopLevel();
    void makeUpByTheColumnsOfTheTopLevel_data();
    void makeUpByTheColumnsOfTheTopLevel();
    void makeUpForTheLastColumnNowhere_data();
    void makeUpForTheLastColumnNowhere();
    void makeUpNextDoorOnceThatIsNoLongerFixed();
};

// While it is hidden it takes up what it is given, unseen.
void ChangedSectionsTest::fillTheViewWhenTheStretchSectionComesBack()
{
    Table table;
    table.header->hideSection(1);
    table.view.resizeSection(2, 100);
    table.setHeaderWidth(450);
    QCOMPARE(table.sectionWidths(), QString("100,0,100"));

    table.header->showSection(1);

    QCOMPARE(table.sectionWidths(), QString("100,250,100"));
}

void ChangedSectionsTest::fillTheViewWhenANeighbourComesBack()
{
    Table table;
    table.header->hideSection(1);
    table.view.resizeSection(2, 100);
    table.header->resizeSection(0, 130);
    QCOMPARE(table.sectionWidths(), QString("130,0,100"));

    table.header->showSection(1);

    QCOMPARE(table.sectionWidths(), QString("130,170,100"));
}

void ChangedSectionsTest::fillTheViewWhenASectionIsHidden()
{
    Table table;

    table.header->hideSection(0);

    QCOMPARE(table.sectionWidths(), QString("0,300,100"));
}

void ChangedSectionsTest::readTheStretchSectionWhenTheViewIsResized()
{
    Table table(0);
    table.setHeaderWidth(450);
    table.view.setStretchSection(2);

    table.setHeaderWidth(480);

    QCOMPARE(table.sectionWidths(), QString("150,200,130"));
}

void ChangedSectionsTest::readTheStretchSectionAmongNewColumns()
{
    Table table(1);
    table.model.insertColumn(0);
    table.view.resizeSection(0, 50);

    table.setHeaderWidth(500);

    QCOMPARE(table.sectionWidths(), QString("50,150,200,100"));
}

void ChangedSectionsTest::keepTheirWidthsWhenTheStretchSectionIsGone()
{
    Table table(2);
    table.model.removeColumn(2);

    table.setHeaderWidth(450);

    QCOMPARE(table.sectionWidths(), QString("100,200"));
}

void ChangedSectionsTest::leaveRoomForTheScrollBar()
{
    Table table;
    table.view.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    table.model.setRowCount(100);

    QTRY_VERIFY(table.view.verticalScrollBar()->isVisible());
    const int scrollBar = 400 - table.view.viewport()->width();
    QVERIFY(scrollBar > 0);
    QCOMPARE(table.sectionWidths(), QString("100,%1,100").arg(200 - scrollBar));
}

void ChangedSectionsTest::fillTheViewByTheColumnsOfTheTopLevel()
{
    Table table(0);
    table.showAWiderParent();

    table.setHeaderWidth(450);

    QCOMPARE(table.sectionWidths(), QString("250,200,100")); // the third is no column of the model
}

void ChangedSectionsTest::makeUpByTheColumnsOfTheTopLevel_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("after");

    QTest::newRow("first") << 0 << "120,280,100";
    QTest::newRow("last of the top level") << 1 << "100,220,100";
}

void ChangedSectionsTest::makeUpByTheColumnsOfTheTopLevel()
{
    QFETCH(int, section);
    Table table;
    table.showAWiderParent();

    table.header->resizeSection(section, table.header->sectionSize(section) + 20);

    QTEST(table.sectionWidths(), "after");
}

void ChangedSectionsTest::makeUpForTheLastColumnNowhere_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("after");

    QTest::newRow("last column, shown first") << 2 << "100,200,130";
    QTest::newRow("first column, shown last") << 0 << "130,200,70";
}

// The last column is that of the model, wherever it is shown.
void ChangedSectionsTest::makeUpForTheLastColumnNowhere()
{
    QFETCH(int, section);
    Table table;
    table.header->swapSections(0, 2); // shown: 2, 1, 0
    if (section == 0) {
        table.header->swapSections(0, 1); // shown: 1, 2, 0
    }

    table.header->resizeSection(section, 130);

    QTEST(table.sectionWidths(), "after");
}

void ChangedSectionsTest::makeUpNextDoorOnceThatIsNoLongerFixed()
{
    Table table;
    compat::fixSection(table.header, 1);
    table.header->resizeSection(0, 130);
    QCOMPARE(table.sectionWidths(), QString("100,200,100"));
    compat::freeSection(table.header, 1);

    table.header->resizeSection(0, 130);

    QCOMPARE(table.sectionWidths(), QString("130,170,100"));
}

void ChangedSectionsTest::fillTheViewWhenASectionIsShownAgain()
{
    Table table;
    table.header->hideSection(0);

    table.header->showSection(0);

    QCOMPARE(table.sectionWidths(), QString("100,200,100"));
}

void ChangedSectionsTest::keepTheirWidthsWhenAnotherModelIsShown()
{
    QStandardItemModel other(2, 3);
    QTableView plain;
    Table table;
    plain.setModel(&table.model);
    setWidths(&plain, "100,150,100");
    setWidths(&table.view, "100,150,100");
    plain.setModel(&other);

    table.view.setModel(&other);
    goThroughEvents();

    QCOMPARE(widths(table.view), widths(plain));
}

// The header fits it to its contents later, or as soon as it is asked for a width: here by the
// view, to which the application says that it was resized.
void ChangedSectionsTest::fillTheViewByTheStretchSectionAloneWhenAnotherFitsItsContents()
{
    Table table(2);
    setWidths(&table.view, "100,150,100");
    compat::setSectionResizeMode(table.header, QHeaderView::ResizeToContents);
    compat::freeSection(table.header, 0);
    compat::fixSection(table.header, 2); // so that the first would make up for the second

    QMetaObject::invokeMethod(&table.view, "resizeView");

    const int fitting = table.header->sectionSize(1);
    QVERIFY(fitting != 150);
    QCOMPARE(table.sectionWidths(), QString("100,%1,%2").arg(fitting).arg(300 - fitting));
}

TESSALINE_TEST_MAIN(ChangedSectionsTest)
#include "tst_changedsections.moc"
