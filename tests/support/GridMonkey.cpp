// SPDX-License-Identifier: LGPL-3.0-or-later
#include "GridMonkey.h"

namespace {

const int mostRows = 8;
const int mostColumns = 6;

} // namespace

GridMonkey::GridMonkey(quint32 seed)
    : TableMonkey(seed)
{
}

GridMonkey::~GridMonkey()
{
    delete grid;
}

void GridMonkey::canChangeTheGrid()
{
    can(40, "insertRows", &GridMonkey::insertRows);
    can(30, "removeRows", &GridMonkey::removeRows);
    can(20, "moveRow", &GridMonkey::moveRow);
    can(20, "sortRows", &GridMonkey::sortRows);
    can(5, "startAnew", &GridMonkey::startAnew);
    can(10, "insertColumn", &GridMonkey::insertColumn);
    can(10, "removeColumn", &GridMonkey::removeColumn);
    can(60, "writeCell", &GridMonkey::writeCell);
}

// Mostly one by one, as models for this view should.
void GridMonkey::insertRows()
{
    if (grid && grid->rowCount() < mostRows) {
        const int count = dice.oneIn(4) ? dice.between(1, 3) : 1;
        grid->insertRows(dice.below(grid->rowCount() + 1), count);
    }
}

void GridMonkey::removeRows()
{
    if (grid && grid->rowCount() > 0) {
        const int first = dice.below(grid->rowCount());
        const int count = dice.oneIn(4) ? dice.between(1, grid->rowCount() - first) : 1;
        grid->removeRows(first, count);
    }
}

void GridMonkey::moveRow()
{
    if (grid && grid->rowCount() > 0) {
        grid->shiftRow(dice.below(grid->rowCount()), dice.below(grid->rowCount() + 1));
    }
}

void GridMonkey::sortRows()
{
    if (grid) {
        const bool isAscending = dice.oneIn(2);
        grid->sort(dice.below(mostColumns), isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

void GridMonkey::startAnew()
{
    if (grid) {
        const int rows = dice.below(mostRows);
        grid->startAnew(rows, dice.below(mostColumns + 1));
    }
}

void GridMonkey::insertColumn()
{
    if (grid && grid->columnCount() < mostColumns) {
        grid->insertColumns(dice.below(grid->columnCount() + 1), 1);
    }
}

void GridMonkey::removeColumn()
{
    if (grid && grid->columnCount() > 0) {
        grid->removeColumns(dice.below(grid->columnCount()), 1);
    }
}

void GridMonkey::writeCell()
{
    if (grid) {
        const int row = dice.below(grid->rowCount());
        const QModelIndex cell = grid->index(row, dice.below(grid->columnCount()));
        grid->setData(cell, anyText(), Qt::EditRole);
    }
}

GridModel *GridMonkey::createGrid()
{
    const int rows = dice.below(mostRows);
    return new GridModel(rows, dice.between(1, mostColumns));
}

QString GridMonkey::anyText()
{
    const QStringList words = QStringList() << QString() << "a"
                                            << "b"
                                            << "1"
                                            << "%1"
                                            << "<b>x";
    return dice.oneOf(words);
}
