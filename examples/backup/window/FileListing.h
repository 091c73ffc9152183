// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILELISTING_H
#define FILELISTING_H

#include "BackupJob.h"

#include <QDateTime>
#include <QVector>

#include <memory>

class QDirIterator;

/// A file of a backup's source, as the list shows it.
struct ListedFile
{
    /// How the copy in the target compares. Folders and special files are not listed.
    enum State { New, Changed, Saved };

    QString name; ///< Relative to the source.
    QDateTime modified;
    qint64 size = 0; ///< Bytes.
    QString type; ///< The suffix, or what the file is if it has none.
    State state = New;
};

/// Reads a folder and those below it little by little, in the order in which the disk has them:
/// nothing is read before it is asked for.
class FileListing
{
public:
    FileListing();
    ~FileListing();

    /// Begins anew with the job's source. A folder that cannot be read is an empty one.
    void start(const BackupJob &job);

    /// Reads on for some milliseconds or until there are `wanted` files; appends them to `files`.
    /// Returns false once there are no more.
    bool read(QVector<ListedFile> *files, int wanted);

private:
    ListedFile describe() const;

    BackupJob m_job;
    std::unique_ptr<QDirIterator> m_iterator;
};

#endif
