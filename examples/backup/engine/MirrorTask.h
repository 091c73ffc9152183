// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MIRRORTASK_H
#define MIRRORTASK_H

#include "BackupReport.h"
#include "EntryMirror.h"
#include "FileReader.h"
#include "Manifest.h"
#include "TargetFolder.h"
#include "TreeScanner.h"

#include <QCoreApplication>

#include <memory>

class ManifestReader;
class ManifestWriter;
class TreeRemover;

/// Makes a target's data/ a mirror of the source: first everything is listed, then what differs is
/// copied, and only then is removed what the source no longer has. What could not be looked at in
/// the source keeps its copy. Cancelled or not, the manifest is written for what is there.
///
/// The work folder doubles as a mark: it is gone only after the manifest has been written. If it is
/// found at the start, the manifest may belong to older content, so every file is hashed again.
class MirrorTask : public BackupTask
{
    Q_DECLARE_TR_FUNCTIONS(MirrorTask)

public:
    /// The observer stays the caller's and must outlive the task.
    MirrorTask(const QByteArray &source, const QByteArray &target, const QString &passphrase,
               BackupObserver *observer);
    ~MirrorTask() override;

    bool step() override;
    void cancel() override;
    BackupProgress progress() const override
    {
        return m_progress;
    }

private:
    /// A phase does a little and returns false once it is over.
    typedef bool (MirrorTask::*Phase)();
    static const Phase phases[];
    static const int phaseCount;
    static const int copyingPhase;
    static const int finishingPhase;

    bool emptyWorkFolder();
    bool readOldManifest();
    bool scanSource();
    bool makeWorkFolder();
    bool copyEntries();
    bool scanCopy();
    bool removeSurplus();
    bool hashUnlisted();
    bool writeManifest();
    bool finishFolders();
    bool removeWorkFolder();

    void startEntry(const TreeEntry &entry);
    void endEntry(const TreeEntry &entry);
    void examineCopy(const TreeEntry &entry);
    void removeCopy(const TreeEntry &entry);
    void startHashing(const QByteArray &path);
    void reportFaults(const TreeScanner &scanner, int *reported);
    void report(const QByteArray &path, const QString &text);

    QByteArray m_source;
    TargetFolder m_target;
    QString m_passphrase;
    BackupObserver *m_observer;
    BackupProgress m_progress;
    int m_phase = 0;
    Manifest m_manifest;
    bool m_manifestIsWritten = false;
    TreeScanner m_sourceScan;
    int m_reportedFaults = 0;
    EntryMirror m_mirror;
    int m_nextEntry = 0;
    qint64 m_bytesOfDoneFiles = 0;
    std::unique_ptr<TreeScanner> m_copyScan;
    int m_reportedCopyFaults = 0;
    int m_nextCopy = 0;
    QVector<QByteArray> m_unlisted;
    FileReader m_reader;
    std::unique_ptr<TreeRemover> m_remover;
    std::unique_ptr<ManifestReader> m_manifestReader;
    std::unique_ptr<ManifestWriter> m_manifestWriter;
};

#endif
