// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"

CellButton::CellButton(const QString &text, bool flat, QWidget *parent)
    : QPushButton(text, parent)
{
    setFlat(flat);
    setAutoFillBackground(true);
}
