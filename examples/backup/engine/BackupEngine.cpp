// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupEngine.h"

#include "FolderCheck.h"
#include "MirrorTask.h"
#include "VerifyTask.h"

#include <QElapsedTimer>

namespace {

const qint64 sliceMilliseconds = 12;
const qint64 longestPause = 250; // under a bandwidth limit; the window wants to see signs of life

} // namespace

BackupEngine::BackupEngine(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<BackupProgress>();
    qRegisterMetaType<BackupProblem>();
    qRegisterMetaType<BackupSummary>();
    qRegisterMetaType<FileResult>();
    m_timer.setSingleShot(true);
    m_clock.start();
    connect(&m_timer, &QTimer::timeout, this, &BackupEngine::runSlice);
}

BackupEngine::~BackupEngine() = default;

bool BackupEngine::start(const BackupJob &job, QString *refusal)
{
    FolderCheck check(job);
    if (!canStart(refusal)) {
        return false;
    }
    if (!check.allowsRun()) {
        *refusal = check.refusal();
        return false;
    }
    begin(new MirrorTask(check.source(), check.target(), job.passphrase, this));
    if (job.verifiesAfterRun) {
        m_nextTask.reset(new VerifyTask(check.target(), job.passphrase, this));
    }
    return true;
}

bool BackupEngine::startVerify(const BackupJob &job, QString *refusal)
{
    FolderCheck check(job);
    if (!canStart(refusal)) {
        return false;
    }
    if (!check.allowsVerify()) {
        *refusal = check.refusal();
        return false;
    }
    begin(new VerifyTask(check.target(), job.passphrase, this));
    return true;
}

void BackupEngine::setBytesPerSecond(qint64 limit)
{
    m_limit.setBytesPerSecond(limit, m_clock.elapsed());
    scheduleSlice();
}

void BackupEngine::cancel()
{
    m_isCancelRequested = isRunning();
    scheduleSlice();
}

void BackupEngine::fileFinished(const QString &path, FileResult result)
{
    switch (result) {
    case FileResult::New:
        ++m_summary.newFiles;
        break;
    case FileResult::Changed:
        ++m_summary.changedFiles;
        break;
    case FileResult::Unchanged:
        ++m_summary.unchangedFiles;
        break;
    case FileResult::Failed:
        ++m_summary.failedFiles;
        break;
    case FileResult::Verified:
        ++m_summary.verifiedFiles;
        break;
    }
    emit fileDone(path, result);
}

void BackupEngine::fileRemoved()
{
    ++m_summary.removedFiles;
}

void BackupEngine::bytesWritten(qint64 count)
{
    m_summary.bytesCopied += count;
    m_limit.addBytes(count);
}

void BackupEngine::problemNoticed(const BackupProblem &problem)
{
    switch (problem.kind) {
    case BackupProblem::Skipped:
        ++m_summary.skippedProblems;
        break;
    case BackupProblem::Failed:
        ++m_summary.failedProblems;
        break;
    case BackupProblem::Different:
        ++m_summary.differentProblems;
        break;
    }
    emit problemFound(problem);
}

bool BackupEngine::canStart(QString *refusal) const
{
    if (isRunning()) {
        *refusal = tr("A backup is running already.");
    }
    return !isRunning();
}

void BackupEngine::begin(BackupTask *task)
{
    m_task.reset(task);
    m_nextTask.reset();
    m_summary = BackupSummary();
    m_isCancelRequested = false;
    m_limit.setBytesPerSecond(m_limit.bytesPerSecond(), m_clock.elapsed());
    scheduleSlice();
}

void BackupEngine::runSlice()
{
    const bool hasMore = stepForAWhile();
    emit progressChanged(m_task->progress());
    if (!hasMore) {
        endTask();
    }
    scheduleSlice();
}

bool BackupEngine::stepForAWhile()
{
    QElapsedTimer timer;
    timer.start();
    bool hasMore = true;
    do {
        if (!m_isCancelRequested && m_limit.delay(m_clock.elapsed()) > 0) {
            break;
        }
        hasMore = stepOnce();
    } while (hasMore && timer.elapsed() < sliceMilliseconds);
    return hasMore;
}

bool BackupEngine::stepOnce()
{
    if (m_isCancelRequested && !m_summary.cancelled) {
        m_summary.cancelled = true;
        m_task->cancel();
    }
    return m_task->step();
}

void BackupEngine::endTask()
{
    m_task = std::move(m_nextTask);
    if (m_summary.cancelled) {
        m_task.reset();
    }
    if (!m_task) {
        emit finished(m_summary);
    }
}

void BackupEngine::scheduleSlice()
{
    if (isRunning()) {
        const qint64 pause = m_isCancelRequested ? 0 : m_limit.delay(m_clock.elapsed());
        m_timer.start(int(qMin(pause, longestPause)));
    }
}
