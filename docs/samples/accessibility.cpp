// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <EditableTableView.h>

#include <QAbstractItemModel>

namespace samples {

//! [names]
void nameButtons(EditableTableView *view, const QAbstractItemModel *jobs, int column)
{
    view->setAccessibleName(QObject::tr("Backups"));
    for (int row = 0; row < jobs->rowCount(); ++row) {
        const QString name = QObject::tr("Run %1").arg(jobs->index(row, 0).data().toString());
        view->button(row, column)->setAccessibleName(name);
    }
}
//! [names]

} // namespace samples
