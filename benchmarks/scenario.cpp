// SPDX-License-Identifier: LGPL-3.0-or-later
// Uses one widget in a fixed way, for its instructions to be counted: unlike times, these are the
// same on a busy machine. scripts/instructions runs it.
#include "ButtonTables.h"
#include "Charts.h"
#include "FileLists.h"
#include "settle.h"

#include <SpinBox.h>

#include <QFocusEvent>
#include <QFontInfo>
#include <QLineEdit>

#include <gnu/libc-version.h>

#include <cstdio>
#include <cstring>

namespace {

void editCell(QTableView *table, const QModelIndex &cell, const QString &text)
{
    QAbstractItemDelegate *delegate = table->itemDelegateForColumn(cell.column());
    QStyleOptionViewItem option;
    option.rect = table->visualRect(cell);
    QWidget *editor = delegate->createEditor(table->viewport(), option, cell);
    delegate->updateEditorGeometry(editor, option, cell);
    delegate->setEditorData(editor, cell);
    static_cast<QLineEdit *>(editor)->setText(text);
    delegate->setModelData(editor, table->model(), cell);
    delete editor;
}

void useEditableTable()
{
    ButtonTables::Declared table;
    table.resize(400, 300);
    table.prepare(300);
    table.show();
    settle();
    table.fill();
    settle();
    QAbstractItemModel *rows = static_cast<QTableView &>(table).model();
    for (int row = 0; row < 20; ++row) {
        table.append();
        editCell(&table, rows->index(row, 0), QString::number(row));
    }
    settle();
    table.resize(500, 300);
    static_cast<QPushButton *>(table.button(3, ButtonTables::buttonColumn))->click();
    rows->removeRows(0, 50);
    settle();
}

void useFileList()
{
    FileLists::Paged list;
    list.resize(600, 400);
    list.fill(5000);
    list.show();
    settle();
    list.insertPage(Insertion::RowByRow);
    settle();
    list.insertPage(Insertion::AtOnce);
    settle();
    list.resize(700, 400);
    settle();
    list.removePage();
    settle();
}

void visit(SpinBox *box)
{
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(box, &in);
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(box, &out);
}

void useSpinBox()
{
    for (int i = 0; i < 10; ++i) {
        SpinBox box;
        box.show();
        settle();
        box.stepUp();
        for (int j = 0; j < 50; ++j) {
            visit(&box);
        }
        settle();
    }
}

void useHiddenPlot()
{
    Charts::Updatable plot;
    for (int second = 0; second < 1000; ++second) {
        plot.add(second);
    }
}

/// A full chart on the screen. It is never destroyed, because the application goes first.
Charts::Updatable *fullPlot(int width, int height)
{
    Charts::Updatable *plot = new Charts::Updatable;
    plot->resize(width, height);
    for (int second = 0; second < Charts::shownSamples; ++second) {
        plot->add(second);
    }
    plot->show();
    settle();
    return plot;
}

/// Counts nothing but samples that are painted: the first turn, which is not counted, fills the
/// chart.
template <int width, int height> void useShownPlot()
{
    static Charts::Updatable *const plot = fullPlot(width, height);
    static int second = Charts::shownSamples;
    for (int i = 0; i < 50; ++i) {
        plot->add(second++);
        settle();
    }
}

using Scenario = void (*)();

Scenario scenarioNamed(const char *name)
{
    const std::pair<const char *, Scenario> scenarios[] = {{"editabletable", useEditableTable},
                                                           {"filelist", useFileList},
                                                           {"spinbox", useSpinBox},
                                                           {"hiddenplot", useHiddenPlot},
                                                           {"plot", useShownPlot<180, 140>},
                                                           {"largeplot", useShownPlot<800, 400>}};
    for (const std::pair<const char *, Scenario> &scenario : scenarios) {
        if (std::strcmp(scenario.first, name) == 0) {
            return scenario.second;
        }
    }
    return nullptr;
}

} // namespace

/// What is counted, found by its plain name.
extern "C" __attribute__((noinline)) void countedScenario(Scenario scenario)
{
    scenario();
}

int main(int argc, char **argv)
{
    const char *name = argc == 2 ? argv[1] : "";
    if (std::strcmp(name, "--versions") == 0) {
        std::printf("Qt %s, Qwt %s, g++ %s, glibc %s\n", qVersion(), BENCH_QWT, __VERSION__,
                    gnu_get_libc_version());
        return 0;
    }
    const Scenario scenario = scenarioNamed(name);
    if (!scenario) {
        std::fprintf(stderr,
                     "usage: scenario editabletable|filelist|spinbox|hiddenplot|plot|largeplot|"
                     "--versions\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    scenario(); // fills the caches of fonts, styles and types
    countedScenario(scenario);
    return 0;
}
