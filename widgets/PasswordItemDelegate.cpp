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

/// Gives a field up when columns move below it. The delegate of the column where it would then
/// stand, the plain one say, would write the secret as a plain text.
class ColumnWatch : public QObject
{
    Q_OBJECT

public:
    ColumnWatch(QLineEdit *watchedField, const QAbstractItemModel *model)
        : QObject(watchedField)
        , field(watchedField)
    {
        // Before they move: afterwards the view may already have hidden and committed the field.
        connect(model,
                SIGNAL(columnsAboutToBeInserted(QModelIndex,int,int)),
                       SLOT(shift(QModelIndex,int)));
        connect(model,
                SIGNAL(columnsAboutToBeRemoved(QModelIndex,int,int)), SLOT(shift(QModelIndex,int)));
        connect(model,
                SIGNAL(columnsAboutToBeMoved(QModelIndex,int,int,QModelIndex,int)),
                       SLOT(move(QModelIndex,int,int,QModelIndex,int)));
        connect(model, SIGNAL(layoutChanged()), SLOT(look()));
    }

private Q_SLOTS:
    void shift(const QModelIndex &parent, int first)
    {
        const QModelIndex cell = CellEditor::cellOf(field);
        if (cell.parent() == parent && cell.column() >= first) {
            giveUp();
        }
    }

    void move(const QModelIndex &parent, int first, int last, const QModelIndex &newParent,
              int destination)
    {
        if (parent != newParent) {
            shift(parent, first);
            shift(newParent, destination);
        } else if (CellEditor::cellOf(field).column() < qMax(destination, last + 1)) {
            shift(parent, qMin(first, destination));
        }
    }

    void look()
    {
        if (!CellEditor::isInItsColumn(field)) {
            giveUp();
        }
    }

private:
    void giveUp()
    {
        // The view commits an editor that loses the focus, in the midst of the move: our delegate
        // writes nothing of a read-only field, and another one what the cell holds.
        field->setReadOnly(true);
        field->setText(compat::text(CellEditor::cellOf(field).data(Qt::EditRole)));
        if (field->window()->focusWidget() == field && field->parentWidget()) {
            field->parentWidget()->setFocus();
        }
        field->setEnabled(false); // the view may show it again until it is deleted
        field->hide();
        field->deleteLater();
    }

    QLineEdit *const field;
};

PasswordItemDelegate::PasswordItemDelegate(QObject *parent)
    : EditItemDelegate(parent)
{
}

QWidget *PasswordItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                            const QModelIndex &index) const
{
    QLineEdit *field = new QLineEdit(parent);
    CellEditor::dress(field, "EditableTableViewPassword column", index);
    field->setFrame(false);
    field->setEchoMode(QLineEdit::Password);
    if (index.isValid()) {
        new ColumnWatch(field, index.model());
    }
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
    if (!field || field->isReadOnly() || !CellEditor::isCellOf(itemModel, index)) {
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
