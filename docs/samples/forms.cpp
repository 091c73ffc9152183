// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <QMetaObject>
#include <QVariant>
#include <QWidget>

namespace samples {

void feedThroughForm(QWidget *form)
{
    //! [invoke]
    QWidget *chart = form->findChild<QWidget *>("throughput");
    chart->setProperty("curveColor", "steelblue");
    QMetaObject::invokeMethod(chart, "updateData", Q_ARG(QVariant, QVariant(2048)));
    //! [invoke]
}

} // namespace samples
