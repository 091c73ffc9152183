// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSPAGE_H
#define JOBSPAGE_H

#include "BackupEngine.h"

#include <QWidget>

class EditableTableView;
class JobModel;
class ProgressPanel;
class QStringListModel;

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
    /// A sentence for the status bar.
    void message(const QString &text);

private slots:
    void actOnClick(QWidget *button, int row, int column);
    void collectTargets();

private:
    void setUpTable();
    void setUpLayout();

    JobModel *m_jobs;
    QStringListModel *m_sources;
    QStringListModel *m_targets;
    EditableTableView *m_table;
    BackupEngine *m_engine;
    ProgressPanel *m_progress;
};

#endif
