// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticRun.h"

#include "Restic.h"

#include <QJsonObject>
#include <QTimer>

namespace {

// For restic to remove its lock, maybe over a slow line.
const int patienceMilliseconds = 10000;
const int keptErrors = 20;
const int longestError = 2000;

/// Programs that were new enough. Others are asked again: the user may install another version.
QStringList *goodPrograms()
{
    static QStringList programs;
    return &programs;
}

// Of a file that could not be read. Versions before 0.16 do not say why.
QString problemText(const QJsonObject &message)
{
    const QJsonObject error = message.value(QStringLiteral("error")).toObject();
    QString reason = error.value(QStringLiteral("message")).toString();
    if (reason.isEmpty()) {
        reason = ResticRun::tr("cannot be read (%1)")
                     .arg(error.value(QStringLiteral("Op")).toString());
    }
    return message.value(QStringLiteral("item")).toString() + QStringLiteral(": ") + reason;
}

} // namespace

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

void ResticRun::setOutputFile(const QString &path)
{
    m_outputFile = path;
}

bool ResticRun::isRunning() const
{
    return m_isRunning;
}

void ResticRun::start(const QString &repository, const QString &password,
                      const QStringList &arguments)
{
    if (m_isRunning) {
        return;
    }
    m_program = Restic::program();
    m_repository = repository;
    m_password = password;
    m_arguments = arguments;
    m_lastErrors.clear();
    m_skippedLines = 0;
    m_isRunning = true;
    m_isCancelled = false;
    m_asksVersion = !goodPrograms()->contains(m_program);
    QTimer::singleShot(0, this, m_asksVersion ? &ResticRun::askVersion : &ResticRun::work);
}

void ResticRun::cancel()
{
    m_isCancelled = m_isRunning;
    if (m_process) {
        m_process->terminate();
        QTimer::singleShot(patienceMilliseconds, m_process, &QProcess::kill);
    }
}

void ResticRun::askVersion()
{
    launch({QStringLiteral("version")});
}

void ResticRun::work()
{
    if (m_password.isEmpty()) {
        Outcome outcome;
        outcome.kind = Outcome::NoPassword;
        finish(outcome);
        return;
    }
    launch(m_arguments);
    m_process->write(m_password.toUtf8() + '\n');
    m_process->closeWriteChannel();
}

void ResticRun::launch(const QStringList &arguments)
{
    m_process = new QProcess(this);
    m_process->setProcessEnvironment(Restic::environment(m_repository));
    if (!m_outputFile.isEmpty() && !m_asksVersion) {
        m_process->setStandardOutputFile(m_outputFile);
    }
    connect(m_process, &QProcess::readyReadStandardOutput, this, &ResticRun::readOutput);
    connect(m_process, &QProcess::readyReadStandardError, this, &ResticRun::readErrors);
    connect(m_process, &QProcess::stateChanged, this, [this](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning) {
            QTimer::singleShot(0, this, &ResticRun::end);
        }
    });
    m_process->start(m_program, arguments);
}

void ResticRun::readOutput()
{
    if (m_asksVersion) {
        return;
    }
    const QList<QByteArray> lines = m_output.add(m_process->readAllStandardOutput());
    for (const QByteArray &line : lines) {
        readLine(line);
    }
}

void ResticRun::readLine(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isNull()) {
        emit message(document);
    } else if (!m_arguments.contains(QStringLiteral("--json"))) {
        emit textLine(QString::fromUtf8(line));
    } else if (!line.trimmed().isEmpty() && !line.startsWith("reading repository password")) {
        ++m_skippedLines;
    }
}

void ResticRun::readErrors()
{
    const QList<QByteArray> lines = m_errors.add(m_process->readAllStandardError());
    for (const QByteArray &line : lines) {
        readErrorLine(line);
    }
}

void ResticRun::readErrorLine(const QByteArray &line)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    QString text = QString::fromUtf8(line);
    if (message.contains(QStringLiteral("error"))) {
        text = problemText(message);
        emit problemFound(text);
    } else if (message.contains(QStringLiteral("message"))) {
        text = message.value(QStringLiteral("message")).toString();
    }
    text = text.trimmed().left(longestError);
    if (text.isEmpty()) {
        return;
    }
    m_lastErrors.append(text);
    if (m_lastErrors.size() > keptErrors) {
        m_lastErrors.removeFirst();
    }
}

void ResticRun::end()
{
    if (m_asksVersion) {
        endVersion();
        return;
    }
    readOutput();
    readErrors();
    const QByteArray rest = m_output.takeRest();
    if (!rest.isEmpty()) {
        readLine(rest);
    }
    readErrorLine(m_errors.takeRest());
    finish(exitOutcome());
}

void ResticRun::endVersion()
{
    const QString output = QString::fromUtf8(m_process->readAllStandardOutput());
    const QVersionNumber version = Restic::versionIn(output);
    const bool isMissing = m_process->error() == QProcess::FailedToStart;
    if (m_isCancelled || isMissing || version < Restic::minimumVersion()) {
        Outcome outcome = exitOutcome();
        if (!m_isCancelled && !isMissing) {
            outcome.kind = Outcome::TooOld;
            outcome.details = output.trimmed();
        }
        finish(outcome);
        return;
    }
    goodPrograms()->append(m_program);
    m_asksVersion = false;
    m_process->deleteLater();
    work();
}

Outcome ResticRun::exitOutcome()
{
    Outcome outcome = Outcome::ofExit(m_process->exitCode(), m_lastErrors);
    if (m_isCancelled) {
        outcome.kind = Outcome::Cancelled;
    } else if (m_process->error() == QProcess::FailedToStart) {
        outcome.kind = Outcome::Missing;
    } else if (m_process->exitStatus() == QProcess::CrashExit) {
        outcome.kind = Outcome::Crashed;
    }
    return outcome;
}

void ResticRun::finish(const Outcome &outcome)
{
    Outcome result = outcome;
    result.skippedLines = m_skippedLines;
    if (m_process) {
        m_process->deleteLater();
        m_process = nullptr;
    }
    m_password.clear();
    m_isRunning = false;
    emit finished(result);
}
