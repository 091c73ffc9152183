// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PagedModel.h"

namespace {

const int columns = 5;

} // namespace

PagedModel::PagedModel(QObject *parent)
    : QStandardItemModel(0, columns, parent)
    , requests(0)
    , answersAtOnce(-1)
    , delivered(0)
{
}

void PagedModel::deliver(int count, bool completed)
{
    insertPage(count);
    announce(count, completed);
}

void PagedModel::insertPage(int count)
{
    if (columnCount() == 0) {
        return; // there is no place for an item
    }
    QList<QStandardItem *> names;
    for (int i = 0; i < count; ++i) {
        names.append(new QStandardItem(QString::fromLatin1("file%1").arg(delivered++)));
    }
    invisibleRootItem()->insertRows(qMax(0, rowCount() - 1), names);
}

void PagedModel::announce(qint64 count, bool completed)
{
    emit pageLoaded(count, completed);
}

void PagedModel::changeSession()
{
    emit dataChanged();
}

void PagedModel::LoadItems()
{
    ++requests;
    if (answersAtOnce >= 0) {
        deliver(answersAtOnce, true);
    }
}
