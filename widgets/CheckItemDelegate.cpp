// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

bool isChecked(const QVariant &stored)
{
    return !compat::text(stored).isEmpty();
}

} // namespace

CheckItemDelegate::CheckItemDelegate(const QString &labelText, QObject *parent)
    : QItemDelegate(parent)
    , text(labelText)
{
}

// Only the cell's rectangle comes from the view: a check cell is always drawn enabled, in the
// style's own colours, and never highlighted, whatever the view's palette and selection are. The
// label is in these colours too: in a dark application it would be white on light grey.
void CheckItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyle *style = QApplication::style();
    QStyleOptionButton button;
    button.palette = style->standardPalette();
    button.rect = option.rect;
    button.text = label();
    button.features = QStyleOptionButton::Flat;
    button.state = QStyle::State_Enabled
        | (isChecked(index.data(Qt::EditRole)) ? QStyle::State_On : QStyle::State_Off);

    painter->fillRect(option.rect, button.palette.brush(QPalette::Current, QPalette::Window));
    style->drawControl(QStyle::CE_CheckBox, &button, painter);
}

QWidget *CheckItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                         const QModelIndex &index) const
{
    QCheckBox *box = new QCheckBox(label(), parent);
    CellEditor::dress(box, "EditableTableViewCheckBox column", index);
    return box;
}

void CheckItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (QCheckBox *box = qobject_cast<QCheckBox *>(editor)) {
        box->setChecked(isChecked(index.data(Qt::EditRole)));
    }
}

void CheckItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                     const QModelIndex &index) const
{
    const QCheckBox *box = qobject_cast<QCheckBox *>(editor);
    if (box && CellEditor::isCellOf(itemModel, index)
        && box->isChecked() != isChecked(itemModel->data(index, Qt::EditRole))) {
        const CellEditor::Commit commit(this, editor);
        const QString written = QLatin1String(box->isChecked() ? "1" : "");
        itemModel->setData(index, written, Qt::EditRole);
    }
}

void CheckItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                             const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}

QString CheckItemDelegate::label() const
{
    return tr(compat::trSource(text).constData());
}
