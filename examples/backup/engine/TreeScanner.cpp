// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TreeScanner.h"

TreeScanner::TreeScanner(const QByteArray &root)
    : m_root(root)
{
}

bool TreeScanner::step()
{
    if (m_entries.isEmpty() && m_faults.isEmpty()) {
        addEntry(QByteArray());
        return true;
    }
    if (!m_reader) {
        return openNextFolder();
    }
    QByteArray name;
    if (m_reader->next(&name)) {
        addEntry(m_folder.isEmpty() ? name : m_folder + '/' + name);
        return true;
    }
    if (m_reader->error()) {
        addFault(m_folder, m_reader->error());
    }
    m_reader.reset();
    return true;
}

bool TreeScanner::isUncertain(const QByteArray &path) const
{
    if (m_faultPaths.isEmpty()) {
        return false;
    }
    QByteArray part = path;
    while (!part.isEmpty() && !m_faultPaths.contains(part)) {
        part.truncate(qMax(part.lastIndexOf('/'), decltype(part.size())(0)));
    }
    return m_faultPaths.contains(part);
}

QByteArray TreeScanner::absolutePath(const QByteArray &path) const
{
    return path.isEmpty() ? m_root : m_root + '/' + path;
}

void TreeScanner::addEntry(const QByteArray &path)
{
    TreeEntry entry;
    entry.path = path;
    if (const int error = PosixFile::state(absolutePath(path), &entry.state)) {
        addFault(path, error);
        return;
    }
    m_entries.append(entry);
    if (entry.state.kind != FileState::Special) {
        m_paths.insert(path);
        count(entry);
    }
}

void TreeScanner::count(const TreeEntry &entry)
{
    if (entry.state.kind == FileState::Folder) {
        m_pendingFolders.append(entry.path);
    } else if (entry.state.kind == FileState::Link) {
        ++m_linkCount;
    } else {
        ++m_regularFileCount;
        m_byteCount += entry.state.size;
    }
}

void TreeScanner::addFault(const QByteArray &path, int error)
{
    m_faults.append(TreeFault{path, error});
    m_faultPaths.insert(path);
}

bool TreeScanner::openNextFolder()
{
    if (m_pendingFolders.isEmpty()) {
        return false;
    }
    m_folder = m_pendingFolders.takeLast();
    m_reader.reset(new FolderReader(absolutePath(m_folder)));
    return true;
}
