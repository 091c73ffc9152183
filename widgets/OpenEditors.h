// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_OPENEDITORS_H
#define TESSALINE_OPENEDITORS_H

#include <QMap>

#include <functional>

class QAbstractItemView;
class QItemDelegate;
class QWidget;

/// The editors that are open in a view whose columns are about to get other delegates.
namespace OpenEditors {

/// Takes what stands in each editor into the model and closes it, persistent ones too; one that is
/// being committed is closed when that is done. An editor that loses its delegate can't be closed
/// any more, and what stands in it would later be written by whichever delegate follows: a secret
/// as plain text. `delegates` are the view's, by column, and may change meanwhile. `close` has the
/// view close an editor, and is not called once the view is gone.
void finish(QAbstractItemView *view, const QMap<int, QItemDelegate *> &delegates,
            const std::function<void(QWidget *)> &close);

/// Deletes a delegate that no column of the view has any more: at once, if no editor needs it.
void discard(QItemDelegate *delegate, const QAbstractItemView &view);

} // namespace OpenEditors

#endif
