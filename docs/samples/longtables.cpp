// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PaintedButtonDelegate.h"
#include "Samples.h"

#include <EditableTableView.h>

namespace samples {

void paintButtons(EditableTableView *view, int column, QObject *receiver, const char *slot)
{
    //! [paint]
    // The column is declared plain, by the empty string; setColumns() leaves this delegate alone.
    PaintedButtonDelegate *painted = new PaintedButtonDelegate(QObject::tr("Run"), view);
    view->setItemDelegateForColumn(column, painted);
    QObject::connect(painted, SIGNAL(clicked(QModelIndex)), receiver, slot);
    //! [paint]
}

} // namespace samples
