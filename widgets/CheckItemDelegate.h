// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CHECKITEMDELEGATE_H
#define TESSALINE_CHECKITEMDELEGATE_H

#include <QItemDelegate>

/// Shows a cell as a check box and edits it with one. Any text under Qt::EditRole counts as
/// checked, "0" and "false" included; the empty text as unchecked. Checking writes "1", unchecking
/// the empty text, and a cell whose state does not change keeps the text it has.
class CheckItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /// `text` is the label to translate in the context "CheckItemDelegate".
    explicit CheckItemDelegate(const QString &text, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    QString label() const;

    QString text;
};

#endif
