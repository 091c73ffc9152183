// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PosixFile.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const mode_t keptPermissions = S_IRWXU | S_IRWXG | S_IRWXO | S_ISVTX;

int errorOf(int result)
{
    return result == 0 ? 0 : errno;
}

FileState::Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode)) {
        return FileState::Regular;
    }
    if (S_ISDIR(mode)) {
        return FileState::Folder;
    }
    return S_ISLNK(mode) ? FileState::Link : FileState::Special;
}

FileState stateOf(const struct stat &status)
{
    FileState result;
    result.kind = kindOf(status.st_mode);
    result.size = status.st_size;
    result.seconds = status.st_mtim.tv_sec;
    result.nanoseconds = status.st_mtim.tv_nsec;
    result.permissions = status.st_mode & keptPermissions;
    return result;
}

bool isUtf8(const QByteArray &name)
{
    return QString::fromUtf8(name).toUtf8() == name;
}

} // namespace

bool FileState::hasSameTime(const FileState &other) const
{
    return seconds == other.seconds && nanoseconds == other.nanoseconds;
}

bool FileState::hasSameContent(const FileState &other) const
{
    return kind == Regular && other.kind == Regular && size == other.size && hasSameTime(other);
}

int PosixFile::state(const QByteArray &path, FileState *result)
{
    struct stat status;
    const int error = errorOf(::lstat(path.constData(), &status));
    *result = error ? FileState() : stateOf(status);
    return error;
}

int PosixFile::state(int descriptor, FileState *result)
{
    struct stat status;
    const int error = errorOf(::fstat(descriptor, &status));
    *result = error ? FileState() : stateOf(status);
    return error;
}

int PosixFile::openForReading(const QByteArray &path, QFile *file, QIODevice::OpenMode mode)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) {
        return errno;
    }
    return file->open(descriptor, mode, QFileDevice::AutoCloseHandle) ? 0 : EBADF;
}

int PosixFile::makeFolder(const QByteArray &path)
{
    return errorOf(::mkdir(path.constData(), S_IRWXU));
}

int PosixFile::makeLink(const QByteArray &text, const QByteArray &path)
{
    return errorOf(::symlink(text.constData(), path.constData()));
}

int PosixFile::readLink(const QByteArray &path, QByteArray *text)
{
    char buffer[PATH_MAX];
    const ssize_t length = ::readlink(path.constData(), buffer, sizeof buffer);
    if (length < 0) {
        return errno;
    }
    *text = QByteArray(buffer, static_cast<int>(length));
    return 0;
}

int PosixFile::rename(const QByteArray &from, const QByteArray &to)
{
    return errorOf(::rename(from.constData(), to.constData()));
}

int PosixFile::remove(const QByteArray &path, FileState::Kind kind)
{
    if (kind == FileState::Folder) {
        return errorOf(::rmdir(path.constData()));
    }
    return errorOf(::unlink(path.constData()));
}

int PosixFile::setPermissions(const QByteArray &path, unsigned permissions)
{
    return errorOf(::chmod(path.constData(), permissions));
}

int PosixFile::setTime(const QByteArray &path, const FileState &state)
{
    struct timespec times[2];
    times[0].tv_sec = 0;
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = static_cast<time_t>(state.seconds);
    times[1].tv_nsec = static_cast<long>(state.nanoseconds);
    return errorOf(::utimensat(AT_FDCWD, path.constData(), times, AT_SYMLINK_NOFOLLOW));
}

QByteArray PosixFile::canonicalPath(const QByteArray &path)
{
    char *resolved = ::realpath(path.constData(), nullptr);
    QByteArray result(resolved);
    std::free(resolved);
    return result;
}

bool PosixFile::isWritableFolder(const QByteArray &path)
{
    return ::access(path.constData(), W_OK | X_OK) == 0;
}

bool PosixFile::isReadableFolder(const QByteArray &path)
{
    return ::access(path.constData(), R_OK | X_OK) == 0;
}

void PosixFile::writeBehind(int descriptor, qint64 end, qint64 length)
{
    const qint64 window = 32 * 1024 * 1024;
    const qint64 begin = end - length;
    ::sync_file_range(descriptor, begin, length, SYNC_FILE_RANGE_WRITE);
    if (begin >= window) {
        ::sync_file_range(descriptor, begin - window, length,
                          SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE
                              | SYNC_FILE_RANGE_WAIT_AFTER);
    }
}

QString PosixFile::errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

QString PosixFile::displayName(const QByteArray &name)
{
    const bool escapesHighBytes = !isUtf8(name);
    QByteArray text;
    for (const char character : name) {
        const unsigned char byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7f || (byte >= 0x80 && escapesHighBytes)) {
            text += "\\x" + QByteArray(1, character).toHex();
        } else {
            text += character;
        }
    }
    return QString::fromUtf8(text);
}

FolderReader::FolderReader(const QByteArray &path)
{
    const int descriptor
        = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_DIRECTORY);
    if (descriptor < 0) {
        m_error = errno;
        return;
    }
    m_stream = ::fdopendir(descriptor);
    if (!m_stream) {
        m_error = errno;
        ::close(descriptor);
    }
}

FolderReader::~FolderReader()
{
    if (m_stream) {
        ::closedir(static_cast<DIR *>(m_stream));
    }
}

bool FolderReader::next(QByteArray *name)
{
    while (m_stream && !m_error) {
        errno = 0;
        const struct dirent *entry = ::readdir(static_cast<DIR *>(m_stream));
        if (!entry) {
            m_error = errno;
            return false;
        }
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) {
            *name = QByteArray(entry->d_name);
            return true;
        }
    }
    return false;
}
