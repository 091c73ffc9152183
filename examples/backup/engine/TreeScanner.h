// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TREESCANNER_H
#define TREESCANNER_H

#include "PosixFile.h"

#include <QByteArray>
#include <QSet>
#include <QVector>

#include <memory>

/// Something found below a root folder; the root itself has an empty path.
struct TreeEntry
{
    QByteArray path; ///< Relative to the root, parts separated by '/'.
    FileState state;
};
Q_DECLARE_TYPEINFO(TreeEntry, Q_MOVABLE_TYPE);

/// A path that could not be looked at, with the system's error number.
struct TreeFault
{
    QByteArray path;
    int error;
};

/// Lists everything below a folder one entry at a time, without following symbolic links. Every
/// folder is listed before what it contains.
class TreeScanner
{
public:
    explicit TreeScanner(const QByteArray &root);

    /// Looks at the next entry; returns false once everything has been listed.
    bool step();

    const QVector<TreeEntry> &entries() const
    {
        return m_entries;
    }
    const QVector<TreeFault> &faults() const
    {
        return m_faults;
    }
    /// Whether the path was listed as something that can be copied.
    bool contains(const QByteArray &path) const
    {
        return m_paths.contains(path);
    }
    /// Whether nothing certain is known of the path, because it or a folder above it has a fault.
    bool isUncertain(const QByteArray &path) const;

    qint64 byteCount() const
    {
        return m_byteCount;
    } ///< Of the regular files.
    qint64 regularFileCount() const
    {
        return m_regularFileCount;
    }
    qint64 linkCount() const
    {
        return m_linkCount;
    } ///< Symbolic links.

private:
    QByteArray absolutePath(const QByteArray &path) const;
    void addEntry(const QByteArray &path);
    void count(const TreeEntry &entry);
    void addFault(const QByteArray &path, int error);
    bool openNextFolder();

    QByteArray m_root;
    QByteArray m_folder;
    std::unique_ptr<FolderReader> m_reader;
    QVector<QByteArray> m_pendingFolders;
    QVector<TreeEntry> m_entries;
    QVector<TreeFault> m_faults;
    QSet<QByteArray> m_paths;
    QSet<QByteArray> m_faultPaths;
    qint64 m_byteCount = 0;
    qint64 m_regularFileCount = 0;
    qint64 m_linkCount = 0;
};

#endif
