// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ThroughputPage.h"

#include "BackupEngine.h"

#include <UpdatablePlot.h>

#include <QVBoxLayout>
#include <QVariant>

ThroughputPage::ThroughputPage(BackupEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
    , m_plot(new UpdatablePlot(nullptr))
    , m_bytesBefore(engine->bytesCopied())
{
    m_plot->setXTitle(tr("Time"));
    m_plot->setYTitle(tr("Copied in a second"));
    m_plot->setBgColor(QStringLiteral("white"));
    m_plot->setCurveColor(QStringLiteral("steelblue"));
    m_plot->setAccessibleName(tr("Bytes copied in each second"));
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_plot);

    connect(&m_everySecond, &QTimer::timeout, this, &ThroughputPage::addSecond);
    m_everySecond.start(1000);
}

void ThroughputPage::addSecond()
{
    const qint64 bytes = m_engine->bytesCopied();
    // A run that has begun since counts from nothing.
    m_plot->updateData(bytes >= m_bytesBefore ? bytes - m_bytesBefore : bytes);
    m_bytesBefore = bytes;
}
