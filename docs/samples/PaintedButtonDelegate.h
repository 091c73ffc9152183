// SPDX-License-Identifier: LGPL-3.0-or-later
//! [delegate]
#ifndef PAINTEDBUTTONDELEGATE_H
#define PAINTEDBUTTONDELEGATE_H

#include <QStyledItemDelegate>

/// Paints a button into each cell of a column: no widget, so no cost for rows that are not seen.
class PaintedButtonDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PaintedButtonDelegate(const QString &captionText, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *, const QStyleOptionViewItem &,
                          const QModelIndex &) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

Q_SIGNALS:
    /// The button was clicked, or the space bar hit in its cell.
    void clicked(const QModelIndex &cell);

private:
    QString caption;
};

#endif
//! [delegate]
