// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPRUN_H
#define BACKUPRUN_H

#include "JobStore.h"
#include "ResticRun.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLockFile>

#include <memory>

/// How far a run has come. A plain value.
struct BackupProgress
{
    Q_DECLARE_TR_FUNCTIONS(BackupProgress)

public:
    enum Phase { Preparing, BackingUp, Verifying, Restoring };

    Phase phase = Preparing;
    /// Of 0 to 1; less than 0 while unknown.
    double fraction = -1;
    /// The totals grow while restic still looks for files. Zero but for a backup.
    qint64 bytesDone = 0;
    qint64 bytesTotal = 0;
    qint64 filesDone = 0;
    qint64 filesTotal = 0;
    QString currentFile;

    /// From a message of the type "status".
    void read(const QJsonObject &status);
    /// One line, with the current file at its end.
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
        return m_step != Nothing;
    }
    /// By the backup under way, or the last one.
    qint64 bytesDone() const
    {
        return m_progress.bytesDone;
    }
    /// 0 is none. From the next run on.
    void setUploadLimit(int kibibytesPerSecond)
    {
        m_uploadLimit = kibibytesPerSecond;
    }

    /// Each returns false, and nothing happens, while a run is under way; else finished() follows.
    /// With job.verify the backup is followed by verify().
    bool backUp(const BackupJob &job);
    /// Reads all of the repository back.
    bool verify(const BackupJob &job);
    /// Puts the snapshot's files, with their full paths, below a folder, which must be empty or
    /// new.
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
    enum Step { Nothing, BackUp, Verify, Restore, Create, Unlock, TidyUp };

    bool begin(const BackupJob &job, Step step);
    void startStep(Step step);
    Outcome::Kind refusal() const;
    QStringList arguments() const;
    void readMessage(const QJsonDocument &message);
    void readText(const QString &line);
    void create();
    void endStep(const Outcome &outcome);
    bool goesOn(const Outcome &outcome) const;
    bool asks(const Outcome &outcome);
    void endAs(const Outcome &outcome);
    void finish();

    ResticRun m_run;
    BackupJob m_job;
    QString m_snapshot;
    QString m_folder;
    Step m_step = Nothing;
    /// What is gone on with after an answer.
    Step m_interrupted = Nothing;
    QList<Question> m_asked;
    /// Held while the repository is made.
    std::unique_ptr<QLockFile> m_creation;
    bool m_waitsForAnswer = false;
    bool m_isCancelled = false;
    int m_uploadLimit = 0;
    BackupProgress m_progress;
    Outcome m_unanswered;
    Outcome m_outcome;
};

#endif
