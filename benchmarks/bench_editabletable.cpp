// SPDX-License-Identifier: LGPL-3.0-or-later
// What buttons in the cells of an EditableTableView cost, beside a plain table view into which an
// application puts its own buttons with setIndexWidget(), the least that any code can do.
#include "RatioReporter.h"

#include <EditableTableView.h>

#include <QApplication>
#include <QPushButton>
#include <QStandardItemModel>

namespace {

const int buttonColumn = 1;

/// Our table: declared once, it does the rest.
class DeclaredTable : public EditableTableView
{
public:
    DeclaredTable()
    {
        setColumns(QStringList() << "editbox"
                                 << "button:Run");
    }

    void show(QStandardItemModel *model)
    {
        setModel(model);
    }

    void append(QStandardItemModel *model)
    {
        model->insertRow(model->rowCount());
    }

    using EditableTableView::show;
};

/// The baseline: a plain table view and a loop.
class PlainTable : public QTableView
{
public:
    void show(QStandardItemModel *model)
    {
        setModel(model);
        for (int row = 0; row < model->rowCount(); ++row) {
            addButton(model->index(row, buttonColumn));
        }
    }

    void append(QStandardItemModel *model)
    {
        model->insertRow(model->rowCount());
        addButton(model->index(model->rowCount() - 1, buttonColumn));
    }

    using QTableView::show;

private:
    void addButton(const QModelIndex &cell)
    {
        setIndexWidget(cell, new QPushButton(QStringLiteral("Run")));
    }
};

void goThroughEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int rows(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

template <class Table> void setModelShown(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            QStandardItemModel model(rows(state), 2);
            Table table;
            table.resize(400, 300);
            table.show();
            goThroughEvents();
            state.ResumeTiming();

            table.show(&model);
            goThroughEvents();

            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

template <class Table> void setModelHiddenThenShow(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            QStandardItemModel model(rows(state), 2);
            Table table;
            table.resize(400, 300);
            state.ResumeTiming();

            table.show(&model);
            table.show();
            goThroughEvents();

            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

template <class Table> void appendBurst(benchmark::State &state)
{
    const int burst = 50;
    for (auto _ : state) {
        state.PauseTiming();
        {
            QStandardItemModel model(rows(state), 2);
            Table table;
            table.resize(400, 300);
            table.show(&model);
            table.show();
            goThroughEvents();
            state.ResumeTiming();

            for (int i = 0; i < burst; ++i) {
                table.append(&model);
            }
            goThroughEvents();

            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

template <class Function>
void measure(const char *name, Function function, int rowCount, int iterations)
{
    benchmark::RegisterBenchmark(name, function)
        ->Arg(rowCount)
        ->Iterations(iterations)
        ->MeasureProcessCPUTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);

    measure("table/setModelShown", setModelShown<DeclaredTable>, 1000, 4);
    measure("plain/setModelShown", setModelShown<PlainTable>, 1000, 4);
    measure("table/setModelShown", setModelShown<DeclaredTable>, 10000, 1);
    measure("plain/setModelShown", setModelShown<PlainTable>, 10000, 1);
    measure("table/setModelHidden", setModelHiddenThenShow<DeclaredTable>, 10000, 1);
    measure("plain/setModelHidden", setModelHiddenThenShow<PlainTable>, 10000, 1);
    measure("table/appendBurst", appendBurst<DeclaredTable>, 1000, 4);
    measure("plain/appendBurst", appendBurst<PlainTable>, 1000, 4);

    return runBenchmarks(argc, argv,
                         {{"setModel on a shown view, 1,000 rows", "table/setModelShown/1000",
                           "plain/setModelShown/1000", 1.0, 0},
                          {"setModel on a shown view, 10,000 rows", "table/setModelShown/10000",
                           "plain/setModelShown/10000", 1.0, 0},
                          {"its growth exponent, 1,000 to 10,000 rows", "table/setModelShown/10000",
                           "table/setModelShown/1000", 1.1, 10},
                          {"setModel on a hidden view and first show, 10,000 rows",
                           "table/setModelHidden/10000", "plain/setModelHidden/10000", 0.85, 0},
                          {"appending 50 rows to a shown view with 1,000 buttons",
                           "table/appendBurst/1000", "plain/appendBurst/1000", 0.15, 0}});
}
