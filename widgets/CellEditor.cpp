// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellEditor.h"

#include "QtCompat.h"

#include <QAbstractItemModel>
#include <QWidget>

namespace CellEditor {

void dress(QWidget *editor, const char *descriptionPrefix, const QModelIndex &index)
{
    editor->setAccessibleDescription(QLatin1String(descriptionPrefix)
                                     + QString::number(index.column()));
    editor->setAutoFillBackground(true);
}

void cover(QWidget *editor, const QStyleOptionViewItem &option)
{
    editor->setGeometry(option.rect);
}

void store(const QString &text, QAbstractItemModel *model, const QModelIndex &index)
{
    if (compat::text(model->data(index, Qt::EditRole)) != text) {
        const Commit commit;
        model->setData(index, text, Qt::EditRole);
    }
}

int Commit::depth = 0;

Commit::Commit()
{
    ++depth;
}

Commit::~Commit()
{
    --depth;
}

bool Commit::isUnderWay()
{
    return depth > 0;
}

} // namespace CellEditor
