// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"

CellButton::CellButton(const QString &text, bool flat, QWidget *parent)
    : QPushButton(text, parent)
{
    setFlat(flat);
    setAutoFillBackground(true);
}

// Left alone, Qt would pass the focus of a button that scrolls out of sight on with the Tab key of
// the table, and give it back when the button reappears in a window that was activated meanwhile.
// Both move the current cell, and crash if a new current cell started the scrolling.
void CellButton::hideEvent(QHideEvent *event)
{
    QPushButton::hideEvent(event);
    if (window()->focusWidget() == this && parentWidget() && parentWidget()->isVisible()) {
        parentWidget()->setFocus();
    }
}
