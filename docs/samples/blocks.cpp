// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <EditableTableView.h>

#include <QSortFilterProxyModel>
#include <QString>

namespace samples {

//! [filter]
void showJobsWith(const QString &text, QSortFilterProxyModel *jobs, EditableTableView *view)
{
    jobs->setFilterFixedString(text);
    view->setModel(jobs); // the model that it has: rows without buttons get theirs
}
//! [filter]

//! [blocks]
void keepAllButtons(EditableTableView *view)
{
    const QAbstractItemModel *jobs = view->model();
    const auto complete = [view, jobs] {
        if (view->model() == jobs) {
            view->setModel(view->model());
        }
    };
    // Queued, for the view is to hear of the rows first.
    QObject::connect(jobs, &QAbstractItemModel::rowsInserted, view, complete, Qt::QueuedConnection);
    QObject::connect(jobs, &QAbstractItemModel::modelReset, view, complete, Qt::QueuedConnection);
}
//! [blocks]

} // namespace samples
