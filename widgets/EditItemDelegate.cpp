// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QLineEdit>

EditItemDelegate::EditItemDelegate(QObject *parent)
    : QItemDelegate(parent)
{
}

QWidget *EditItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    QLineEdit *field = new QLineEdit(parent);
    CellEditor::dress(field, "EditableTableViewEdit column", index);
    field->setFrame(false);
    return field;
}

void EditItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (QLineEdit *field = qobject_cast<QLineEdit *>(editor)) {
        field->setText(compat::text(index.data(Qt::EditRole)));
    }
}

void EditItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                    const QModelIndex &index) const
{
    const CellEditor::Commit commit(this, editor);
    if (const QLineEdit *field = qobject_cast<QLineEdit *>(editor)) {
        CellEditor::store(field->text(), itemModel, index);
    }
}

void EditItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}
