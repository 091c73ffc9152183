// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RESTICRUN_H
#define RESTICRUN_H

#include "JobStore.h"
#include "Outcome.h"

#include <QJsonDocument>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QVersionNumber>

/// The program that does the work: where it is, and how it is spoken to.
namespace Restic {

/// What the setting "restic" in the file of the jobs says, else the one in PATH.
QString program();

/// Older ones call a restore done that has left files out.
QVersionNumber minimumVersion();
/// Of what "restic version" prints.
bool isNewEnough(const QString &version);

/// This process's environment, without what would beat the password from the standard input.
QProcessEnvironment environment(const QString &repository);

/// What each command but "version" begins with.
QStringList globalOptions();
/// What the user typed, with "~" for the home folder.
QString address(const QString &typed);
/// A file to be locked by who makes this repository.
QString creationLock(const QString &repository);
/// What a backup is called with; a limit of 0 is none.
QStringList backUpArguments(const BackupJob &job, int kibibytesPerSecond);
/// An absolute path without links, which restic would store in place of what they lead to.
QString sourcePath(const QString &typed);

} // namespace Restic

/// One run of restic at a time: the password goes to its standard input, messages come from its
/// standard output. The program's version is looked at first.
class ResticRun : public QObject
{
    Q_OBJECT

public:
    explicit ResticRun(QObject *parent = nullptr);
    /// Kills what is still running.
    ~ResticRun() override;

    /// Writes the standard output into a file instead of announcing it, for long lists.
    void setOutputFile(const QString &path);
    /// finished() always follows, never from within this call. Not while a run is under way. With
    /// "--json" among the arguments what is no JSON is counted, else it is announced.
    void start(const QString &repository, const QString &password, const QStringList &arguments);

public slots:
    /// Asks restic to end, and kills it if it does not.
    void cancel();

signals:
    /// One line: an object or an array.
    void message(const QJsonDocument &message);
    /// A line that is no JSON, where none was asked for.
    void textLine(const QString &line);
    /// A file that could not be read; the run goes on.
    void problemFound(const QString &text);
    void finished(const Outcome &outcome);

private:
    void launch();
    void readChannel(QProcess::ProcessChannel channel);
    void readLine(const QByteArray &line);
    void readErrorLine(const QByteArray &line);
    void end();
    Outcome::Kind kindOfEnd() const;
    void finish(Outcome::Kind kind);

    QProcess *m_process = nullptr;
    QString m_program;
    QString m_repository;
    QString m_password;
    QStringList m_arguments;
    QString m_outputFile;
    QStringList m_lastErrors;
    int m_skippedLines = 0;
    bool m_asksVersion = false;
    bool m_isCancelled = false;
};

#endif
