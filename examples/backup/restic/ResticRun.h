// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RESTICRUN_H
#define RESTICRUN_H

#include "JobStore.h"
#include "Outcome.h"

#include <QJsonDocument>
#include <QObject>
#include <QProcess>
#include <QStringList>

/// How the program that does the work is spoken to.
namespace Restic {

/// Of what "restic version" prints. Older ones call a restore done that has left files out.
bool isNewEnough(const QString &version);
/// Null if there is none; a line that makes no sense is counted.
QJsonDocument messageIn(const QByteArray &line, int *skippedLines);
/// This process's environment, without what would beat the password from the standard input.
QProcessEnvironment environment(const QString &repository);
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

    /// finished() always follows, never from within this call. Not while a run is under way. With
    /// an output file the standard output goes there.
    void start(const BackupJob &job, const QStringList &arguments,
               const QString &outputFile = QString());

public slots:
    /// Asks restic to end, and kills it if it does not.
    void cancel();

signals:
    /// One line: an object or an array.
    void message(const QJsonDocument &message);
    /// A file that could not be read; the run goes on.
    void problemFound(const QString &text);
    void finished(const Outcome &outcome);

private:
    void launch();
    void read();
    void readLine(const QByteArray &line);
    void readErrorLine(const QByteArray &line);
    void end();
    Outcome::Kind kindOfEnd() const;
    void finish(Outcome::Kind kind);

    QProcess *m_process = nullptr;
    BackupJob m_job;
    QStringList m_arguments;
    QString m_outputFile;
    QStringList m_lastErrors;
    Outcome m_outcome;
    bool m_asksVersion = false;
    bool m_isCancelled = false;
};

#endif
