// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPREPORT_H
#define BACKUPREPORT_H

#include <QByteArray>
#include <QMetaType>
#include <QString>

enum class BackupPhase { Preparing, Scanning, Copying, Removing, Finishing, Verifying };

/// What became of one file or symbolic link.
enum class FileResult { New, Changed, Unchanged, Failed, Verified };

/// A snapshot of how far a run has come. Sizes are in bytes; the totals grow while the phase is
/// Scanning, and start anew when the phase becomes Verifying.
struct BackupProgress
{
    BackupPhase phase = BackupPhase::Preparing;
    qint64 bytesDone = 0;
    qint64 bytesTotal = 0;
    qint64 filesDone = 0;
    qint64 filesTotal = 0;
    QString currentFile;
};

/// One thing the user should know about one file or folder.
struct BackupProblem
{
    enum Kind {
        Skipped, ///< Nothing to copy, such as a socket; the run still counts as complete.
        Failed, ///< Not copied, not removed or not kept as it should be.
        Different ///< Found by verifying: missing, different, unexpected, or a wrong signature.
    };
    Kind kind = Failed;
    /// Relative to the source folder, or to the target folder for the target's own files.
    QString path;
    QString text;
};

/// The counts of a whole run, files and symbolic links together.
struct BackupSummary
{
    qint64 newFiles = 0;
    qint64 changedFiles = 0;
    qint64 unchangedFiles = 0;
    qint64 failedFiles = 0;
    qint64 removedFiles = 0;
    qint64 verifiedFiles = 0;
    qint64 bytesCopied = 0;
    qint64 skippedProblems = 0;
    qint64 failedProblems = 0;
    qint64 differentProblems = 0;
    bool cancelled = false;

    /// True if nothing failed, nothing differs and the run was not cancelled.
    bool isComplete() const
    {
        return !cancelled && failedProblems == 0 && differentProblems == 0;
    }
};

/// What the tasks tell whoever runs them.
class BackupObserver
{
public:
    virtual ~BackupObserver() = default;
    virtual void fileFinished(const QString &path, FileResult result) = 0;
    virtual void fileRemoved() = 0;
    virtual void bytesWritten(qint64 count) = 0;
    virtual void problemNoticed(const BackupProblem &problem) = 0;

    /// Notices a problem with the path, whose bytes need not be text.
    void report(BackupProblem::Kind kind, const QByteArray &path, const QString &text);
};

/// A piece of work cut into steps of a few milliseconds.
class BackupTask
{
public:
    virtual ~BackupTask() = default;
    /// Does a little of the work; returns false once there is none left.
    virtual bool step() = 0;
    /// Gives up the work; the remaining steps only leave everything in order.
    virtual void cancel() = 0;
    virtual BackupProgress progress() const = 0;
};

Q_DECLARE_METATYPE(BackupProgress)
Q_DECLARE_METATYPE(BackupProblem)
Q_DECLARE_METATYPE(BackupSummary)
Q_DECLARE_METATYPE(FileResult)

#endif
