// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TreeRemover.h"

#include <utility>

TreeRemover::TreeRemover(const QByteArray &folder)
{
    enter(folder);
}

bool TreeRemover::step()
{
    if (m_levels.empty()) {
        return false;
    }
    QByteArray name;
    if (m_levels.back().reader->next(&name)) {
        removeEntry(m_levels.back().path + '/' + name);
    } else {
        leave();
    }
    return !m_levels.empty();
}

void TreeRemover::enter(const QByteArray &path)
{
    FileState state;
    PosixFile::state(path, &state);
    // A folder without these rights cannot be emptied.
    if (state.kind == FileState::Folder && (state.permissions & 0700) != 0700) {
        PosixFile::setPermissions(path, 0700);
    }
    Level level;
    level.path = path;
    level.reader.reset(new FolderReader(path));
    m_levels.push_back(std::move(level));
}

void TreeRemover::leave()
{
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    noteError(level.reader->error());
    if (!m_levels.empty()) {
        noteError(PosixFile::remove(level.path, FileState::Folder));
    }
}

void TreeRemover::removeEntry(const QByteArray &path)
{
    FileState state;
    noteError(PosixFile::state(path, &state));
    if (state.kind == FileState::Folder) {
        enter(path);
    } else if (state.kind != FileState::Absent) {
        noteError(PosixFile::remove(path, state.kind));
    }
}

void TreeRemover::noteError(int error)
{
    if (!m_error) {
        m_error = error;
    }
}
