// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_COMBOITEMDELEGATE_H
#define TESSALINE_COMBOITEMDELEGATE_H

#include <QItemDelegate>
#include <QPointer>

/// Edits a cell by choosing from a list, which is one column of a bound model.
///
/// The chosen item's text is written under Qt::EditRole, and only when it differs from the cell's.
/// A cell whose text is not in the list opens with nothing chosen, and is left alone until
/// something is.
class ComboItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ComboItemDelegate(QObject *parent = nullptr);

    /// Editors opened from now on list column `column` of `items`. Neither is owned; without a
    /// model, or when it is gone, editors open with an empty list.
    void bindModel(QAbstractItemModel *items, int column);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    QPointer<QAbstractItemModel> model;
    int modelColumn;
};

#endif
