// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "EditableTableView.h"
#include "RecordingModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QPointer>
#include <QStandardItemModel>
#include <QStringListModel>

namespace {

QStringList declarations()
{
    return QStringList() << "editbox"
                         << "button:Go"
                         << "passwordbox";
}

} // namespace

/// Misuse, missing models and things that vanish: nothing crashes, nothing is lost.
class SafetyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void worksWithoutAModel();
    void acceptsANullModel();
    void acceptsItsFirstModelWhileShown();
    void survivesAModelThatDies();
    void ignoresAClickOnAButtonWhoseRowIsGone();
    void ignoresAClickOnAButtonOfAFormerModel();
    void ignoresAClickSlotCalledWithoutASender();
    void ignoresAClickSlotCalledByAnotherSender();
    void ignoresABindingItCannotMake_data();
    void ignoresABindingItCannotMake();
    void ignoresARowThatIsNotThere();
    void looksForRowsOfAChildUnderTheirParent();
    void writesNothingFromAButtonInTheCurrentCell();
    void survivesAButtonThatDeletesItsRow();
    void survivesAButtonThatDeletesTheView();
    void survivesColumnsThatComeAndGo();

public Q_SLOTS:
    void removeRow(QWidget *button, int row);
    void deleteView();

private:
    QPointer<EditableTableView> actedOn;
};

void SafetyTest::removeRow(QWidget *, int row)
{
    actedOn->model()->removeRow(row);
}

void SafetyTest::deleteView()
{
    delete actedOn;
}

void SafetyTest::worksWithoutAModel()
{
    EditableTableView view;
    view.setColumns(declarations());
    showWindow(&view, 300, 200);

    view.resizeSection(0, 50);
    view.bindModel(0, nullptr);
    use(&view);

    QVERIFY(!view.button(0, 1));
    QVERIFY(QMetaObject::invokeMethod(&view, "resized"));
    QVERIFY(QMetaObject::invokeMethod(&view, "sectionResized", Q_ARG(int, 0), Q_ARG(int, 1),
                                      Q_ARG(int, 2)));
    QVERIFY(QMetaObject::invokeMethod(&view, "rowsInserted", Q_ARG(QModelIndex, QModelIndex()),
                                      Q_ARG(int, 0), Q_ARG(int, 0)));
}

void SafetyTest::acceptsANullModel()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 300, 200);

    view.setModel(nullptr);
    use(&view);

    QVERIFY(!view.model());
    QCOMPARE(buttonCount(view), 0);
}

void SafetyTest::acceptsItsFirstModelWhileShown()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    showWindow(&view, 500, 200);

    view.setModel(&model);
    use(&view);

    QCOMPARE(buttonMarks(view, 1), QString("xxx"));
}

void SafetyTest::survivesAModelThatDies()
{
    QStandardItemModel *model = new QStandardItemModel(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(model);
    showWindow(&view, 400, 200);
    const QPointer<CellButton> button = dynamic_cast<CellButton *>(view.button(1, 1));
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    delete model;
    view.resize(450, 200); // before the view has reset itself
    view.horizontalHeader()->resizeSection(0, 150);
    button->click();
    use(&view);

    QCOMPARE(spy.count(), 0);
    QVERIFY(!view.button(1, 1));
}

void SafetyTest::ignoresAClickOnAButtonWhoseRowIsGone()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    const QPointer<CellButton> button = dynamic_cast<CellButton *>(view.button(1, 1));
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    model.removeRow(1);
    QVERIFY(button);
    button->click();

    QCOMPARE(spy.count(), 0);
}

void SafetyTest::ignoresAClickOnAButtonOfAFormerModel()
{
    QStandardItemModel model(3, 3);
    QStandardItemModel second(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    const QPointer<CellButton> button = dynamic_cast<CellButton *>(view.button(1, 1));
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    view.setModel(&second);
    QVERIFY(button);
    button->click();

    QCOMPARE(spy.count(), 0);
}

void SafetyTest::ignoresAClickSlotCalledWithoutASender()
{
    EditableTableView view;
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QVERIFY(QMetaObject::invokeMethod(&view, "buttonClicked"));

    QCOMPARE(spy.count(), 0);
}

void SafetyTest::ignoresAClickSlotCalledByAnotherSender()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    QPushButton foreign;
    connect(&foreign, SIGNAL(clicked()), &view, SLOT(buttonClicked()));
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    foreign.click();

    QCOMPARE(spy.count(), 0);
}

void SafetyTest::ignoresABindingItCannotMake_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("model");

    QTest::newRow("no model but an object") << 3 << "object";
    QTest::newRow("edit column") << 0 << "list";
    QTest::newRow("button column") << 1 << "list";
    QTest::newRow("undeclared column") << 4 << "list";
    QTest::newRow("negative column") << -1 << "list";
}

void SafetyTest::ignoresABindingItCannotMake()
{
    QFETCH(int, column);
    QFETCH(QString, model);
    QStringListModel list(QStringList() << "x");
    QObject object;
    QStandardItemModel rows(1, 4);
    EditableTableView view;
    view.setColumns(declarations() << "combobox");
    view.setModel(&rows);
    showWindow(&view, 400, 200);
    view.bindModel(3, &list);
    QSignalSpy spy(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QObject *bound = model == "list" ? &list : &object;
    view.bindModel(column, bound, 5);

    QTest::mouseClick(view.button(0, 1), Qt::LeftButton);
    QCOMPARE(spy.at(0).at(3).toStringList().size(), 3); // no column was added
    QWidget *box = openEditor(&view, rows.index(0, 3));
    QVERIFY(box);
    QCOMPARE(box->property("count").toInt(), 1); // the binding that was there stays
}

void SafetyTest::ignoresARowThatIsNotThere()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);

    QVERIFY(QMetaObject::invokeMethod(&view, "rowsInserted", Q_ARG(QModelIndex, QModelIndex()),
                                      Q_ARG(int, 99), Q_ARG(int, 99)));

    QCOMPARE(buttonCount(view), 3);
    QCOMPARE(QApplication::topLevelWidgets().size(), 1); // no button was left without a parent
}

void SafetyTest::looksForRowsOfAChildUnderTheirParent()
{
    QStandardItemModel model(1, 3);
    model.setItem(0, 0, new QStandardItem("parent"));
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    model.insertRows(1, 2);

    model.item(0, 0)->appendRow(new QStandardItem("child"));
    model.item(0, 0)->appendRow(new QStandardItem("child"));
    model.item(0, 0)->appendRow(new QStandardItem("child"));
    use(&view);

    QCOMPARE(buttonMarks(view, 1), QString("xx.")); // the row at 2 came in a block
    QCOMPARE(buttonCount(view), 2);
}

void SafetyTest::writesNothingFromAButtonInTheCurrentCell()
{
    RecordingModel model(1, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.setCurrentIndex(model.index(0, 1)); // a button stands there, no editor

    view.setColumns(declarations());
    goThroughEvents();

    QCOMPARE(model.writes, QStringList());
}

void SafetyTest::survivesAButtonThatDeletesItsRow()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    actedOn = &view;
    connect(&view,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)), SLOT(removeRow(QWidget*,int)));

    QTest::mouseClick(view.button(1, 1), Qt::LeftButton);
    use(&view);

    QCOMPARE(buttonMarks(view, 1), QString("xx"));
}

void SafetyTest::survivesAButtonThatDeletesTheView()
{
    QStandardItemModel model(3, 3);
    actedOn = new EditableTableView;
    actedOn->setColumns(declarations());
    actedOn->setModel(&model);
    connect(actedOn, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)), SLOT(deleteView()));

    qobject_cast<QPushButton *>(actedOn->button(1, 1))->click();

    QVERIFY(!actedOn);
}

void SafetyTest::survivesColumnsThatComeAndGo()
{
    QStandardItemModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);

    model.removeColumn(1);
    use(&view);
    model.insertColumn(0);
    use(&view);
    model.setColumnCount(0);
    use(&view);

    QCOMPARE(buttonCount(view), 0);
}

TESSALINE_TEST_MAIN(SafetyTest)
#include "tst_safety.moc"
