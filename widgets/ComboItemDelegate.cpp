// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ComboItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QComboBox>

ComboItemDelegate::ComboItemDelegate(QObject *parent)
    : QItemDelegate(parent)
    , modelColumn(0)
{
}

void ComboItemDelegate::bindModel(QAbstractItemModel *items, int column)
{
    model = items;
    modelColumn = column;
}

QWidget *ComboItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                         const QModelIndex &index) const
{
    QComboBox *box = new QComboBox(parent);
    CellEditor::dress(box, "EditableTableViewCombo column", index);
    box->setFrame(false);
    if (model) {
        box->setModel(model);
    }
    box->setModelColumn(modelColumn);
    return box;
}

void ComboItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
        const QString stored = compat::text(index.data(Qt::EditRole));
        box->setCurrentIndex(box->findText(stored, Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
}

void ComboItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                     const QModelIndex &index) const
{
    const CellEditor::Commit commit(this, editor);
    const QComboBox *box = qobject_cast<QComboBox *>(editor);
    if (box && box->currentIndex() >= 0) {
        CellEditor::store(box->currentText(), itemModel, index);
    }
}

void ComboItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                             const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}
