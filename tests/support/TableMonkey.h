// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TABLEMONKEY_H
#define TESSALINE_TABLEMONKEY_H

#include "WidgetMonkey.h"

#include <QList>
#include <QPersistentModelIndex>

class CellButton;
class QHeaderView;
class QTableView;

/// Does to a table what can be done to any: scrolls, selects, and handles the sections of its
/// horizontal header.
class TableMonkey : public WidgetMonkey
{
public:
    explicit TableMonkey(quint32 seed);

protected:
    void canUseTheTable();

    virtual QTableView *table() const = 0;

    QWidget *window() const override;

    void makeCurrent();
    void makeCurrent(const QPersistentModelIndex &cell);
    void select();
    void scroll();
    void clickHeader();
    void dragSection();
    void moveSection();
    void hideSection();
    void showSections();
    void fixSection();
    void freeSections();

    /// Buttons and editors stand over their cells, once all is laid out.
    void lookAtPlaces();

    QHeaderView *header() const;
    int rowCount() const;
    int columnCount() const;
    QModelIndex anyCell();

    /// The button that the table shows in a cell, or null.
    CellButton *buttonAt(const QModelIndex &cell) const;

    /// All buttons that cells show. Complains of one that does not know its cell.
    QList<CellButton *> buttonsInCells();
};

#endif
