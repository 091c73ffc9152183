// SPDX-License-Identifier: LGPL-3.0-or-later
// Linked to a program, it makes the program end as soon as its event loop has nothing left to do.
#include <QCoreApplication>
#include <QTimer>

static void quitWhenIdle()
{
    QTimer::singleShot(0, QCoreApplication::instance(), SLOT(quit()));
}
Q_COREAPP_STARTUP_FUNCTION(quitWhenIdle)
