// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBox.h"

#include <QFocusEvent>

namespace {

bool isMadeByUser(Qt::FocusReason reason)
{
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason
        || reason == Qt::BacktabFocusReason;
}

} // namespace

SpinBox::SpinBox(QWidget *parent)
    : QSpinBox(parent)
{
}

SpinBox::~SpinBox() = default;

void SpinBox::focusInEvent(QFocusEvent *event)
{
    if (isMadeByUser(event->reason())) {
        emit focused();
        QAbstractSpinBox::focusInEvent(event);
    }
}
