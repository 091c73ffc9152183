// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef VERIFYTASK_H
#define VERIFYTASK_H

#include "BackupReport.h"
#include "FileReader.h"
#include "Manifest.h"
#include "ManifestReader.h"
#include "TargetFolder.h"
#include "TreeScanner.h"

#include <QCoreApplication>

/// Reads every file in a target's data/ back and compares it with the manifest, and the manifest
/// with its signature if there is a passphrase. Changes nothing. Symbolic links and folders have no
/// checksum and are not looked at.
class VerifyTask : public BackupTask
{
    Q_DECLARE_TR_FUNCTIONS(VerifyTask)

public:
    /// The observer stays the caller's and must outlive the task.
    VerifyTask(const QByteArray &target, const QString &passphrase, BackupObserver *observer);

    bool step() override;
    void cancel() override
    {
        m_phase = Done;
    }
    BackupProgress progress() const override
    {
        return m_progress;
    }

private:
    enum Phase { Opening, ReadingManifest, Scanning, Comparing, ReportingMissing, Done };

    void openManifest();
    void readManifest();
    void endManifest();
    void checkSignature();
    void scan();
    void compare();
    void startFile(const TreeEntry &entry);
    void endFile(FileReader::Result result);
    void countFile();
    void failFile(const QString &text);
    void reportMissing();
    void fail(const QByteArray &path, const QString &text);
    void report(const QByteArray &path, const QString &text);

    TargetFolder m_target;
    bool m_isSigned;
    BackupObserver *m_observer;
    BackupProgress m_progress;
    Phase m_phase = Opening;
    ManifestReader m_manifestReader;
    Manifest m_manifest;
    TreeScanner m_scan;
    int m_nextEntry = 0;
    TreeEntry m_entry;
    QByteArray m_expectedDigest;
    FileReader m_reader;
    qint64 m_bytesOfDoneFiles = 0;
};

#endif
