// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupRun.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QLocale>
#include <QRegularExpression>
#include <QTimer>

namespace {

const int waitMilliseconds = 200;

} // namespace

void BackupProgress::read(const QJsonObject &status)
{
    const auto number = [&status](const char *key) {
        return static_cast<qint64>(status.value(QLatin1String(key)).toDouble());
    };
    fraction = status.value("percent_done").toDouble();
    bytesDone = number("bytes_done");
    bytesTotal = number("total_bytes");
    filesDone = number("files_done");
    filesTotal = number("total_files");
    currentFile = status.value("current_files").toArray().first().toString();
}

QString BackupProgress::text() const
{
    const QLocale locale;
    const QString percent = fraction < 0 ? QString() : locale.toString(int(fraction * 100));
    switch (phase) {
    case BackingUp:
        return tr("Backing up: %1 of %2 files, %3 of %4  %5")
            .arg(locale.toString(filesDone), locale.toString(filesTotal), sizeText(bytesDone),
                 sizeText(bytesTotal), currentFile);
    case Verifying:
        return percent.isEmpty() ? tr("Verifying") : tr("Verifying: %1 %").arg(percent);
    case Restoring:
        return percent.isEmpty() ? tr("Restoring") : tr("Restoring: %1 %").arg(percent);
    case Preparing:
        break;
    }
    return tr("Preparing");
}

BackupRun::BackupRun(QObject *parent)
    : QObject(parent)
{
    connect(&m_run, &ResticRun::message, this, &BackupRun::readMessage);
    connect(&m_run, &ResticRun::textLine, this, &BackupRun::readText);
    connect(&m_run, &ResticRun::problemFound, this, &BackupRun::problemFound);
    connect(&m_run, &ResticRun::finished, this, &BackupRun::endStep);
}

bool BackupRun::backUp(const BackupJob &job)
{
    return begin(job, BackUp);
}

bool BackupRun::verify(const BackupJob &job)
{
    return begin(job, Verify);
}

bool BackupRun::restore(const BackupJob &job, const QString &snapshot, const QString &folder)
{
    if (!isRunning()) {
        m_snapshot = snapshot;
        m_folder = QDir(Restic::address(folder)).absolutePath();
    }
    return begin(job, Restore);
}

bool BackupRun::begin(const BackupJob &job, Step step)
{
    if (isRunning()) {
        return false;
    }
    m_job = job;
    m_asked.clear();
    m_waitsForAnswer = false;
    m_isCancelled = false;
    m_progress = BackupProgress();
    m_outcome = Outcome();
    m_step = step;
    m_outcome.kind = refusal();
    if (m_outcome.isGood()) {
        startStep(step);
    } else {
        QTimer::singleShot(0, this, &BackupRun::finish);
    }
    return true;
}

// What restic would not refuse, or not in words that help.
Outcome::Kind BackupRun::refusal() const
{
    const QDir::Filters anything
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (m_job.repository.trimmed().isEmpty()) {
        return Outcome::NoRepository;
    }
    if (m_step == BackUp && !QFileInfo::exists(Restic::sourcePath(m_job.source))) {
        return Outcome::NoSource;
    }
    if (m_step == Restore && !QDir(m_folder).isEmpty(anything)) {
        return Outcome::NotEmpty;
    }
    return Outcome::Done;
}

void BackupRun::startStep(Step step)
{
    m_step = step;
    m_progress.phase = step == BackUp ? BackupProgress::BackingUp
        : step == Verify              ? BackupProgress::Verifying
        : step == Restore             ? BackupProgress::Restoring
                                      : BackupProgress::Preparing;
    m_progress.fraction = -1;
    emit progressChanged(m_progress);
    m_run.start(m_job.repository, m_job.password, arguments());
}

QStringList BackupRun::arguments() const
{
    switch (m_step) {
    case BackUp:
        return Restic::backUpArguments(m_job, m_uploadLimit);
    case Verify:
        return {"check", "--read-data"};
    case Restore:
        return {"restore", "--target", m_folder, "--", m_snapshot};
    case Create:
        return {"init"};
    case Unlock:
    case TidyUp:
        return {"unlock"};
    case Nothing:
        break;
    }
    return QStringList();
}

void BackupRun::readMessage(const QJsonDocument &message)
{
    const QJsonObject object = message.object();
    const QString type = object.value("message_type").toString();
    if (type == "status") {
        m_progress.read(object);
        emit progressChanged(m_progress);
    } else if (type == "summary") {
        m_outcome.readSummary(object);
        m_progress.bytesDone = m_outcome.bytesRead;
    }
}

// Such as "[0:07] 42.00%  21 / 50 packs"; verifying counts other things before the packs.
void BackupRun::readText(const QString &line)
{
    static const QRegularExpression pattern("([0-9.]+)%");
    const QRegularExpressionMatch match = pattern.match(line);
    if (match.hasMatch() && (m_step == Restore || line.contains("packs"))) {
        m_progress.fraction = match.captured(1).toDouble() / 100;
        emit progressChanged(m_progress);
    }
}

void BackupRun::endStep(const Outcome &outcome)
{
    m_outcome.skippedLines += outcome.skippedLines;
    if (m_step == TidyUp) {
        finish();
    } else if (m_step == Create || m_step == Unlock) {
        m_creation.reset();
        const bool isThere = m_step == Create && outcome.details.contains("already");
        outcome.isGood() || isThere ? startStep(m_interrupted) : endAs(outcome);
    } else if (m_step == Verify && outcome.isGood()) {
        m_outcome.wasVerified = true;
        finish();
    } else if (m_step == BackUp && goesOn(outcome)) {
        m_outcome.kind = outcome.kind;
        m_outcome.details = outcome.details;
        m_asked.clear();
        startStep(Verify);
    } else if (!asks(outcome)) {
        endAs(outcome);
    }
}

bool BackupRun::goesOn(const Outcome &outcome) const
{
    const bool hasSnapshot = outcome.isGood() || outcome.kind == Outcome::Incomplete;
    return hasSnapshot && m_job.verify && !m_isCancelled;
}

bool BackupRun::asks(const Outcome &outcome)
{
    const bool isMissing = outcome.kind == Outcome::NoRepository && m_step == BackUp;
    const Question question = isMissing ? CreateRepository : RemoveStaleLock;
    if ((!isMissing && outcome.kind != Outcome::Locked) || m_asked.contains(question)) {
        return false;
    }
    m_asked.append(question);
    m_unanswered = outcome;
    m_interrupted = m_step;
    m_waitsForAnswer = true;
    emit asked(question);
    return true;
}

void BackupRun::answer(bool yes)
{
    if (!m_waitsForAnswer) {
        return;
    }
    m_waitsForAnswer = false;
    if (!yes) {
        endAs(m_unanswered);
    } else if (m_asked.constLast() == RemoveStaleLock) {
        startStep(Unlock);
    } else {
        m_creation.reset(new QLockFile(Restic::creationLock(m_job.repository)));
        m_creation->setStaleLockTime(0);
        create();
    }
}

// restic itself lets two of them make one repository, which is then of no use.
void BackupRun::create()
{
    if (m_isCancelled) {
        m_outcome.kind = Outcome::Cancelled;
        finish();
    } else if (m_creation->tryLock(0)) {
        startStep(Create);
    } else {
        QTimer::singleShot(waitMilliseconds, this, &BackupRun::create);
    }
}

void BackupRun::cancel()
{
    m_isCancelled = true;
    if (m_waitsForAnswer) {
        m_waitsForAnswer = false;
        m_outcome.kind = Outcome::Cancelled;
        finish();
    } else {
        m_run.cancel();
    }
}

void BackupRun::endAs(const Outcome &outcome)
{
    m_outcome.kind = outcome.kind;
    m_outcome.details = outcome.details;
    if (m_step == Restore && outcome.isGood()) {
        m_outcome.restoredInto = m_folder;
    }
    // Our own restic is gone, but its lock may have stayed.
    const bool wasStopped = outcome.kind == Outcome::Cancelled || outcome.kind == Outcome::Crashed;
    if (wasStopped && (m_step == BackUp || m_step == Verify || m_step == Restore)) {
        startStep(TidyUp);
    } else {
        finish();
    }
}

void BackupRun::finish()
{
    m_creation.reset();
    m_step = Nothing;
    m_job.password.clear();
    emit finished(m_outcome);
}
