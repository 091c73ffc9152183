// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef ENTRYMIRROR_H
#define ENTRYMIRROR_H

#include "BackupReport.h"
#include "FileCopier.h"
#include "FileReader.h"
#include "TargetFolder.h"
#include "TreeScanner.h"

#include <QCoreApplication>

class Manifest;

/// Makes one entry of the target equal to the source's, touching only what differs. A folder is
/// only made and opened for writing; finishFolder() is for when its content is complete.
class EntryMirror
{
    Q_DECLARE_TR_FUNCTIONS(EntryMirror)

public:
    /// The manifest and the observer stay the caller's and must outlive this object.
    EntryMirror(const QByteArray &source, TargetFolder *target, Manifest *manifest,
                BackupObserver *observer);

    void start(const TreeEntry &entry);
    bool isActive() const
    {
        return m_copier.isActive() || m_reader.isOpen();
    }
    /// Copies or hashes at most that many bytes of the active file.
    void step(qint64 maximumBytes);
    /// Leaves the old copy, if there is one, as it was.
    void abort();
    void finishFolder(const TreeEntry &entry);

    /// Of the active file.
    qint64 bytesRead() const;

private:
    QByteArray sourcePath() const;
    void openFolder();
    void startFile();
    void startCopy();
    void stepCopy(qint64 maximumBytes);
    void placeCopy();
    void retryOrFail();
    void stepHash(qint64 maximumBytes);
    void keepContent();
    void mirrorLink();
    bool keepsLink(const QByteArray &text);
    void replaceLink(const QByteArray &text);
    void succeed();
    void fail(const QString &text);

    QByteArray m_source;
    TargetFolder *m_target;
    Manifest *m_manifest;
    BackupObserver *m_observer;
    FileCopier m_copier;
    FileReader m_reader;
    TreeEntry m_entry;
    FileState m_before;
    bool m_isRetry = false;
};

#endif
