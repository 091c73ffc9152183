// SPDX-License-Identifier: LGPL-3.0-or-later
#include "OpenEditors.h"

#include "CellButton.h"
#include "CellEditor.h"

#include <QAbstractItemView>
#include <QItemDelegate>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace {

std::vector<QPointer<QWidget>> editorsIn(const QAbstractItemView &view)
{
    std::vector<QPointer<QWidget>> editors;
    const QObjectList &children = view.viewport()->children();
    for (QObject *child : children) {
        if (CellEditor::cellOf(child).isValid()) {
            editors.push_back(static_cast<QWidget *>(child));
        }
    }
    return editors;
}

bool isOpen(const QAbstractItemView *view, const QPointer<QWidget> &editor)
{
    return editor && CellEditor::cellOf(editor).isValid()
        && view->indexWidget(CellEditor::cellOf(editor)) == editor;
}

void commit(QAbstractItemView *view, const QMap<int, QItemDelegate *> &delegates,
            const QPointer<QWidget> &editor)
{
    if (isOpen(view, editor) && !CellEditor::Commit::isUnderWay(editor)) {
        // Not by commitData(): while another editor is committed that does nothing.
        const QPersistentModelIndex cell = CellEditor::cellOf(editor);
        if (QItemDelegate *delegate = delegates.value(cell.column())) {
            // It would commit once more when the editor loses the focus, by being closed or to a
            // dialog with which the model answers.
            editor->removeEventFilter(delegate);
            delegate->setModelData(editor, view->model(), cell);
        }
    }
}

// A persistent editor is left open by close(), and closePersistentEditor() would have the model
// revert what was committed.
void closeWhenCommitted(const QPointer<QAbstractItemView> &view, const QPointer<QWidget> &editor,
                        const std::function<void(QWidget *)> &close)
{
    CellEditor::Commit::whenDone(editor, [view, editor, close]() {
        if (view && isOpen(view, editor)) {
            close(editor);
        }
        if (view && isOpen(view, editor)) {
            view->setIndexWidget(CellEditor::cellOf(editor), nullptr);
            editor->hide();
        }
    });
}

bool hasEditorOfAnotherDelegate(const QAbstractItemView &view)
{
    const QObjectList &children = view.viewport()->children();
    return std::any_of(children.begin(), children.end(), [](const QObject *child) {
        return child->isWidgetType() && !dynamic_cast<const CellButton *>(child)
            && !CellEditor::isInItsColumn(child);
    });
}

} // namespace

namespace OpenEditors {

void finish(QAbstractItemView *view, const QMap<int, QItemDelegate *> &delegates,
            const std::function<void(QWidget *)> &close)
{
    const QPointer<QAbstractItemView> self(view);
    for (const QPointer<QWidget> &editor : editorsIn(*view)) { // of which one may go with another
        commit(self, delegates, editor);
        closeWhenCommitted(self, editor, close);
    }
    if (self) {
        for (const QPointer<QWidget> &editor : editorsIn(*self)) { // that slots opened meanwhile
            closeWhenCommitted(self, editor, close);
        }
    }
}

void discard(QItemDelegate *delegate, const QAbstractItemView &view)
{
    if (CellEditor::Commit::isUnderWay(delegate)) {
        CellEditor::Commit::whenDone(delegate, [delegate]() {
            delegate->deleteLater();
        });
    } else if (hasEditorOfAnotherDelegate(view)) {
        // It may be this one that is closing its editor, which another delegate commits: columns
        // moved below it, or it was open before they were declared. It looks like any widget that
        // an application puts into a cell.
        delegate->deleteLater();
    } else {
        delete delegate;
    }
}

} // namespace OpenEditors
