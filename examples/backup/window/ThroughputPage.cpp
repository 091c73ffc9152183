// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ThroughputPage.h"

#include "BackupRun.h"

#include <UpdatablePlot.h>

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

ThroughputPage::ThroughputPage(const BackupRun *run, QWidget *parent)
    : QWidget(parent)
{
    UpdatablePlot *plot = new UpdatablePlot;
    plot->setXTitle(tr("Time"));
    plot->setYTitle(tr("Done in a second"));
    plot->setBgColor("white");
    plot->setCurveColor("steelblue");
    plot->setAccessibleName(tr("Bytes done in each second"));
    // Also where there is less room than a chart of Qwt's asks for.
    plot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QLabel *now = new QLabel; // the figures at the chart's axes are very small
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(plot, 1);
    layout->addWidget(now);

    // The library's chart takes a value a second and does the rest.
    QTimer *everySecond = new QTimer(this);
    qint64 before = 0;
    connect(everySecond, &QTimer::timeout, this, [=]() mutable {
        const qint64 bytes = run->bytesDone();
        // A run that has begun since counts from nothing.
        const qint64 added = bytes >= before ? bytes - before : bytes;
        plot->updateData(added);
        now->setText(tr("In the last second: %1").arg(sizeText(added)));
        before = bytes;
    });
    everySecond->start(1000);
}
