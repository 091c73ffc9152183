// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PASSWORDITEMDELEGATE_H
#define TESSALINE_PASSWORDITEMDELEGATE_H

#include "EditItemDelegate.h"

/// Edits a secret in a line edit that masks it.
///
/// The clear text goes to the role Qt::UserRole + 1 and nowhere else, and only when the user
/// changed it; Qt::DisplayRole gets the mask, one mask character for each character. The editor
/// loads Qt::EditRole, which in a standard item model is that mask: a stored secret never comes
/// back to the screen.
class PasswordItemDelegate : public EditItemDelegate
{
    Q_OBJECT

public:
    explicit PasswordItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};

#endif
