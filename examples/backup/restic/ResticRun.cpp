// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticRun.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QSettings>
#include <QTimer>
#include <QVersionNumber>

namespace {

// A line that never ends must not fill the memory.
const qint64 longestLine = 16 * 1024 * 1024;

// With "~" for the home folder.
QString address(const QString &typed)
{
    const bool isAtHome = typed == "~" || typed.startsWith("~/");
    return isAtHome ? QDir::homePath() + typed.mid(1) : typed;
}

} // namespace

bool Restic::isNewEnough(const QString &version)
{
    const QVersionNumber number = QVersionNumber::fromString(version.section(' ', 1, 1));
    return version.startsWith("restic ") && number >= QVersionNumber(0, 14);
}

QProcessEnvironment Restic::environment(const QString &repository)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"RESTIC_PASSWORD", "RESTIC_PASSWORD_FILE", "RESTIC_PASSWORD_COMMAND",
                             "RESTIC_REPOSITORY_FILE"}) {
        result.remove(QLatin1String(name));
    }
    // Not as an argument: all users see those, and an address may have a server's password in it.
    result.insert("RESTIC_REPOSITORY", address(repository));
    result.insert("RESTIC_PROGRESS_FPS", "4");
    // Without a place for its cache, as at the start of a system, restic 0.18 does not work.
    if (!result.contains("HOME") && !result.contains("LOCALAPPDATA")
        && !result.contains("RESTIC_CACHE_DIR")) {
        result.insert("RESTIC_CACHE_DIR", QDir::temp().filePath("restic-cache"));
    }
    return result;
}

QJsonDocument Restic::messageIn(const QByteArray &line, int *skippedLines)
{
    QJsonDocument message = QJsonDocument::fromJson(line);
    const bool isOther = line.trimmed().isEmpty() || line.startsWith("reading repository password");
    *skippedLines += message.isNull() && !isOther ? 1 : 0;
    return message;
}

QString Restic::sourcePath(const QString &typed)
{
    const QFileInfo source(address(typed));
    return source.exists() ? source.canonicalFilePath() : source.absoluteFilePath();
}

ResticRun::ResticRun(QObject *parent)
    : QObject(parent)
{
}

ResticRun::~ResticRun()
{
    if (m_process) {
        m_process->disconnect(this);
        m_process->kill();
        m_process->waitForFinished();
    }
}

void ResticRun::start(const BackupJob &job, const QStringList &arguments, const QString &outputFile)
{
    m_job = job;
    m_arguments = arguments;
    m_outputFile = outputFile;
    m_outcome = Outcome();
    m_isCancelled = false;
    m_asksVersion = true;
    QTimer::singleShot(0, this, &ResticRun::launch);
}

void ResticRun::cancel()
{
    m_isCancelled = true;
    if (m_process) {
        m_process->terminate();
        // It removes its lock first, maybe over a slow line.
        QTimer::singleShot(10000, m_process, &QProcess::kill);
    }
}

void ResticRun::launch()
{
    if (m_isCancelled) {
        finish(Outcome::Cancelled);
        return;
    }
    m_lastErrors.clear();
    m_process = new QProcess(this);
    m_process->setProcessEnvironment(Restic::environment(m_job.repository));
    m_process->setStandardOutputFile(m_asksVersion ? QString() : m_outputFile);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &ResticRun::read);
    connect(m_process, &QProcess::readyReadStandardError, this, &ResticRun::read);
    const QSettings settings(JobStore::defaultFilePath(), QSettings::IniFormat);
    m_process->start(settings.value("restic", "restic").toString(),
                     m_asksVersion ? QStringList("version") : m_arguments);
    // After start(), which fails without a change of state if the program has no name.
    connect(m_process, &QProcess::stateChanged, this, [this](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning) {
            QTimer::singleShot(0, this, &ResticRun::end);
        }
    });
    if (m_process->state() == QProcess::NotRunning) {
        QTimer::singleShot(0, this, &ResticRun::end);
    } else if (!m_asksVersion) {
        m_process->write(m_job.password.toUtf8() + '\n');
    }
    m_process->closeWriteChannel();
}

void ResticRun::read()
{
    const bool isAtEnd = m_process->state() == QProcess::NotRunning;
    for (QProcess::ProcessChannel channel : {QProcess::StandardOutput, QProcess::StandardError}) {
        m_process->setReadChannel(channel);
        while (m_process->canReadLine() || (isAtEnd && m_process->bytesAvailable() > 0)
               || m_process->bytesAvailable() > longestLine) {
            const QByteArray line = m_process->readLine(longestLine).trimmed();
            channel == QProcess::StandardOutput ? readLine(line) : readErrorLine(line);
        }
    }
}

void ResticRun::readLine(const QByteArray &line)
{
    if (m_asksVersion) {
        m_lastErrors.append(QString::fromUtf8(line));
    } else if (m_arguments.contains("--json")) {
        const QJsonDocument document = Restic::messageIn(line, &m_outcome.skippedLines);
        if (!document.isNull()) {
            emit message(document);
        }
    }
}

void ResticRun::readErrorLine(const QByteArray &line)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    if (message.contains("error")) {
        // Versions before 0.16 say why in numbers of the system.
        const QJsonValue reason = message.value("error").toObject().value("message");
        emit problemFound(message.value("item").toString() + ": "
                          + reason.toString(tr("cannot be read")));
        return;
    }
    const QString text = message.value("message").toString(QString::fromUtf8(line));
    m_lastErrors = (m_lastErrors << text).mid(m_lastErrors.size() - 20);
}

void ResticRun::end()
{
    read();
    // The version was asked for, so restic itself is there.
    if (!m_asksVersion && m_process->error() == QProcess::FailedToStart) {
        m_lastErrors.append(m_process->errorString());
    }
    const Outcome::Kind kind = kindOfEnd();
    m_process->deleteLater();
    m_process = nullptr;
    const bool goesOn = m_asksVersion && kind == Outcome::Done;
    m_asksVersion = false;
    goesOn ? launch() : finish(kind);
}

Outcome::Kind ResticRun::kindOfEnd() const
{
    const QString errors = m_lastErrors.join(QLatin1Char('\n'));
    if (m_process->error() == QProcess::FailedToStart) {
        return m_asksVersion ? Outcome::Missing : Outcome::Failed;
    }
    if (m_process->exitStatus() == QProcess::CrashExit) {
        return m_isCancelled ? Outcome::Cancelled : Outcome::Crashed;
    }
    if (m_asksVersion) {
        return Restic::isNewEnough(errors) ? Outcome::Done : Outcome::TooOld;
    }
    // Some versions, 0.14 and 0.19 among them, end with 0 though what they list was cut off.
    const bool isCutOff = !m_outputFile.isEmpty() && m_process->exitCode() == 0
        && (errors.contains("JSON encode failed") || errors.contains("write failed"));
    const Outcome::Kind kind = Outcome::kindOf(isCutOff ? 1 : m_process->exitCode(), errors);
    return m_isCancelled && kind != Outcome::Done ? Outcome::Cancelled : kind;
}

void ResticRun::finish(Outcome::Kind kind)
{
    m_outcome.kind = kind;
    m_outcome.details = m_lastErrors.join(QLatin1Char('\n'));
    m_job.password.clear();
    emit finished(m_outcome);
}
