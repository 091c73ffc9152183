// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPENGINE_H
#define BACKUPENGINE_H

#include "BackupJob.h"
#include "BackupReport.h"
#include "BandwidthLimit.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

/// Runs one backup at a time on the event loop of its thread, in slices of a few milliseconds.
///
/// Signals come from inside a slice. Slots may call cancel() or run a dialog; they must not delete
/// the engine (deleteLater() is fine) nor start another run before finished().
///
/// Deleting a running engine leaves no partial file in data/, but also no up-to-date manifest: the
/// next run then reads all files again. To stop in good order, cancel() and wait for finished().
class BackupEngine : public QObject, private BackupObserver
{
    Q_OBJECT

public:
    explicit BackupEngine(QObject *parent = nullptr);
    ~BackupEngine() override;

    /// Starts mirroring the job's source to its target, followed by verifying if the job says so.
    /// Returns false, with the reason for the user in `refusal` (not null), if that cannot be; then
    /// nothing has been touched and no signal follows.
    bool start(const BackupJob &job, QString *refusal);
    /// Starts reading the job's target back. The source folder is not needed.
    bool startVerify(const BackupJob &job, QString *refusal);

    bool isRunning() const
    {
        return m_task != nullptr;
    }

    /// What the run, or the last one, has written so far.
    qint64 bytesCopied() const
    {
        return m_summary.bytesCopied;
    }

    /// Lets no more than so many bytes a second be copied; 0, the default, is no limit. Takes
    /// effect at once, for the run under way too.
    void setBytesPerSecond(qint64 limit);

public slots:
    /// Stops within a slice; finished() follows once the manifest has been written for what has
    /// been copied. Does nothing if nothing is running.
    void cancel();

signals:
    /// At most once for each slice.
    void progressChanged(const BackupProgress &progress);
    /// For each file and symbolic link; the path is relative to the source and meant for display.
    void fileDone(const QString &path, FileResult result);
    void problemFound(const BackupProblem &problem);
    void finished(const BackupSummary &summary);

private:
    void fileFinished(const QString &path, FileResult result) override;
    void fileRemoved() override;
    void bytesWritten(qint64 count) override;
    void problemNoticed(const BackupProblem &problem) override;

    bool canStart(QString *refusal) const;
    void begin(BackupTask *task);
    void runSlice();
    bool stepForAWhile();
    bool stepOnce();
    void endTask();
    void scheduleSlice();

    std::unique_ptr<BackupTask> m_task;
    std::unique_ptr<BackupTask> m_nextTask;
    QTimer m_timer;
    QElapsedTimer m_clock;
    BandwidthLimit m_limit;
    BackupSummary m_summary;
    bool m_isCancelRequested = false;
};

#endif
