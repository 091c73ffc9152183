// SPDX-License-Identifier: LGPL-3.0-or-later
// Section sizing: the columns together fill the view; one section takes up each difference.
#include "EditableTableView.h"

#include "QtCompat.h"

#include <QHeaderView>

namespace {

const int narrowestAbsorber = 20; // pixels

} // namespace

void EditableTableView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    emit resizeView();
}

void EditableTableView::resizeSection(int section, int size)
{
    resizing = true;
    compat::resizeSection(horizontalHeader(), section, size);
    resizing = false;
}

void EditableTableView::resized()
{
    resize(stretchSection);
}

// The neighbour is found by its logical index and that is then taken for a visual position, on
// purpose: the two agree until sections are moved, and what happens then is part of the interface.
void EditableTableView::sectionResized(int index, int, int)
{
    const int count = model() ? model()->columnCount() : 0;
    if (index >= count - 1) {
        return;
    }
    const bool rightIsFixed
        = compat::sectionResizeMode(horizontalHeader(), index + 1) == QHeaderView::Fixed;
    const int neighbour = qMax(0, rightIsFixed ? index - 1 : index + 1);
    resize(horizontalHeader()->logicalIndex(neighbour));
}

void EditableTableView::resize(int section)
{
    // Without a model the header may still report sections, while a model comes or goes.
    if (resizing || !model() || horizontalHeader()->visualIndex(section) == -1) {
        return;
    }
    resizing = true;
    const int size
        = horizontalHeader()->sectionSize(section) + horizontalHeader()->width() - totalWidth();
    compat::resizeSection(horizontalHeader(), section, qMax(narrowestAbsorber, size));
    resizing = false;
}

int EditableTableView::totalWidth() const
{
    int total = 0;
    for (int section = 0; section < model()->columnCount(); ++section) {
        total += horizontalHeader()->sectionSize(section);
    }
    return total;
}
