// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileReader.h"

#include <cerrno>

FileReader::FileReader()
    : m_hash(QCryptographicHash::Sha256)
{
}

bool FileReader::open(const QByteArray &path)
{
    m_file.close();
    m_path = path;
    m_bytesRead = 0;
    m_hash.reset();
    const QIODevice::OpenMode mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (const int error = PosixFile::openForReading(path, &m_file, mode)) {
        return failFor(error);
    }
    if (const int error = PosixFile::state(m_file.handle(), &m_state)) {
        return failFor(error);
    }
    return m_state.kind == FileState::Regular || fail(tr("It is no longer a regular file."));
}

FileReader::Result FileReader::read(qint64 maximumBytes)
{
    m_block = m_file.read(maximumBytes);
    if (m_file.error() != QFileDevice::NoError) {
        fail(tr("It cannot be read: %1").arg(m_file.errorString()));
        return Failed;
    }
    m_hash.addData(m_block);
    m_bytesRead += m_block.size();
    if (m_block.isEmpty()) {
        return compareWithPath();
    }
    // A file that grows as fast as it is read would never come to its end.
    return m_bytesRead > m_state.size && compareWithPath() != Finished ? Changed : More;
}

bool FileReader::fail(const QString &error)
{
    m_error = error;
    m_file.close();
    return false;
}

bool FileReader::failFor(int error)
{
    const QString text = PosixFile::errorText(error);
    if (error == ENOENT || error == ENOTDIR) {
        return fail(tr("It vanished before it was read: %1").arg(text));
    }
    return fail(tr("It cannot be read: %1").arg(text));
}

FileReader::Result FileReader::compareWithPath()
{
    FileState now;
    if (const int error = PosixFile::state(m_path, &now)) {
        fail(tr("It vanished while it was being read: %1").arg(PosixFile::errorText(error)));
        return Failed;
    }
    FileState opened;
    PosixFile::state(m_file.handle(), &opened);
    const bool isSame = m_state.hasSameContent(now) && m_state.hasSameContent(opened);
    return isSame ? Finished : Changed;
}
