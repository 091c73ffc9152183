// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_BUTTONFOCUS_H
#define TESSALINE_BUTTONFOCUS_H

#include <QPersistentModelIndex>
#include <QPointer>

class QAbstractItemView;
class QEvent;

/// What keeps a button that gets the focus from moving the current cell. An item view takes any
/// widget in a cell for an editor: when it loses the focus, or closes an editor, it makes the cell
/// of the widget that has the focus current, selects it and scrolls to it.
namespace ButtonFocus {

/// Whether an event tells a view that one of its cell buttons has taken the focus from it.
bool isTaken(const QAbstractItemView &view, const QEvent &event);

/// For its lifetime, the cell of the view's button that has the focus passes for the current one,
/// if there is such a button. Nobody is told, and the selection stays.
class Disguise
{
    Q_DISABLE_COPY(Disguise)

public:
    explicit Disguise(QAbstractItemView *disguisedView);
    ~Disguise();

private:
    void setCurrent(const QModelIndex &cell);

    const QPointer<QAbstractItemView> view;
    const QPersistentModelIndex current; ///< The true one.
    const QPersistentModelIndex substitute; ///< Invalid if there is no disguise.
};

} // namespace ButtonFocus

#endif
