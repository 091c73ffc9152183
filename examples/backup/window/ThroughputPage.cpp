// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ThroughputPage.h"

#include "BackupRun.h"

#include <UpdatablePlot.h>

#include <QLabel>
#include <QSizePolicy>
#include <QVBoxLayout>
#include <QVariant>

ThroughputPage::ThroughputPage(BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_plot(new UpdatablePlot)
    , m_now(new QLabel)
    , m_bytesBefore(run->bytesDone())
{
    m_plot->setXTitle(tr("Time"));
    m_plot->setYTitle(tr("Done in a second"));
    m_plot->setBgColor(QStringLiteral("white"));
    m_plot->setCurveColor(QStringLiteral("steelblue"));
    m_plot->setAccessibleName(tr("Bytes done in each second"));
    // Also where there is less room than a chart of Qwt's asks for.
    m_plot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_plot, 1);
    layout->addWidget(m_now);

    connect(&m_everySecond, &QTimer::timeout, this, &ThroughputPage::addSecond);
    m_everySecond.start(1000);
}

// The library's chart takes a value a second and does the rest.
void ThroughputPage::addSecond()
{
    const qint64 bytes = m_run->bytesDone();
    // A run that has begun since counts from nothing.
    const qint64 added = bytes >= m_bytesBefore ? bytes - m_bytesBefore : bytes;
    m_plot->updateData(added);
    m_now->setText(tr("In the last second: %1").arg(sizeText(added)));
    m_bytesBefore = bytes;
}
