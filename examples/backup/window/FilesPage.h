// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILESPAGE_H
#define FILESPAGE_H

#include "BackupRun.h"
#include "ResticRun.h"

#include <QWidget>

#include <memory>

class FileListModel;
class QComboBox;
class QLabel;
class QPushButton;

/// The snapshots of a job, the files in the chosen one, and a way to get them back.
class FilesPage : public QWidget
{
    Q_OBJECT

public:
    /// The run is not owned; the page restores with it, and looks again after a backup.
    explicit FilesPage(BackupRun *run, QWidget *parent = nullptr);

    /// Shows another job's snapshots. Nothing is read before the page is shown.
    void setJob(const BackupJob &job);

signals:
    /// A run has begun: what it does, for a headline.
    void started(const QString &headline);
    /// A sentence for the status bar.
    void message(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void reload();
    void listFiles();
    void restore();
    void showOutcome(const Outcome &outcome);

private:
    QWidget *makeList();
    QWidget *makePageSize();
    void setUpLayout();
    void load();
    void clear(const QString &hint);
    void offer(const QJsonDocument &message);

    BackupRun *m_run;
    BackupJob m_job;
    bool m_isStale = true;
    std::unique_ptr<ResticRun> m_reading; ///< Of the list of snapshots.
    QComboBox *m_snapshots;
    QPushButton *m_restore;
    FileListModel *m_model;
    QLabel *m_hint;
};

#endif
