// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef THROUGHPUTPAGE_H
#define THROUGHPUTPAGE_H

#include <QTimer>
#include <QWidget>

class BackupRun;
class QLabel;
class UpdatablePlot;

/// The bytes backed up in each second of the last half hour.
class ThroughputPage : public QWidget
{
    Q_OBJECT

public:
    /// The run is not owned.
    explicit ThroughputPage(BackupRun *run, QWidget *parent = nullptr);

private slots:
    void addSecond();

private:
    BackupRun *m_run;
    UpdatablePlot *m_plot;
    QLabel *m_now; ///< The figures at the chart's axes are very small.
    QTimer m_everySecond;
    qint64 m_bytesBefore;
};

#endif
