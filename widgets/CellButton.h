// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CELLBUTTON_H
#define TESSALINE_CELLBUTTON_H

#include <QPersistentModelIndex>
#include <QPushButton>

/// A push button in a cell of an item view, which knows the cell it stands in.
///
/// The view that makes it sets the index once and gives it a parent with setIndexWidget().
class CellButton : public QPushButton
{
public:
    CellButton(const QString &text, bool flat, QWidget *parent);

    /// The button's cell. Follows its row when rows come, go or are sorted; invalid when it is
    /// gone.
    QPersistentModelIndex index;
};

#endif
