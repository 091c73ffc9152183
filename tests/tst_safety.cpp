// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "EditableTableView.h"
#include "RecordingModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractItemDelegate>
#include <QEventLoop>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTimer>

namespace {

QStringList declarations()
{
    return QStringList() << "editbox"
                         << "button:Go"
                         << "passwordbox";
}

/// A model that announces each write, even of what it holds already, as many do.
class TalkativeModel : public RecordingModel
{
public:
    TalkativeModel()
        : RecordingModel(3, 3)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        const bool done = RecordingModel::setData(index, value, role);
        emit dataChanged(index, index);
        return done;
    }
};

/// A shown table with an editor open in its first cell, into which "typed" was typed.
struct TableInEdit
{
    explicit TableInEdit(int column = 0)
        : model(new TalkativeModel)
    {
        view.setColumns(declarations());
        view.setModel(model);
        showWindow(&view, 400, 200);
        editor = openEditor(&view, model->index(0, column));
        QTest::keyClicks(editor, "typed");
        model->writes.clear();
    }

    ~TableInEdit()
    {
        delete model;
    }

    QPointer<RecordingModel> model;
    EditableTableView view;
    QPointer<QWidget> editor;
};

void goThroughEvents()
{
    QCoreApplication::processEvents();
    compat::deliverDeferredDeletes();
}

/// What a user may do to any table at any time.
void use(EditableTableView *view)
{
    view->resize(view->width() + 30, view->height());
    goThroughEvents();
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_F2);
    QTest::mouseClick(view->viewport(), Qt::LeftButton);
    compat::grab(view);
    goThroughEvents();
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
    void survivesAModelThatDiesDuringAnEdit();
    void ignoresAClickOnAButtonWhoseRowIsGone();
    void ignoresAClickSlotCalledWithoutASender();
    void ignoresAClickSlotCalledByAnotherSender();
    void ignoresABindingItCannotMake_data();
    void ignoresABindingItCannotMake();
    void ignoresARowThatIsNotThere();
    void looksForRowsOfAChildUnderTheirParent();
    void commitsAnOpenEditorWhenColumnsAreDeclaredAnew();
    void keepsAnUnfinishedSecretOutOfTheTextWhenColumnsAreDeclaredAnew();
    void keepsASecretTypedAwayFromTheCurrentCellOutOfTheText();
    void commitsAndClosesAPersistentEditor();
    void leavesAnApplicationsOwnWidgetAlone();
    void leavesACellAloneWhoseEditorWasNotTouched();
    void writesNothingFromAButtonInTheCurrentCell();
    void commitsAnEditorOfAnotherTable();
    void commitsAnotherEditorOfATableThatIsCommitting();
    void keepsADelegateInUseThroughANestedEventLoop();
    void survivesColumnsDeclaredAnewDuringACommit_data();
    void survivesColumnsDeclaredAnewDuringACommit();
    void survivesAModelReplacedDuringAnEdit();
    void survivesARowRemovedDuringAnEdit();
    void survivesAButtonThatDeletesItsRow();
    void survivesAButtonThatDeletesTheView();
    void survivesColumnsThatComeAndGo();

public Q_SLOTS:
    void declareColumnsAnew();
    void declareColumnsAnewInALoop();
    void removeRow(QWidget *button, int row);
    void deleteView();

private:
    QPointer<EditableTableView> actedOn;
    QPointer<QObject> delegateInUse;
    bool wasAliveAfterTheLoop = false;
};

void SafetyTest::declareColumnsAnew()
{
    actedOn->setColumns(declarations());
}

void SafetyTest::declareColumnsAnewInALoop()
{
    if (!delegateInUse || wasAliveAfterTheLoop) {
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(0, this, SLOT(declareColumnsAnew()));
    QTimer::singleShot(20, &loop, SLOT(quit()));
    loop.exec();
    compat::deliverDeferredDeletes();
    wasAliveAfterTheLoop = !delegateInUse.isNull();
}

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

void SafetyTest::survivesAModelThatDiesDuringAnEdit()
{
    tolerateWarnings("QAbstractItemView::");
    tolerateWarnings("QItemSelectionModel: Selecting when no model");
    TableInEdit table;
    QVERIFY(table.editor);

    delete table.model;
    if (table.editor) {
        QTest::keyClick(table.editor, Qt::Key_Return);
    }
    table.view.resize(450, 200);
    goThroughEvents();
    compat::grab(&table.view);

    QVERIFY(!table.view.model());
    QVERIFY(!table.editor);
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

    QTest::newRow("no model") << 3 << "none";
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

    QObject *bound = model == "list" ? &list : model == "object" ? &object : nullptr;
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

void SafetyTest::commitsAnOpenEditorWhenColumnsAreDeclaredAnew()
{
    TableInEdit table;
    QVERIFY(table.editor);

    table.view.setColumns(QStringList() << "checkbox");
    goThroughEvents();

    QVERIFY(!table.editor);
    QCOMPARE(table.model->writes, QStringList() << "edit typed");
    use(&table.view);
}

void SafetyTest::keepsAnUnfinishedSecretOutOfTheTextWhenColumnsAreDeclaredAnew()
{
    TableInEdit table(2);
    QVERIFY(table.editor);

    table.view.setColumns(QStringList());
    table.view.setCurrentIndex(table.model->index(1, 0));
    goThroughEvents();

    QCOMPARE(table.model->index(0, 2).data(Qt::UserRole + 1).toString(), QString("typed"));
    QCOMPARE(table.model->writes.filter("typed"), QStringList() << "secret typed");
}

void SafetyTest::keepsASecretTypedAwayFromTheCurrentCellOutOfTheText()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.setCurrentIndex(model.index(2, 0));
    view.edit(model.index(0, 2));
    QWidget *field = view.indexWidget(model.index(0, 2));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    view.setColumns(QStringList() << "editbox"
                                  << "button"
                                  << "editbox");
    view.setCurrentIndex(model.index(0, 2));
    view.setCurrentIndex(model.index(1, 0));
    goThroughEvents();

    QCOMPARE(model.index(0, 2).data(Qt::UserRole + 1).toString(), QString("typed"));
    QCOMPARE(model.writes.filter("typed"), QStringList() << "secret typed");
}

void SafetyTest::commitsAndClosesAPersistentEditor()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.openPersistentEditor(model.index(1, 0));
    const QPointer<QWidget> field = view.indexWidget(model.index(1, 0));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    view.setColumns(QStringList() << "checkbox");
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes, QStringList() << "edit typed");
}

void SafetyTest::leavesAnApplicationsOwnWidgetAlone()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    QLineEdit *own = new QLineEdit("mine");
    view.setIndexWidget(model.index(0, 0), own);
    view.setCurrentIndex(model.index(0, 0));

    view.setColumns(declarations());
    goThroughEvents();

    QCOMPARE(view.indexWidget(model.index(0, 0)), static_cast<QWidget *>(own));
    QCOMPARE(model.writes, QStringList());
}

void SafetyTest::leavesACellAloneWhoseEditorWasNotTouched()
{
    RecordingModel model(1, 3);
    model.put(0, 0, 7);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    const QPointer<QWidget> field = openEditor(&view, model.index(0, 0));
    QVERIFY(field);

    view.setColumns(declarations());
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes, QStringList());
    QCOMPARE(model.index(0, 0).data().toInt(), 7);
}

void SafetyTest::commitsAnEditorOfAnotherTable()
{
    RecordingModel otherModel(1, 3);
    EditableTableView other;
    other.setColumns(declarations());
    other.setModel(&otherModel);
    other.openPersistentEditor(otherModel.index(0, 0));
    QTest::keyClicks(other.indexWidget(otherModel.index(0, 0)), "other");
    TableInEdit table;
    QVERIFY(table.editor);
    actedOn = &other;
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QCOMPARE(otherModel.index(0, 0).data().toString(), QString("other"));
    QCOMPARE(table.model->index(0, 0).data().toString(), QString("typed"));
}

void SafetyTest::commitsAnotherEditorOfATableThatIsCommitting()
{
    TableInEdit table;
    QVERIFY(table.editor);
    table.view.openPersistentEditor(table.model->index(1, 0));
    QTest::keyClicks(table.view.indexWidget(table.model->index(1, 0)), "other");
    actedOn = &table.view;
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QCOMPARE(texts(*table.model, 0), QString("typed,other,"));
}

void SafetyTest::keepsADelegateInUseThroughANestedEventLoop()
{
    TableInEdit table;
    QVERIFY(table.editor);
    actedOn = &table.view;
    delegateInUse = table.view.itemDelegateForColumn(0);
    connect(table.model,
            SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnewInALoop()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QVERIFY(wasAliveAfterTheLoop);
    QVERIFY(delegateInUse.isNull()); // gone when nobody uses it any more
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

void SafetyTest::survivesColumnsDeclaredAnewDuringACommit_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("edit") << 0;
    QTest::newRow("password") << 2;
}

void SafetyTest::survivesColumnsDeclaredAnewDuringACommit()
{
    QFETCH(int, column);
    TableInEdit table(column);
    QVERIFY(table.editor);
    actedOn = &table.view;
    const QPointer<QObject> old = table.view.itemDelegateForColumn(column);
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();
    use(&table.view);

    QVERIFY(!table.editor);
    QVERIFY(old.isNull());
    const int role = column == 0 ? int(Qt::EditRole) : Qt::UserRole + 1;
    QCOMPARE(table.model->index(0, column).data(role).toString(), QString("typed"));
}

void SafetyTest::survivesAModelReplacedDuringAnEdit()
{
    tolerateWarnings("QAbstractItemView::");
    TableInEdit table;
    QVERIFY(table.editor);
    QStandardItemModel other(2, 3);

    table.view.setModel(&other);
    use(&table.view);

    QVERIFY(!table.editor);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx"));
    table.view.setModel(nullptr);
}

void SafetyTest::survivesARowRemovedDuringAnEdit()
{
    tolerateWarnings("QAbstractItemView::");
    TableInEdit table;
    QVERIFY(table.editor);

    table.model->removeRow(0);
    use(&table.view);

    QVERIFY(!table.editor);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx"));
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
