// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RESTICRUN_H
#define RESTICRUN_H

#include "Outcome.h"

#include <QJsonDocument>
#include <QObject>
#include <QProcess>
#include <QStringList>

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
