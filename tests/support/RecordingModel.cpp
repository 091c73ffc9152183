// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RecordingModel.h"

#include <QMetaType>

namespace {

QString roleName(int role)
{
    switch (role) {
    case Qt::EditRole:
        return QLatin1String("edit");
    case Qt::DisplayRole:
        return QLatin1String("display");
    case Qt::UserRole + 1:
        return QLatin1String("secret");
    default:
        return QString::number(role);
    }
}

} // namespace

RecordingModel::RecordingModel(int rows, int columns)
    : QStandardItemModel(rows, columns)
{
}

bool RecordingModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const bool isString = value.userType() == QMetaType::QString;
    writes.append(roleName(role) + QLatin1Char(' ')
                  + (isString ? value.toString() : QString::fromLatin1("not a string")));
    return QStandardItemModel::setData(index, value, role);
}

void RecordingModel::put(int row, int column, const QVariant &value, int role)
{
    QStandardItemModel::setData(index(row, column), value, role);
}
