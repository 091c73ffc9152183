// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef SNAPSHOT_H
#define SNAPSHOT_H

#include <QByteArray>
#include <QDateTime>
#include <QJsonDocument>
#include <QList>
#include <QString>
#include <QStringList>

/// A state of some folders as it was stored once.
struct Snapshot
{
    QString id;
    QString shortId;
    QDateTime time;
    QString host;
    QStringList paths;

    /// From the message of "snapshots --json", oldest first; what is none is left out.
    static QList<Snapshot> allIn(const QJsonDocument &message);
};

/// A file, folder or link in a snapshot.
struct SnapshotFile
{
    /// Names that are not UTF-8 show replacement characters; they are restored as they were.
    QString path;
    /// "file", "dir", "symlink", ...
    QString type;
    /// Such as "drwxr-xr-x".
    QString permissions;
    qint64 size = 0;
    QDateTime modified;

    /// From a line of "ls --json"; false if it tells of no file.
    static bool read(const QByteArray &line, SnapshotFile *file);
};

#endif
