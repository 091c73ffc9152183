// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"

#include <QEvent>

namespace {

// Left alone, Qt would pass the focus of a button that scrolls out of sight on with the Tab key of
// the table, and give it back when the button reappears in a window that was activated meanwhile.
// Both move the current cell, and crash if a new current cell started the scrolling.
class FocusKeeper : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QWidget *button = static_cast<const QWidget *>(watched);
        if (event->type() == QEvent::Hide && button->window()->focusWidget() == button) {
            keepFocusIn(button->parentWidget());
        }
        return false;
    }

private:
    static void keepFocusIn(QWidget *viewport)
    {
        if (viewport && viewport->isVisible()) {
            viewport->setFocus();
        }
    }
};

QObject *focusKeeper()
{
    static FocusKeeper keeper;
    return &keeper;
}

} // namespace

CellButton::CellButton(const QString &text, bool flat, QWidget *parent)
    : QPushButton(text, parent)
{
    setFlat(flat);
    setAutoFillBackground(true);
    installEventFilter(focusKeeper()); // clazy:exclude=install-event-filter
}
