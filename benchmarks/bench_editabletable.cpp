// SPDX-License-Identifier: LGPL-3.0-or-later
// What an EditableTableView costs: its construction, the buttons in its cells beside those that an
// application puts into its tables by hand, and an edit beside the toolkit's own.
#include "ButtonTables.h"
#include "RatioReporter.h"
#include "measure.h"

#include <QItemDelegate>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPersistentModelIndex>

namespace {

int rows(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

template <class Table> void show(Table *table, int rowCount)
{
    table->resize(400, 300);
    table->prepare(rowCount);
    table->fill();
    table->show();
    settle();
}

template <class Table> void fillShown(benchmark::State &state)
{
    for (auto _ : state) {
        std::unique_ptr<Pause> pause(new Pause(state));
        Table table;
        table.resize(400, 300);
        table.prepare(rows(state));
        table.show();
        settle();
        pause.reset();

        table.fill();
        settle();

        pause.reset(new Pause(state));
    }
}

template <class Table> void fillHiddenThenShow(benchmark::State &state)
{
    for (auto _ : state) {
        std::unique_ptr<Pause> pause(new Pause(state));
        Table table;
        table.resize(400, 300);
        table.prepare(rows(state));
        pause.reset();

        table.fill();
        table.show();
        settle();

        pause.reset(new Pause(state));
    }
}

template <class Table> void appendBurst(benchmark::State &state)
{
    const int burst = 50;
    for (auto _ : state) {
        std::unique_ptr<Pause> pause(new Pause(state));
        Table table;
        show(&table, rows(state));
        pause.reset();

        for (int i = 0; i < burst; ++i) {
            table.append();
        }
        settle();

        pause.reset(new Pause(state));
    }
}

/// What a row costs in memory, with the model, once it has been on the screen.
template <class Table> void memory(benchmark::State &state)
{
    for (auto _ : state) {
        {
            Table first; // fills the style's and the fonts' caches
            show(&first, 100);
        }
        const double before = bytesInUse();
        Table table;
        show(&table, rows(state));
        state.counters["bytes"] = (bytesInUse() - before) / rows(state);
    }
}

template <class Table> void measureTable(const std::string &name)
{
    measure(name + "/fillShown", fillShown<Table>, {1000}, 4);
    measure(name + "/fillShown", fillShown<Table>, {10000}, 1);
    measure(name + "/fillHidden", fillHiddenThenShow<Table>, {10000}, 1);
    measure(name + "/appendBurst", appendBurst<Table>, {1000}, 4);
    measure(name + "/memory", memory<Table>, {10000}, 1);
}

/// The lines that hold our table against another.
void compare(std::vector<Comparison> *comparisons, const std::string &title,
             const std::string &name, double mostShown, double mostHidden, double mostAppended)
{
    const auto add = [&](const std::string &what, const std::string &run, double most) {
        comparisons->push_back({what + " / " + title, "table/" + run, name + "/" + run, most});
    };
    add("1,000 button rows in a shown view", "fillShown/1000", mostShown);
    add("10,000 button rows in a shown view", "fillShown/10000", mostShown);
    add("10,000 in a hidden view, first show", "fillHidden/10000", mostHidden);
    add("50 rows appended to 1,000, shown", "appendBurst/1000", mostAppended);
    add("bytes per button row", "memory/10000:bytes", 0);
}

/// A shown view with an editor for the cells of its first column.
class OurEdits : public EditableTableView
{
public:
    OurEdits()
    {
        setColumns(QStringList() << "editbox");
    }

    using EditableTableView::edit;
};

class ToolkitEdits : public QTableView
{
public:
    ToolkitEdits()
    {
        setItemDelegateForColumn(0, &delegate);
    }

    using QTableView::edit;

private:
    QItemDelegate delegate;
};

template <class View> class EditedCell
{
public:
    EditedCell()
        : model(10, 2)
        , cell(model.index(0, 0))
    {
        view.setModel(&model);
        view.resize(400, 300);
        view.show();
        settle();
    }

    /// What a delegate does from the creation of an editor to its end.
    void throughDelegate(int number)
    {
        QAbstractItemDelegate *delegate = view.itemDelegateForColumn(0);
        QStyleOptionViewItem option;
        option.rect = view.visualRect(cell);
        QWidget *editor = delegate->createEditor(view.viewport(), option, cell);
        delegate->updateEditorGeometry(editor, option, cell);
        delegate->setEditorData(editor, cell);
        static_cast<QLineEdit *>(editor)->setText(QString::number(number));
        delegate->setModelData(editor, &model, cell);
        delete editor;
    }

    /// All that the user sees: the editor opens, takes a text and closes with the Return key.
    void throughView(int number)
    {
        view.edit(cell);
        QLineEdit *editor = static_cast<QLineEdit *>(view.indexWidget(cell));
        editor->setText(QString::number(number));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(editor, &press);
        settle();
    }

private:
    QStandardItemModel model;
    View view;
    const QPersistentModelIndex cell;
};

template <class View, void (EditedCell<View>::*edit)(int)> void editing(benchmark::State &state)
{
    EditedCell<View> cell;
    int number = 0;
    for (auto _ : state) {
        (cell.*edit)(++number);
    }
}

template <class View> void measureEditing(const std::string &name)
{
    measure(name + "/editByDelegate", editing<View, &EditedCell<View>::throughDelegate>, {}, 300);
    measure(name + "/editByView", editing<View, &EditedCell<View>::throughView>, {}, 100);
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    QApplication application(argc, argv);

    measureConstruction<EditableTableView>("table/construction");
    measureConstruction<QTableView>("plain/construction");
    measureEditing<OurEdits>("table");
    measureEditing<ToolkitEdits>("plain");
    measureTable<ButtonTables::Declared>("table");
    measureTable<ButtonTables::IndexWidgets>("indexWidgets");
    measureTable<ButtonTables::CellWidgets>("cellWidgets");
    measureTable<ButtonTables::Painted>("painted");
    measure("table/fillShown", fillShown<ButtonTables::Declared>, {100}, 20);
    measure("table/fillShown", fillShown<ButtonTables::Declared>, {50000}, 1);
    measure("indexWidgets/fillShown", fillShown<ButtonTables::IndexWidgets>, {100}, 20);

    std::vector<Comparison> comparisons
        = {{"construction / QTableView", "table/construction", "plain/construction", 1.1},
           {"an edit by EditItemDelegate / QItemDelegate", "table/editByDelegate",
            "plain/editByDelegate", 0.95},
           {"the same in a shown view / QItemDelegate", "table/editByView", "plain/editByView", 0}};
    compare(&comparisons, "setIndexWidget", "indexWidgets", 1.0, 0.85, 0.15);
    compare(&comparisons, "QTableWidget with cell widgets", "cellWidgets", 0, 0, 0);
    compare(&comparisons, "painted buttons", "painted", 0, 0, 0);
    return runBenchmarks(
        argc, argv, comparisons,
        {{"1,000 to 10,000 button rows", "table/fillShown", {1000, 10000}, 1.1},
         {"100 to 50,000 button rows", "table/fillShown", {100, 1000, 10000, 50000}, 0},
         {"setIndexWidget, 100 to 10,000 rows", "indexWidgets/fillShown", {100, 1000, 10000}, 0}});
}
