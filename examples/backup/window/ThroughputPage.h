// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef THROUGHPUTPAGE_H
#define THROUGHPUTPAGE_H

#include <QTimer>
#include <QWidget>

class BackupEngine;
class UpdatablePlot;

/// The bytes copied in each second of the last half hour.
class ThroughputPage : public QWidget
{
    Q_OBJECT

public:
    /// The engine is not owned.
    explicit ThroughputPage(BackupEngine *engine, QWidget *parent = nullptr);

private slots:
    void addSecond();

private:
    BackupEngine *m_engine;
    UpdatablePlot *m_plot;
    QTimer m_everySecond;
    qint64 m_bytesBefore;
};

#endif
