// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPTESTTOOLS_H
#define BACKUPTESTTOOLS_H

#include "BackupEngine.h"
#include "PosixFile.h"

#include <QHash>
#include <QList>
#include <QTemporaryDir>

/// Everything an engine said during one run.
struct Outcome
{
    BackupSummary summary;
    QList<BackupProblem> problems;
    QHash<QString, FileResult> files;
    QString refusal;
    bool hasFinished = false;

    bool hasProblem(const QString &path) const;
    QString problemText(const QString &path) const;
};

/// A source and a target folder below a temporary one. Relative paths are bytes, since some of the
/// names tested are no text.
class BackupFolders
{
public:
    BackupFolders();
    ~BackupFolders();

    BackupJob job;

    QByteArray root() const;
    QByteArray source(const QByteArray &relative = QByteArray()) const;
    QByteArray target(const QByteArray &relative = QByteArray()) const;
    QByteArray copy(const QByteArray &relative = QByteArray()) const;
    QByteArray manifest() const;

    /// Writes a file below the source, with the folders above it.
    void write(const QByteArray &relative, const QByteArray &content) const;
    Outcome run() const;
    Outcome verify() const;

private:
    QTemporaryDir m_folder;
};

/// Waits for the end of a run that was, or was not, started.
Outcome outcomeOf(BackupEngine *engine, bool isStarted, const QString &refusal);

void writeFile(const QByteArray &path, const QByteArray &content);
QByteArray readFile(const QByteArray &path);
bool exists(const QByteArray &path);
FileState stateOf(const QByteArray &path);
quint64 inodeOf(const QByteArray &path);
void setTime(const QByteArray &path, qint64 seconds, qint64 nanoseconds);
QByteArray linkText(const QByteArray &path);
/// The names in a folder, sorted.
QList<QByteArray> namesIn(const QByteArray &path);
void removeTree(const QByteArray &path);
bool isSuperuser();
/// Runs a program, feeding it the input; returns its exit status, or -1 if it did not run.
int runProgram(const QString &program, const QStringList &arguments,
               const QByteArray &workingFolder = QByteArray("/"), QByteArray *output = nullptr);
/// Whether the real sha256sum finds every line of the target's manifest true.
bool manifestIsAccepted(const BackupFolders &folders);

#endif
