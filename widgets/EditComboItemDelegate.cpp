// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditComboItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

/// Keeps a text that the Return key was to add to the list, where the list does not take it or
/// takes it into another column: the field goes over to the new item, and would be empty then.
class TypedText : public QObject
{
    Q_OBJECT

public:
    explicit TypedText(QComboBox *typedBox)
        : QObject(typedBox)
        , box(typedBox)
    {
        box->installEventFilter(this);
        connect(box->lineEdit(), SIGNAL(returnPressed()), SLOT(putBack()));
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            text = box->currentText();
        }
        return false;
    }

private Q_SLOTS:
    void putBack()
    {
        if (box->currentText().isEmpty()) {
            box->setEditText(text);
        }
    }

private:
    QComboBox *const box;
    QString text; ///< Before the last key.
};

EditComboItemDelegate::EditComboItemDelegate(QObject *parent)
    : ComboItemDelegate(parent)
{
}

QWidget *EditComboItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    QComboBox *box
        = qobject_cast<QComboBox *>(ComboItemDelegate::createEditor(parent, option, index));
    box->setEditable(true);
    new TypedText(box);
    return box;
}

void EditComboItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    ComboItemDelegate::setEditorData(editor, index);
    if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
        box->setEditText(compat::text(index.data(Qt::EditRole)));
    }
}

void EditComboItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                         const QModelIndex &index) const
{
    const CellEditor::Commit commit(this, editor);
    if (const QComboBox *box = qobject_cast<QComboBox *>(editor)) {
        CellEditor::store(box->currentText(), itemModel, index);
    }
}

void EditComboItemDelegate::updateEditorGeometry(QWidget *editor,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}

#include "EditComboItemDelegate.moc"
