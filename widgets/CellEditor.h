// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CELLEDITOR_H
#define TESSALINE_CELLEDITOR_H

#include <QStyleOptionViewItem>

class QAbstractItemModel;
class QModelIndex;
class QString;
class QWidget;

/// What all cell editors have in common, whichever delegate makes them.
namespace CellEditor {

/// Prepares a new editor: its accessible description is the prefix followed by the number of the
/// cell's column, and it paints its own background, so that the cell does not show through.
void dress(QWidget *editor, const char *descriptionPrefix, const QModelIndex &index);

/// Makes the editor cover its whole cell.
void cover(QWidget *editor, const QStyleOptionViewItem &option);

/// Writes `text` under Qt::EditRole unless the cell holds just that text.
void store(const QString &text, QAbstractItemModel *model, const QModelIndex &index);

/// Says for its lifetime that a delegate is writing into the model. A slot of the application that
/// answers such a write may replace the delegates; they are in use until the event loop turns.
class Commit
{
    Q_DISABLE_COPY(Commit)

public:
    Commit();
    ~Commit();

    static bool isUnderWay();

private:
    static int depth;
};

} // namespace CellEditor

#endif
