// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpokenJobs.h"

//! [spoken]
QVariant SpokenJobs::data(const QModelIndex &index, int role) const
{
    if (role == Qt::AccessibleTextRole && index.column() == Verify) {
        const bool isChecked = !index.data(Qt::EditRole).toString().isEmpty();
        return isChecked ? tr("Verify, checked") : tr("Verify, not checked");
    }
    if (role == Qt::AccessibleTextRole && index.column() == Run) {
        return tr("Run %1, button").arg(index.sibling(index.row(), Name).data().toString());
    }
    return QStandardItemModel::data(index, role);
}
//! [spoken]
