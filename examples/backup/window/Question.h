// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef QUESTION_H
#define QUESTION_H

#include <QString>

#include <functional>

class QWidget;

/// What only the user can decide or knows, asked in a box on the window. The calls return at once:
/// a backup that runs meanwhile goes on.
namespace Question {

/// Tells whether the user said yes.
void ask(QWidget *parent, const QString &text, const std::function<void(bool)> &answer);

/// Tells the password unless the user goes back on it. Nothing keeps it.
void askPassword(QWidget *parent, const QString &text,
                 const std::function<void(const QString &)> &answer);

} // namespace Question

#endif
