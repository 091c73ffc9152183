// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSPAGE_H
#define JOBSPAGE_H

#include "BackupRun.h"

#include <QWidget>

class EditableTableView;
class JobModel;
class QLabel;
class SpinBox;

/// The table of jobs and what a run of them takes.
class JobsPage : public QWidget
{
    Q_OBJECT

public:
    /// Neither is owned. The page starts the run.
    JobsPage(JobModel *jobs, BackupRun *run, QWidget *parent = nullptr);

    /// The job in the current row; the first one if there is no current row.
    BackupJob currentJob() const;

public slots:
    /// Adds a job from the home folder and opens the editor of its name.
    void addJob();
    /// Runs the job, or cancels it if it is the one that runs.
    void runJob(int row);
    /// Asks first. A job that runs stays.
    void removeJob(int row);

signals:
    /// Another job is the current one, or it has been edited.
    void currentJobChanged(const BackupJob &job);
    /// A run has begun: what it does, for a headline.
    void started(const QString &headline);
    /// A sentence for the status bar.
    void message(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void actOnClick(QWidget *button, int row, int column);
    void announceCurrentJob();
    void shareWidth();
    void dressButtons();
    void chooseSource(int row);
    void endRun();

private:
    void setUpTable();
    void setUpWidths();
    void setUpBandwidthLimit();
    void setUpLayout();
    void editCell(int row, int column);
    void askPassword(int row);
    void start(int row, const BackupJob &job);

    BackupRun *m_run;
    JobModel *m_jobs;
    EditableTableView *m_table;
    QLabel *m_hint; ///< How to begin, where there is no job.
    SpinBox *m_bandwidthLimit; ///< Of the next run.
};

#endif
