// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellEditor.h"

#include "QtCompat.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace {

/// Remembers an editor's cell and goes with the editor.
class CellTag : public QObject
{
public:
    CellTag(QWidget *editor, const QModelIndex &index)
        : QObject(editor)
        , cell(index)
        , column(index.column())
    {
    }

    const QPersistentModelIndex cell;
    const int column; ///< Where the cell was when the editor was made.
};

const CellTag *tagOf(const QObject *widget)
{
    for (const QObject *child : widget->children()) {
        if (const CellTag *tag = dynamic_cast<const CellTag *>(child)) {
            return tag;
        }
    }
    return nullptr;
}

} // namespace

namespace CellEditor {

void dress(QWidget *editor, const char *descriptionPrefix, const QModelIndex &index)
{
    editor->setAccessibleDescription(QLatin1String(descriptionPrefix)
                                     + QString::number(index.column()));
    editor->setAutoFillBackground(true);
    new CellTag(editor, index);
}

QPersistentModelIndex cellOf(const QObject *widget)
{
    const CellTag *tag = tagOf(widget);
    return tag ? tag->cell : QPersistentModelIndex();
}

bool isInItsColumn(const QObject *widget)
{
    const CellTag *tag = tagOf(widget);
    return tag && (!tag->cell.isValid() || tag->cell.column() == tag->column);
}

void cover(QWidget *editor, const QStyleOptionViewItem &option)
{
    editor->setGeometry(option.rect);
}

bool isCellOf(const QAbstractItemModel *model, const QModelIndex &index)
{
    return index.model() == model;
}

void store(const QString &text, QAbstractItemModel *model, const QModelIndex &index)
{
    if (isCellOf(model, index) && compat::text(model->data(index, Qt::EditRole)) != text) {
        model->setData(index, text, Qt::EditRole);
    }
}

/// Keeps back the deletion of an editor, and does it itself in the end. To ask the editor once more
/// to be deleted would not do: newer versions of Qt take only the first request.
class Commit::DeletionDelay : public QObject
{
public:
    explicit DeletionDelay(QObject *delayedEditor)
        : isDue(false)
        , editor(delayedEditor)
    {
        editor->installEventFilter(this);
    }

    ~DeletionDelay() override
    {
        if (isDue) {
            delete editor;
        }
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isDeletion = event->type() == QEvent::DeferredDelete;
        isDue = isDue || isDeletion;
        return isDeletion;
    }

    bool isDue;

private:
    const QPointer<QObject> editor;
};

Commit *Commit::innermost = nullptr;

Commit::Commit(const QObject *committingDelegate, QObject *committedEditor)
    : delay(committedEditor && !isUnderWay(committedEditor) ? new DeletionDelay(committedEditor)
                                                            : nullptr)
    , outer(innermost)
    , delegate(committingDelegate)
    , editor(committedEditor)
{
    innermost = this;
}

Commit::~Commit()
{
    innermost = outer;
    for (const std::function<void()> &action : actions) {
        action();
    }
    if (delay && delay->isDue) {
        delay.release()->deleteLater();
    }
}

bool Commit::isUnderWay(const QObject *participant)
{
    return outermostOf(participant) != nullptr;
}

void Commit::whenDone(const QObject *participant, const std::function<void()> &action)
{
    if (Commit *commit = outermostOf(participant)) {
        commit->actions.push_back(action);
    } else {
        action();
    }
}

Commit *Commit::outermostOf(const QObject *participant)
{
    Commit *outermost = nullptr;
    for (Commit *commit = innermost; commit; commit = commit->outer) {
        if (commit->delegate == participant || commit->editor == participant) {
            outermost = commit;
        }
    }
    return outermost;
}

} // namespace CellEditor
