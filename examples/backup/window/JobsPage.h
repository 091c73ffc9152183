// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSPAGE_H
#define JOBSPAGE_H

#include "BackupEngine.h"

#include <QWidget>

class EditableTableView;
class JobModel;
class ProgressPanel;
class QStringListModel;
class SpinBox;

/// The table of jobs and, below it, how the running one comes along.
class JobsPage : public QWidget
{
    Q_OBJECT

public:
    explicit JobsPage(const QList<BackupJob> &jobs, QWidget *parent = nullptr);

    BackupEngine *engine() const
    {
        return m_engine;
    }
    EditableTableView *table() const
    {
        return m_table;
    }
    JobModel *jobs() const
    {
        return m_jobs;
    }

    /// Of the copying, in MiB a second; 0 is none.
    SpinBox *bandwidthLimit() const
    {
        return m_bandwidthLimit;
    }

    /// The job in the current row; the first one if there is no current row.
    BackupJob currentJob() const;

public slots:
    /// Adds a job from the home folder and opens the editor of its name.
    void addJob();
    /// Offers one more folder as a source.
    void addSource(const QString &folder);
    void runJob(int row);
    void removeJob(int row);

signals:
    /// The jobs are no longer what they were.
    void changed();
    /// Another job is the current one, or it has been edited.
    void currentJobChanged(const BackupJob &job);
    /// A sentence for the status bar.
    void message(const QString &text);

private slots:
    void actOnClick(QWidget *button, int row, int column);
    void collectTargets();
    void announceCurrentJob();
    void limitBandwidth(int mebibytes);
    void showBandwidthHint();

private:
    void setUpTable();
    void setUpBandwidthLimit();
    void setUpLayout();

    JobModel *m_jobs;
    QStringListModel *m_sources;
    QStringListModel *m_targets;
    EditableTableView *m_table;
    BackupEngine *m_engine;
    ProgressPanel *m_progress;
    SpinBox *m_bandwidthLimit;
};

#endif
