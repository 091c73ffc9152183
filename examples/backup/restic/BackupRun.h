// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPRUN_H
#define BACKUPRUN_H

#include "ResticRun.h"

#include <QLockFile>

#include <memory>

/// How far a run has come. A plain value.
struct BackupProgress
{
    /// Of 0 to 1; less than 0 while unknown.
    double fraction = -1;
    /// Zero but for a backup.
    qint64 bytesDone = 0;
    /// With the current file at its end.
    QString activity;

    QString text() const;
};

/// A backup and its verifying, or a restore: one run of restic after the other, and what goes
/// between them. One at a time.
class BackupRun : public QObject
{
    Q_OBJECT

public:
    /// What is done only if the user agrees. The run stands still until answer().
    enum Question { CreateRepository, RemoveStaleLock };
    Q_ENUM(Question)

    explicit BackupRun(QObject *parent = nullptr);

    bool isRunning() const
    {
        return !m_steps.isEmpty();
    }
    /// Of the backup under way, or the last one.
    QString source() const
    {
        return m_job.source;
    }
    /// By the backup under way, or the last one.
    qint64 bytesDone() const
    {
        return m_progress.bytesDone;
    }

    /// Each returns false, and nothing happens, while a run is under way; else finished() follows.
    /// With job.verify the backup is followed by verify().
    bool backUp(const BackupJob &job);
    /// Reads all of the repository back.
    bool verify(const BackupJob &job);
    /// Puts the snapshot's files, with their full paths, below an empty or new folder.
    bool restore(const BackupJob &job, const QString &snapshot, const QString &folder);

public slots:
    /// With no the run ends as it would have without the question.
    void answer(bool yes);
    void cancel();

signals:
    void progressChanged(const BackupProgress &progress);
    void asked(BackupRun::Question question);
    /// A file that could not be read; the run goes on.
    void problemFound(const QString &text);
    void finished(const Outcome &outcome);

private:
    bool begin(const BackupJob &job, const QList<QStringList> &steps, Outcome::Kind refusal);
    QString command() const;
    void startStep();
    void readMessage(const QJsonDocument &message);
    void endStep(const Outcome &outcome);
    void askOrEnd(const Outcome &outcome);
    void create();
    void end(const Outcome &outcome);

    ResticRun m_run;
    BackupJob m_job;
    /// restic's arguments. The first step is under way, or waits for an answer.
    QList<QStringList> m_steps;
    QList<Question> m_asked;
    /// How the run ends if the answer is no; good if nothing is asked.
    Outcome m_unanswered;
    /// Held while the repository is made.
    std::unique_ptr<QLockFile> m_creation;
    bool m_isCancelled = false;
    BackupProgress m_progress;
    Outcome m_outcome;
};

#endif
