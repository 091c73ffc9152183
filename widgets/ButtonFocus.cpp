// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonFocus.h"

#include "CellButton.h"
#include "QtCompat.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QItemSelectionModel>

namespace {

QModelIndex cellWithFocus(const QAbstractItemView &view)
{
    const CellButton *button = dynamic_cast<CellButton *>(QApplication::focusWidget());
    if (compat::currentCellFollowsButtons || !button || view.indexWidget(button->index) != button) {
        return QModelIndex();
    }
    return button->index;
}

} // namespace

namespace ButtonFocus {

bool isTaken(const QAbstractItemView &view, const QEvent &event)
{
    return event.type() == QEvent::FocusOut && cellWithFocus(view).isValid();
}

Disguise::Disguise(QAbstractItemView *disguisedView)
    : view(disguisedView)
    , current(view->currentIndex())
    , substitute(cellWithFocus(*view))
{
    if (substitute.isValid()) {
        setCurrent(substitute);
    }
}

Disguise::~Disguise()
{
    if (view && substitute.isValid() && view->currentIndex() == substitute) {
        setCurrent(current);
    }
}

void Disguise::setCurrent(const QModelIndex &cell)
{
    QItemSelectionModel *selection = view->selectionModel();
    const bool wereBlocked = selection->blockSignals(true);
    selection->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    selection->blockSignals(wereBlocked);
}

} // namespace ButtonFocus
