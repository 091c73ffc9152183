// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"

#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QRegion>

namespace {

// Keeps the focus of a button in its table, and shows it.
//
// Left alone, Qt would pass the focus of a button that scrolls out of sight on with the Tab key of
// the table, and give it back when the button reappears in a window that was activated meanwhile.
// Both move the current cell, and crash if a new current cell started the scrolling.
//
// Nor does each style show where the focus is: Fusion shows it in the bevel, which a flat button
// has not got. So a frame goes on top of what the button paints, in the one colour that can be told
// from the button's own with each palette.
class FocusKeeper : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        QWidget *button = static_cast<QWidget *>(watched);
        if (event->type() == QEvent::Paint && button->hasFocus()) {
            watched->event(event);
            drawFrame(button);
            return true;
        }
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

    static void drawFrame(QWidget *button)
    {
        // Not by a pen, whose lines lie off by half a pixel where a screen has several for one.
        const QRect frame = button->rect().adjusted(1, 1, -1, -1);
        QPainter painter(button);
        painter.setClipRegion(QRegion(frame) - frame.adjusted(1, 1, -1, -1));
        painter.fillRect(frame, button->palette().color(button->foregroundRole()));
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
