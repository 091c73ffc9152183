// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SETTLE_H
#define TESSALINE_SETTLE_H

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>

/// Goes through events until none are left. Once is not enough: the first turn runs the timer that
/// lays a view out, and only the next one paints what that has made out of date.
inline void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

#endif
