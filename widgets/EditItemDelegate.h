// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITITEMDELEGATE_H
#define TESSALINE_EDITITEMDELEGATE_H

#include <QItemDelegate>

/// Edits a cell's text in a line edit. The text is written as it was typed, under Qt::EditRole, and
/// only when it differs from the cell's.
class EditItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit EditItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};

#endif
