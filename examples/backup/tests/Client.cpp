// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Client.h"

#include <QCoreApplication>
#include <QFile>

Client::Client(const Sandbox &sandbox)
    : input(sandbox.job.password.toUtf8() + '\n')
{
    // None of these may be needed.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("HOME"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
}

Client::~Client()
{
    process.kill();
    process.waitForFinished();
}

void Client::start(const QStringList &arguments)
{
    process.start(clientProgram(), arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForStarted();
}

int Client::wait()
{
    process.waitForFinished(120000);
    output = process.readAllStandardOutput();
    errors = process.readAllStandardError();
    const bool hasExited
        = process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
    return hasExited ? process.exitCode() : -1;
}

int Client::run(const QStringList &arguments)
{
    start(arguments);
    return wait();
}

qint64 Client::restic() const
{
    const QByteArray id = QByteArray::number(process.processId());
    return readFile("/proc/" + id + "/task/" + id + "/children").trimmed().toLongLong();
}

QString clientProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../backup");
}

QStringList backUpArguments(const Sandbox &sandbox, const QStringList &more)
{
    return QStringList{QStringLiteral("--source"), sandbox.job.source, QStringLiteral("--target"),
                       sandbox.job.repository, QStringLiteral("--run")}
    + more;
}
