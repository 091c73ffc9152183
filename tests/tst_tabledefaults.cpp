// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "PlainObject.h"
#include "QtCompat.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QPushButton>

/// What an editable table and its buttons have from the toolkit, and leave as it is.
class TableDefaultsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATableAsTheToolkitDoes();
    void makesItsColumnHeaderAsTheToolkitDoes();
    void highlightsNoSectionOfAHeaderThatCanBeClicked();
    void makesItsRowHeaderAsTheToolkitDoes();
    void leavesTheSettingsOfATableThatDeclaresColumns();
    void makesAButtonAsTheToolkitDoes();
    void showsTheRowsThatALazyModelFetches();
};

void TableDefaultsTest::makesATableAsTheToolkitDoes()
{
    const EditableTableView view;
    const QTableView plain;

    QCOMPARE(differences(view, plain), QString());
}

void TableDefaultsTest::makesItsColumnHeaderAsTheToolkitDoes()
{
    const EditableTableView view;
    const QTableView plain;
    plain.horizontalHeader()->move(view.horizontalHeader()->pos());
    // A header that can't be clicked is the table's own; newer Qt have a property for it.
    compat::setSectionsClickable(plain.horizontalHeader(), false);

    QCOMPARE(differences(*view.horizontalHeader(), *plain.horizontalHeader()),
             QString("highlightSections"));
    QCOMPARE(compat::sectionsMovable(view.horizontalHeader()),
             compat::sectionsMovable(plain.horizontalHeader()));
}

void TableDefaultsTest::makesItsRowHeaderAsTheToolkitDoes()
{
    const EditableTableView view;
    const QTableView plain;
    plain.verticalHeader()->hide();
    plain.verticalHeader()->move(view.verticalHeader()->pos());

    QCOMPARE(differences(*view.verticalHeader(), *plain.verticalHeader()), QString());
}

void TableDefaultsTest::leavesTheSettingsOfATableThatDeclaresColumns()
{
    ButtonTable table;
    const QTableView plain;

    QCOMPARE(differences(table.view, plain), QString());
}

void TableDefaultsTest::makesAButtonAsTheToolkitDoes()
{
    ButtonTable table(QStringList() << ""
                                    << "button:&Go");
    showWindow(&table.view, 400, 200);
    QWidget parent;
    QPushButton plain("&Go", &parent);
    plain.setFlat(true);
    plain.setAutoFillBackground(true);
    plain.move(table.button(0)->pos());
    parent.show();

    QCOMPARE(differences(*table.button(0), plain), QString("accessibleDescription"));
}

namespace {

/// Holds back rows until they are fetched.
class LazyModel : public QStandardItemModel
{
public:
    LazyModel()
        : QStandardItemModel(1, 2)
    {
    }

    bool canFetchMore(const QModelIndex &parent) const override
    {
        return isLazy && !parent.isValid() && rowCount() < 5;
    }

    void fetchMore(const QModelIndex &) override
    {
        insertRow(rowCount());
    }

    bool isLazy = false;
};

} // namespace

// A table that is not shown fetches on when a row comes, by its base class.
void TableDefaultsTest::showsTheRowsThatALazyModelFetches()
{
    LazyModel model;
    EditableTableView view;
    view.setColumns(QStringList() << "editbox"
                                  << "button:Go");
    view.setModel(&model);
    goThroughEvents();
    model.isLazy = true;

    model.insertRow(1);

    QTRY_COMPARE(buttonMarks(view, 1), QString("xxxxx"));
}

void TableDefaultsTest::highlightsNoSectionOfAHeaderThatCanBeClicked()
{
    EditableTableView view;

    view.setHorizontalHeaderClickable(true);

    QVERIFY(!view.horizontalHeader()->highlightSections());
}

TESSALINE_TEST_MAIN(TableDefaultsTest)
#include "tst_tabledefaults.moc"
