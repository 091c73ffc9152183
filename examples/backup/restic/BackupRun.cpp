// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupRun.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>
#include <QTimer>

namespace {

QStringList backUpArguments(const BackupJob &job)
{
    const QString source = Restic::sourcePath(job.source);
    QStringList result = {"backup", "--json"};
    if (job.uploadLimit > 0) {
        result += {"--limit-upload", QString::number(job.uploadLimit)};
    }
    // Inside the source it would grow by itself with each run; around it, all would be excluded.
    QString repository = Restic::sourcePath(job.repository);
    if (repository != source
        && repository.startsWith(source.endsWith('/') ? source : source + '/')) {
        static const QRegularExpression special("([*?\\[\\\\])");
        result += {"--exclude", repository.replace(special, "\\\\1")};
    }
    return result << "--" << source;
}

qint64 number(const QJsonObject &object, const char *key)
{
    return static_cast<qint64>(object.value(QLatin1String(key)).toDouble());
}

QString countText(const QJsonObject &object, const char *key)
{
    return QLocale().toString(number(object, key));
}

} // namespace

QString BackupProgress::text() const
{
    return fraction < 0 ? activity : QStringLiteral("%1 %  ").arg(int(fraction * 100)) + activity;
}

BackupRun::BackupRun(QObject *parent)
    : QObject(parent)
{
    connect(&m_run, &ResticRun::message, this, &BackupRun::readMessage);
    connect(&m_run, &ResticRun::problemFound, this, &BackupRun::problemFound);
    connect(&m_run, &ResticRun::finished, this, &BackupRun::endStep);
}

// restic would refuse what is refused here, or not in words that help.
bool BackupRun::backUp(const BackupJob &job)
{
    QList<QStringList> steps = {backUpArguments(job)};
    if (job.verify) {
        steps.append(QStringList{"check", "--read-data"});
    }
    const bool isThere = QFileInfo::exists(Restic::sourcePath(job.source));
    return begin(job, steps, isThere ? Outcome::Done : Outcome::NoSource);
}

bool BackupRun::verify(const BackupJob &job)
{
    return begin(job, {{"check", "--read-data"}}, Outcome::Done);
}

bool BackupRun::restore(const BackupJob &job, const QString &snapshot, const QString &folder)
{
    const QDir target = QDir(folder).absolutePath();
    const bool isEmpty
        = target.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return begin(job, {{"restore", "--target", target.path(), "--", snapshot}},
                 isEmpty ? Outcome::Done : Outcome::NotEmpty);
}

bool BackupRun::begin(const BackupJob &job, const QList<QStringList> &steps, Outcome::Kind refusal)
{
    if (isRunning()) {
        return false;
    }
    m_job = job;
    m_steps = steps;
    m_asked.clear();
    m_isCancelled = false;
    m_progress = BackupProgress();
    m_outcome = Outcome();
    m_unanswered.kind = job.repository.trimmed().isEmpty() ? Outcome::NoRepository : refusal;
    if (m_unanswered.isGood()) {
        startStep();
    } else {
        QTimer::singleShot(0, this, [this] {
            answer(false);
        });
    }
    return true;
}

QString BackupRun::command() const
{
    return m_steps.constFirst().constFirst();
}

void BackupRun::startStep()
{
    if (m_steps.isEmpty()) {
        m_job.password.clear();
        emit finished(m_outcome);
        return;
    }
    const QHash<QString, QString> activities
        = {{"check", tr("Verifying")}, {"restore", tr("Restoring")}};
    m_progress.fraction = -1;
    m_progress.activity = activities.value(command(), tr("Preparing"));
    emit progressChanged(m_progress);
    m_run.start(m_job, m_steps.constFirst());
    if (m_isCancelled && command() != "unlock") {
        m_run.cancel();
    }
}

void BackupRun::readMessage(const QJsonDocument &message)
{
    const QJsonObject object = message.object();
    const QString type = object.value("message_type").toString();
    if (type == "status") {
        m_progress.bytesDone = number(object, "bytes_done");
        m_progress.fraction = object.value("percent_done").toDouble();
        m_progress.activity
            = tr("Backing up: %1 of %2 files, %3 of %4  %5")
                  .arg(countText(object, "files_done"), countText(object, "total_files"),
                       sizeText(m_progress.bytesDone), sizeText(number(object, "total_bytes")),
                       object.value("current_files").toArray().first().toString());
        emit progressChanged(m_progress);
    } else if (type == "summary") {
        m_progress.bytesDone = number(object, "total_bytes_processed");
        m_outcome.snapshot = object.value("snapshot_id").toString();
        m_outcome.achieved
            += tr("Snapshot %1: %2 new, %3 changed, %4 unchanged files; %5 read, %6 added.")
                   .arg(m_outcome.snapshot.left(8), countText(object, "files_new"),
                        countText(object, "files_changed"), countText(object, "files_unmodified"),
                        sizeText(m_progress.bytesDone), sizeText(number(object, "data_added")));
    }
}

void BackupRun::endStep(const Outcome &outcome)
{
    m_creation.reset();
    m_outcome.skippedLines += outcome.skippedLines;
    const bool isMadeByOther = command() == "init" && outcome.details.contains("already");
    if (outcome.isGood() && command() == "check") {
        m_outcome.achieved += tr("All of the repository was read back: no errors.");
    } else if (outcome.isGood() && command() == "restore") {
        m_outcome.achieved += tr("Restored below %1.").arg(m_steps.constFirst().at(2));
    } else if (outcome.kind == Outcome::Incomplete) {
        m_outcome.kind = outcome.kind;
    } else if (!outcome.isGood() && command() != "unlock" && !isMadeByOther) {
        askOrEnd(outcome);
        return;
    }
    m_steps.removeFirst();
    startStep();
}

void BackupRun::askOrEnd(const Outcome &outcome)
{
    const bool isMissing = outcome.kind == Outcome::NoRepository && command() == "backup";
    const Question question = isMissing ? CreateRepository : RemoveStaleLock;
    if ((isMissing || outcome.kind == Outcome::Locked) && !m_asked.contains(question)) {
        m_asked.append(question);
        m_unanswered = outcome;
        emit asked(question);
    } else {
        end(outcome);
    }
}

void BackupRun::answer(bool yes)
{
    const Outcome unanswered = m_unanswered;
    m_unanswered = Outcome();
    if (!yes && !unanswered.isGood()) {
        end(unanswered);
    } else if (unanswered.kind == Outcome::Locked) {
        m_steps.prepend(QStringList("unlock"));
        startStep();
    } else if (!unanswered.isGood()) {
        create();
    }
}

// restic itself lets two of them make one repository, which is then of no use.
void BackupRun::create()
{
    const QString name
        = QString("tessaline-%1.lock").arg(qHash(Restic::sourcePath(m_job.repository)));
    m_creation.reset(new QLockFile(QDir::temp().filePath(name)));
    m_creation->setStaleLockTime(0);
    // Where no lock can be made at all, waiting would not help.
    if (m_isCancelled || m_creation->tryLock(0)
        || m_creation->error() != QLockFile::LockFailedError) {
        m_steps.prepend(QStringList("init"));
        startStep();
    } else {
        QTimer::singleShot(200, this, &BackupRun::create);
    }
}

void BackupRun::cancel()
{
    m_isCancelled = true;
    m_run.cancel();
    if (!m_unanswered.isGood()) {
        m_unanswered = Outcome();
        m_unanswered.kind = Outcome::Cancelled;
        answer(false);
    }
}

void BackupRun::end(const Outcome &outcome)
{
    m_outcome.kind = outcome.kind;
    m_outcome.details = outcome.details;
    m_steps.clear();
    if (outcome.kind == Outcome::Cancelled || outcome.kind == Outcome::Crashed) {
        // Our own restic is gone, but its lock may have stayed.
        m_steps.append(QStringList("unlock"));
    }
    startStep();
}
