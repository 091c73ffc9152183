// SPDX-License-Identifier: LGPL-3.0-or-later
//! [delegate]
#include "PaintedButtonDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>

PaintedButtonDelegate::PaintedButtonDelegate(const QString &captionText, QObject *parent)
    : QStyledItemDelegate(parent)
    , caption(captionText)
{
}

void PaintedButtonDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &) const
{
    QStyleOptionButton button;
    button.rect = option.rect;
    button.palette = option.palette;
    button.text = caption;
    button.state
        = QStyle::State_Enabled | QStyle::State_Raised | (option.state & QStyle::State_HasFocus);
    QApplication::style()->drawControl(QStyle::CE_PushButton, &button, painter);
}

QWidget *PaintedButtonDelegate::createEditor(QWidget *, const QStyleOptionViewItem &,
                                             const QModelIndex &) const
{
    return nullptr; // the cell is a button, not a text to edit
}

bool PaintedButtonDelegate::editorEvent(QEvent *event, QAbstractItemModel *,
                                        const QStyleOptionViewItem &, const QModelIndex &index)
{
    const bool isHit = event->type() == QEvent::MouseButtonRelease
        || (event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space);
    if (isHit) {
        emit clicked(index);
    }
    return isHit;
}
//! [delegate]
