// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PasswordItemDelegate.h"

#include "CellEditor.h"
#include "QtCompat.h"

#include <QLineEdit>
#include <QPersistentModelIndex>

namespace {

const int clearTextRole = Qt::UserRole + 1;

bool holdsText(const QAbstractItemModel *itemModel, const QModelIndex &index, int role)
{
    return !compat::text(itemModel->data(index, role)).isEmpty();
}

} // namespace

/// What a delegate that knows nothing of the editor takes from it, as the plain delegate does when
/// columns move below it, is the user property: here the mask, not the text.
class PasswordField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString mask READ displayText USER true) // clazy:exclude=qproperty-without-notify

public:
    explicit PasswordField(QWidget *parent)
        : QLineEdit(parent)
    {
    }
};

PasswordItemDelegate::PasswordItemDelegate(QObject *parent)
    : EditItemDelegate(parent)
{
}

QWidget *PasswordItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                            const QModelIndex &index) const
{
    QLineEdit *field = new PasswordField(parent);
    CellEditor::dress(field, "EditableTableViewPassword column", index);
    field->setFrame(false);
    field->setEchoMode(QLineEdit::Password);
    return field;
}

void PasswordItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    EditItemDelegate::setEditorData(editor, index);
}

void PasswordItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                        const QModelIndex &index) const
{
    const QLineEdit *field = qobject_cast<QLineEdit *>(editor);
    if (!field || !CellEditor::isCellOf(itemModel, index)) {
        return;
    }
    // The first write makes the view load the field anew, so all that is needed is taken before.
    const QString mask = field->displayText();
    const QString clearText = field->text();
    const bool changedByUser = field->isModified();

    // A slot that answers the first write may remove the row, or the model.
    const QPersistentModelIndex cell(index);
    const CellEditor::Commit commit(this, editor);
    if (changedByUser) {
        itemModel->setData(index, clearText, clearTextRole);
    }
    if (cell.isValid()
        && (!clearText.isEmpty() || holdsText(itemModel, cell, clearTextRole)
            || holdsText(itemModel, cell, Qt::DisplayRole))) {
        itemModel->setData(cell, mask, Qt::DisplayRole);
    }
}

void PasswordItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                const QModelIndex &) const
{
    CellEditor::cover(editor, option);
}

#include "PasswordItemDelegate.moc"
