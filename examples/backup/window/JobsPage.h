// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSPAGE_H
#define JOBSPAGE_H

#include "BackupRun.h"

#include <QPersistentModelIndex>
#include <QStringListModel>
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

    /// Where the job has none. Returns false if the user does not say it.
    static bool askForPassword(QWidget *parent, BackupJob *job);

signals:
    /// Another job is the current one, or it has been edited.
    void currentJobChanged();
    /// A run has begun: what it does, for a headline.
    void started(const QString &headline);
    /// A sentence for the status bar.
    void message(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void addJob();
    void chooseSource(int row);
    void followJobs();

private:
    void setUpTable();
    void setUpLayout();
    void dressButtons();
    void runJob(int row);
    void removeJob(int row);
    void editCell(int row, int column);

    BackupRun *m_run;
    JobModel *m_jobs;
    QStringListModel m_sources; ///< The last one stands for a folder still to be chosen.
    QStringListModel m_repositories;
    EditableTableView *m_table;
    QLabel *m_hint; ///< How to begin, where there is no job.
    SpinBox *m_bandwidthLimit; ///< Of the next run.
    QPersistentModelIndex m_running; ///< In the row of the job that runs.
};

#endif
