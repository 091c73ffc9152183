// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TableMonkey.h"

#include "CellButton.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace {

QString textOf(const QRect &place)
{
    return QString::fromLatin1("%1,%2 %3x%4")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

} // namespace

TableMonkey::TableMonkey(quint32 seed)
    : WidgetMonkey(seed)
{
}

void TableMonkey::canUseTheTable()
{
    canUseTheWindow();
    can(40, "makeCurrent", static_cast<void (TableMonkey::*)()>(&TableMonkey::makeCurrent));
    can(5, "select", &TableMonkey::select);
    can(20, "scroll", &TableMonkey::scroll);
    can(20, "clickHeader", &TableMonkey::clickHeader);
    can(20, "dragSection", &TableMonkey::dragSection);
    can(6, "moveSection", &TableMonkey::moveSection);
    can(4, "hideSection", &TableMonkey::hideSection);
    can(6, "showSections", &TableMonkey::showSections);
    can(4, "fixSection", &TableMonkey::fixSection);
    can(6, "freeSections", &TableMonkey::freeSections);
    can(20, "lookAtPlaces", &TableMonkey::lookAtPlaces);
}

QWidget *TableMonkey::window() const
{
    return table();
}

void TableMonkey::makeCurrent()
{
    makeCurrent(anyCell());
}

// Qt lays out in the midst of the change what is not laid out yet, and dies of it if that moves the
// focus to or from a widget in a cell.
void TableMonkey::makeCurrent(const QPersistentModelIndex &cell)
{
    goThroughEvents();
    table()->setCurrentIndex(cell);
}

void TableMonkey::select()
{
    if (dice.oneIn(2)) {
        table()->selectAll();
    } else {
        table()->selectColumn(dice.below(6));
    }
}

void TableMonkey::scroll()
{
    QScrollBar *bar = dice.oneIn(2) ? table()->verticalScrollBar() : table()->horizontalScrollBar();
    bar->setValue(dice.between(bar->minimum(), bar->maximum()));
}

void TableMonkey::clickHeader()
{
    const int section = dice.below(header()->count());
    const int left = header()->sectionViewportPosition(section);
    const QPoint place(left + header()->sectionSize(section) / 2, header()->height() / 2);
    dragIn(header()->viewport(), place, place);
}

void TableMonkey::dragSection()
{
    const int section = dice.below(header()->count());
    const QPoint handle(header()->sectionViewportPosition(section) + header()->sectionSize(section)
                            - 1,
                        header()->height() / 2);
    dragIn(header()->viewport(), handle, handle + QPoint(dice.between(-80, 80), 0));
}

void TableMonkey::moveSection()
{
    if (header()->count() > 0) {
        header()->moveSection(dice.below(header()->count()), dice.below(header()->count()));
    }
}

void TableMonkey::hideSection()
{
    if (header()->count() > 1) {
        header()->hideSection(dice.below(header()->count()));
    }
}

void TableMonkey::showSections()
{
    for (int section = 0; section < header()->count(); ++section) {
        header()->showSection(section);
    }
}

void TableMonkey::fixSection()
{
    if (header()->count() > 0) {
        compat::fixSection(header(), dice.below(header()->count()));
    }
}

void TableMonkey::freeSections()
{
    for (int section = 0; section < header()->count(); ++section) {
        compat::freeSection(header(), section);
    }
}

// What is scrolled out of sight is hidden, or stays where it was. From right to left the cells of a
// view that is resized move without a layout if, as the file list, it makes none.
void TableMonkey::lookAtPlaces()
{
    // A layout may change the scroll bars, these the sections, and these the layout.
    for (int round = 0; round < 5; ++round) {
        goThroughEvents();
    }
    const QList<CellButton *> buttons = buttonsInCells();
    for (const CellButton *button : buttons) {
        const QRect cell = table()->visualRect(button->index);
        const bool isInSight = button->isVisible() && cell.intersects(table()->viewport()->rect());
        if (isInSight && table()->isLeftToRight()) {
            expectEqual(::textOf(button->geometry()), ::textOf(cell), "place of a button");
        }
    }
    const QList<QPushButton *> all = table()->viewport()->findChildren<QPushButton *>();
    expectEqual(static_cast<int>(all.size()), static_cast<int>(buttons.size()), "buttons in all");
}

QHeaderView *TableMonkey::header() const
{
    return table()->horizontalHeader();
}

int TableMonkey::rowCount() const
{
    return table()->model() ? table()->model()->rowCount() : 0;
}

int TableMonkey::columnCount() const
{
    return table()->model() ? table()->model()->columnCount() : 0;
}

QModelIndex TableMonkey::anyCell()
{
    const int row = dice.below(rowCount());
    const int column = dice.below(columnCount());
    return table()->model() ? table()->model()->index(row, column) : QModelIndex();
}

CellButton *TableMonkey::buttonAt(const QModelIndex &cell) const
{
    return dynamic_cast<CellButton *>(table()->indexWidget(cell));
}

QList<CellButton *> TableMonkey::buttonsInCells()
{
    QList<CellButton *> buttons;
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            const QModelIndex cell = table()->model()->index(row, column);
            if (CellButton *button = buttonAt(cell)) {
                expect(button->index == cell, "a button does not know its cell");
                buttons.append(button);
            }
        }
    }
    return buttons;
}
