// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditComboItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QComboBox>

EditComboItemDelegate::EditComboItemDelegate(QObject *parent)
    : ComboItemDelegate(parent)
{
}

QWidget *EditComboItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    QWidget *editor = ComboItemDelegate::createEditor(parent, option, index);
    qobject_cast<QComboBox *>(editor)->setEditable(true);
    return editor;
}

void EditComboItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    ComboItemDelegate::setEditorData(editor, index);
    if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
        box->setEditText(compat::text(index.data(Qt::EditRole)));
    }
}

void EditComboItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                         const QModelIndex &index) const
{
    const CellEditor::Commit commit(this, editor);
    if (const QComboBox *box = qobject_cast<QComboBox *>(editor)) {
        CellEditor::store(box->currentText(), itemModel, index);
    }
}

void EditComboItemDelegate::updateEditorGeometry(QWidget *editor,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}
