// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CELLEDITOR_H
#define TESSALINE_CELLEDITOR_H

#include <QPersistentModelIndex>
#include <QStyleOptionViewItem>

#include <functional>
#include <memory>
#include <vector>

class QAbstractItemModel;
class QString;
class QWidget;

/// What all cell editors have in common, whichever delegate makes them.
namespace CellEditor {

/// Prepares a new editor: its accessible description is the prefix followed by the number of the
/// cell's column, and it paints its own background, so that the cell does not show through.
void dress(QWidget *editor, const char *descriptionPrefix, const QModelIndex &index);

/// The cell that a widget was dressed to edit; invalid for other widgets and when the cell is gone.
QPersistentModelIndex cellOf(const QObject *widget);

/// Whether a widget was dressed to edit a cell that is still in the same column, or gone. If not,
/// the view commits it by another delegate than the one that made it and watches its keys.
bool isInItsColumn(const QObject *widget);

/// Makes the editor cover its whole cell.
void cover(QWidget *editor, const QStyleOptionViewItem &option);

/// Whether a cell is one of this model. A view that is given another model hides its editors, and
/// offers that model what was typed for a cell of the one before.
bool isCellOf(const QAbstractItemModel *model, const QModelIndex &index);

/// Writes `text` under Qt::EditRole unless the cell holds just that text.
void store(const QString &text, QAbstractItemModel *model, const QModelIndex &index);

/// Says for its lifetime that a delegate takes an editor's value into the model. A slot of the
/// application that answers the write may replace the delegates or open a dialog, in whose event
/// loop the view may close the editor; when the slot returns Qt goes on to use both. So a commit
/// also puts off the editor's deletion. The editor may be null.
class Commit
{
    Q_DISABLE_COPY(Commit)

public:
    Commit(const QObject *committingDelegate, QObject *committedEditor);
    ~Commit();

    /// Whether a delegate or an editor takes part in a commit.
    static bool isUnderWay(const QObject *participant);

    /// Runs `action` when a delegate or an editor takes part in no commit any more: at once, if so.
    static void whenDone(const QObject *participant, const std::function<void()> &action);

private:
    class DeletionDelay;

    static Commit *outermostOf(const QObject *participant);

    static Commit *innermost;

    std::unique_ptr<DeletionDelay> delay; ///< Of the outermost commit of the editor.
    Commit *const outer;
    const QObject *const delegate;
    const QObject *const editor;
    std::vector<std::function<void()>> actions;
};

} // namespace CellEditor

#endif
