// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TargetFolder.h"

#include "PosixFile.h"

namespace {

const unsigned ownerRights = 0700;

}

TargetFolder::TargetFolder(const QByteArray &path)
    : m_path(path)
{
}

QByteArray TargetFolder::dataPath(const QByteArray &relative) const
{
    return relative.isEmpty() ? m_path + "/data" : m_path + "/data/" + relative;
}

QByteArray TargetFolder::manifestPath() const
{
    return m_path + "/manifest.sha256";
}

QByteArray TargetFolder::signaturePath() const
{
    return m_path + "/manifest.sha256.hmac";
}

QByteArray TargetFolder::workFolder() const
{
    return m_path + "/data.unfinished";
}

QByteArray TargetFolder::workPath(const QByteArray &name) const
{
    return workFolder() + '/' + name;
}

int TargetFolder::openFolder(const QByteArray &relative)
{
    const QByteArray path = dataPath(relative);
    FileState state;
    PosixFile::state(path, &state);
    if (state.kind == FileState::Folder) {
        const bool isOpen = (state.permissions & ownerRights) == ownerRights;
        return isOpen ? 0 : PosixFile::setPermissions(path, state.permissions | ownerRights);
    }
    if (state.kind != FileState::Absent) {
        if (const int error = moveAside(relative)) {
            return error;
        }
    }
    return PosixFile::makeFolder(path);
}

int TargetFolder::place(const QByteArray &standIn, const QByteArray &relative)
{
    FileState state;
    PosixFile::state(dataPath(relative), &state);
    if (state.kind == FileState::Folder) {
        if (const int error = moveAside(relative)) {
            return error;
        }
    }
    return PosixFile::rename(standIn, dataPath(relative));
}

int TargetFolder::moveAside(const QByteArray &relative)
{
    const QByteArray path = dataPath(relative);
    FileState state;
    if (const int error = PosixFile::state(path, &state)) {
        return error;
    }
    // A folder without these rights cannot be given another parent.
    if (state.kind == FileState::Folder) {
        PosixFile::setPermissions(path, state.permissions | ownerRights);
    }
    ++m_asideCount;
    return PosixFile::rename(path, workPath("removed-" + QByteArray::number(m_asideCount)));
}
