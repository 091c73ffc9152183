// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef POSIXFILE_H
#define POSIXFILE_H

#include <QByteArray>
#include <QIODevice>
#include <QString>

class QFile;

/// What a directory entry is and what a backup keeps of it.
struct FileState
{
    enum Kind { Absent, Regular, Folder, Link, Special };
    Kind kind = Absent;
    qint64 size = 0; ///< Bytes.
    qint64 seconds = 0; ///< Modification time since 1970.
    qint64 nanoseconds = 0;
    /// Read, write, execute and sticky bits. The set-user and set-group bits are left out on
    /// purpose: owners are not copied, and such a file must not act for whoever runs the backup.
    unsigned permissions = 0;

    bool hasSameTime(const FileState &other) const;
    /// True if both are regular files of one size and one modification time.
    bool hasSameContent(const FileState &other) const;
};

/// The few things Qt has no call for. File names are bytes, since a Linux file name need not be
/// valid text. The functions return 0 or the system's error number; none of them follows a
/// symbolic link in the last part of the path unless it says so.
namespace PosixFile {

int state(const QByteArray &path, FileState *result);
int state(int descriptor, FileState *result);

/// Opens without waiting, so that a pipe in the place of a file does not block.
int openForReading(const QByteArray &path, QFile *file,
                   QIODevice::OpenMode mode = QIODevice::ReadOnly);

/// Makes a folder that only its owner can enter.
int makeFolder(const QByteArray &path);
int makeLink(const QByteArray &text, const QByteArray &path);
int readLink(const QByteArray &path, QByteArray *text);

int rename(const QByteArray &from, const QByteArray &to);
int remove(const QByteArray &path, FileState::Kind kind);

/// Follows symbolic links: only for paths known to be none.
int setPermissions(const QByteArray &path, unsigned permissions);
int setTime(const QByteArray &path, const FileState &state);

/// Follows symbolic links, all of them; empty if the path does not exist.
QByteArray canonicalPath(const QByteArray &path);
bool isWritableFolder(const QByteArray &path);
bool isReadableFolder(const QByteArray &path);

/// Starts writing the `length` bytes before `end` to disk and waits for those written long before,
/// so that the file's final synchronisation never has much left to do.
void writeBehind(int descriptor, qint64 end, qint64 length);

QString errorText(int error);
/// The name as text: control characters and bytes that are not UTF-8 appear as \xNN.
QString displayName(const QByteArray &name);

} // namespace PosixFile

/// Lists a folder name by name, without "." and "..". Not copyable.
class FolderReader
{
public:
    explicit FolderReader(const QByteArray &path);
    ~FolderReader();
    FolderReader(const FolderReader &) = delete;
    FolderReader &operator=(const FolderReader &) = delete;

    /// Stores the next name; returns false at the end and on an error.
    bool next(QByteArray *name);
    /// 0 or the system's error number.
    int error() const
    {
        return m_error;
    }

private:
    void *m_stream = nullptr;
    int m_error = 0;
};

#endif
