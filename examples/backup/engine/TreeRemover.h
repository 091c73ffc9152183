// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TREEREMOVER_H
#define TREEREMOVER_H

#include "PosixFile.h"

#include <QByteArray>

#include <memory>
#include <vector>

/// Removes everything inside a folder one entry at a time; the folder itself stays. Symbolic links
/// are removed, never followed.
class TreeRemover
{
public:
    explicit TreeRemover(const QByteArray &folder);

    /// Removes the next entry; returns false once nothing is left that can be removed.
    bool step();

    /// 0, or the system's error number for the first entry that could not be removed.
    int error() const
    {
        return m_error;
    }

private:
    struct Level
    {
        QByteArray path;
        std::unique_ptr<FolderReader> reader;
    };

    void enter(const QByteArray &path);
    void leave();
    void removeEntry(const QByteArray &path);
    void noteError(int error);

    std::vector<Level> m_levels;
    int m_error = 0;
};

#endif
