// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <UpdatablePlot.h>

#include <QVariant>

namespace samples {

void feed(UpdatablePlot *chart)
{
    //! [colours]
    chart->setBgColor("white");
    chart->setCurveColor("#4682b4");
    chart->setXTitle(QObject::tr("Time"));
    chart->setYTitle(QObject::tr("Copied a second"));
    //! [colours]
    //! [names]
    chart->setAccessibleName(QObject::tr("Throughput"));
    chart->setAccessibleDescription(QObject::tr("Bytes copied in each second"));
    //! [names]
    //! [feed]
    chart->updateData(2048);
    chart->updateData(qint64(5) << 30);
    chart->updateData("2048");
    //! [feed]
}

} // namespace samples
