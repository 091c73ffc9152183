// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITCOMBOITEMDELEGATE_H
#define TESSALINE_EDITCOMBOITEMDELEGATE_H

#include "ComboItemDelegate.h"

/// Edits a cell by choosing from a list or by typing a text that need not be in it.
///
/// It is QComboBox's: what is typed is completed to an item, and the Return key adds a text that
/// the list does not hold to its end, that is to the bound model, where all cells of the column
/// find it from then on. A field that is left in another way writes its text and adds nothing. A
/// text that the list does not take is written, too.
class EditComboItemDelegate : public ComboItemDelegate
{
    Q_OBJECT

public:
    explicit EditComboItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};

#endif
