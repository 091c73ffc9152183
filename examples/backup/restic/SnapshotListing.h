// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef SNAPSHOTLISTING_H
#define SNAPSHOTLISTING_H

#include "JobStore.h"
#include "ResticRun.h"

#include <QDateTime>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

/// A state of some folders as it was stored once.
struct Snapshot
{
    QString id;
    QDateTime time;
    QString host;
    QStringList paths;

    /// From the message of "snapshots --json", oldest first; of one path only, if it is not empty.
    static QList<Snapshot> allIn(const QJsonDocument &message, const QString &path = QString());
};

/// A file, folder or link in a snapshot.
struct SnapshotFile
{
    /// Names that are not UTF-8 show replacement characters; they are restored as they were.
    QString path;
    /// "file", "dir", "symlink", ...
    QString type;
    int permissions = 0; ///< Such as 0755.
    qint64 size = 0;
    QDateTime modified;

    /// From a message of "ls --json"; false if it tells of no file.
    static bool read(const QJsonObject &object, SnapshotFile *file);
};

/// The files of a snapshot, page by page. restic writes all of them into a temporary file, at its
/// own speed; no more than a page is in memory.
class SnapshotListing : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotListing(QObject *parent = nullptr);

    /// Starts over: a page asked for before is of this snapshot. There are no files without an id.
    void open(const BackupJob &job, const QString &snapshot);
    /// pageRead() follows, never from within this call.
    void requestPage(int count);

signals:
    /// As many files as were asked for; fewer if they are the last ones.
    void pageRead(const QList<SnapshotFile> &files, bool completed);
    /// After the last page: files are missing, or may be.
    void failed(const Outcome &outcome);

private:
    void readOn();

    QTemporaryDir m_folder;
    QFile m_file;
    std::unique_ptr<ResticRun> m_run;
    QTimer m_timer;
    QByteArray m_unfinishedLine;
    /// The page, and one file more, which tells whether there is another page.
    QList<SnapshotFile> m_files;
    int m_pageSize = 0;
    bool m_isWritten = true;
    Outcome m_outcome;
};

#endif
