// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RESTICTESTTOOLS_H
#define RESTICTESTTOOLS_H

#include "BackupRun.h"

#include <QProcess>
#include <QTemporaryDir>

/// What a BackupRun said until it finished.
struct Record
{
    Outcome outcome;
    QList<BackupRun::Question> questions;
    QStringList problems;
    QStringList progress;
    bool hasFinished = false;
};

/// A source, a repository, and a cache and settings for restic that are not the user's: everything
/// below one temporary folder. Relative paths are bytes, since some of the names tested are no
/// text.
class Sandbox
{
public:
    Sandbox();
    ~Sandbox();

    BackupJob job;

    QByteArray path(const QByteArray &relative = QByteArray()) const;
    QByteArray source(const QByteArray &relative = QByteArray()) const;
    QByteArray repository() const;
    /// A file below the source, with the folders above it.
    void write(const QByteArray &relative, const QByteArray &content) const;
    /// Files that take restic about this many thousandths of a second.
    void fillSource(int files, int bytesEach) const;

    /// All questions are answered with yes or no; runs until finished.
    Record backUp(bool yes = true) const;
    Record verify(bool yes = true) const;
    Record restore(const QString &folder, const QString &snapshot = QStringLiteral("latest")) const;

    /// Runs the real restic itself on the repository; its standard output.
    QByteArray restic(const QStringList &arguments, int *exitStatus = nullptr) const;
    /// Whether restic finds the repository without a fault, after removing stale locks.
    bool isSound() const;
    int snapshotCount() const;
    /// Whether there is a lock in its place; restic writes it under another name first.
    bool isLocked() const;
    /// As a verification that was killed does, on more data than is verified in a moment.
    void leaveExclusiveLock() const;
    /// Makes this the program that is run instead of restic.
    void useProgram(const QString &program) const;

private:
    QTemporaryDir m_folder;
};

/// Collects what a run says; answers its questions at once, with yes or no.
void record(BackupRun *run, Record *record, bool yes);
Record recordOf(BackupRun *run, bool yes = true);

/// Where the real restic is; empty if there is none, or one that is too old.
QString realRestic();
/// The program that fakes restic's output.
QString fakeRestic();

/// Arguments and environment of all processes.
QByteArray allProcesses();
QByteArray readFile(const QByteArray &path);
void writeFile(const QByteArray &path, const QByteArray &content);
/// Flips a byte in the middle of the largest file of a kind: "data" for packs, "index".
void damage(const QByteArray &repository, const QByteArray &kind = "data");
/// Makes files, folders and links with names, modes and times of every kind.
void makeOddTree(const QByteArray &folder);
/// What there is below a folder: names, types, modes, times, link targets, contents.
QByteArray description(const QByteArray &folder);

#define NEEDS_RESTIC()                                                    \
    if (realRestic().isEmpty()) {                                         \
        QSKIP("There is no restic that is new enough (package restic)."); \
    }

#endif
