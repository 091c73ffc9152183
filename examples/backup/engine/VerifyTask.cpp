// SPDX-License-Identifier: LGPL-3.0-or-later
#include "VerifyTask.h"

#include "PosixFile.h"

#include <QFile>

namespace {

const qint64 blockSize = 256 * 1024;
const char manifestName[] = "manifest.sha256";
const char signatureName[] = "manifest.sha256.hmac";

QByteArray shortFileContent(const QByteArray &path)
{
    QFile file;
    return PosixFile::openForReading(path, &file) == 0 ? file.read(blockSize) : QByteArray();
}

} // namespace

VerifyTask::VerifyTask(const QByteArray &target, const QString &passphrase,
                       BackupObserver *observer)
    : m_target(target)
    , m_isSigned(!passphrase.isEmpty())
    , m_observer(observer)
    , m_manifestReader(m_target.manifestPath(), passphrase)
    , m_scan(m_target.dataPath())
{
    m_progress.phase = BackupPhase::Verifying;
}

bool VerifyTask::step()
{
    switch (m_phase) {
    case Opening:
        openManifest();
        break;
    case ReadingManifest:
        readManifest();
        break;
    case Scanning:
        scan();
        break;
    case Comparing:
        compare();
        break;
    case ReportingMissing:
        reportMissing();
        break;
    case Done:
        break;
    }
    return m_phase != Done;
}

void VerifyTask::openManifest()
{
    const int error = m_manifestReader.open();
    m_phase = error ? Done : ReadingManifest;
    if (error) {
        report(manifestName,
               tr("There is no manifest to compare with: %1").arg(PosixFile::errorText(error)));
    }
}

void VerifyTask::readManifest()
{
    if (!m_manifestReader.step()) {
        endManifest();
        m_phase = Scanning;
    }
}

void VerifyTask::endManifest()
{
    m_manifest = m_manifestReader.takeManifest();
    if (!m_manifestReader.error().isEmpty()) {
        report(manifestName, tr("It cannot be read: %1").arg(m_manifestReader.error()));
    }
    if (m_manifestReader.badLines() > 0) {
        report(manifestName,
               tr("Lines that are no checksums: %1, the first is line %2.")
                   .arg(m_manifestReader.badLines())
                   .arg(m_manifestReader.firstBadLine()));
    }
    if (m_isSigned) {
        checkSignature();
    }
}

void VerifyTask::checkSignature()
{
    const QByteArray signature = shortFileContent(m_target.signaturePath());
    if (signature.isEmpty()) {
        report(signatureName, tr("The manifest is not signed."));
    } else if (signature.trimmed().toLower() != m_manifestReader.signature().trimmed()) {
        report(signatureName,
               tr("The signature is not that of the manifest under this "
                  "passphrase."));
    }
}

void VerifyTask::scan()
{
    if (m_scan.step()) {
        m_progress.bytesTotal = m_scan.byteCount();
        m_progress.filesTotal = m_scan.regularFileCount();
        return;
    }
    for (const TreeFault &fault : m_scan.faults()) {
        report(fault.path, tr("It cannot be read: %1").arg(PosixFile::errorText(fault.error)));
    }
    m_phase = Comparing;
}

void VerifyTask::compare()
{
    if (m_reader.isOpen()) {
        const FileReader::Result result = m_reader.read(blockSize);
        m_progress.bytesDone = m_bytesOfDoneFiles + m_reader.bytesRead();
        if (result != FileReader::More) {
            endFile(result);
        }
    } else if (m_nextEntry < m_scan.entries().size()) {
        startFile(m_scan.entries().at(m_nextEntry++));
    } else {
        m_phase = ReportingMissing;
    }
}

void VerifyTask::startFile(const TreeEntry &entry)
{
    if (entry.state.kind != FileState::Regular) {
        return;
    }
    m_entry = entry;
    m_progress.currentFile = PosixFile::displayName(entry.path);
    m_expectedDigest = m_manifest.take(entry.path);
    if (m_expectedDigest.isEmpty()) {
        failFile(tr("It is not in the manifest."));
    } else if (!m_reader.open(m_target.dataPath(entry.path))) {
        failFile(m_reader.error());
    }
}

void VerifyTask::endFile(FileReader::Result result)
{
    m_reader.close();
    if (result == FileReader::Failed) {
        failFile(m_reader.error());
    } else if (result == FileReader::Changed) {
        failFile(tr("It changed while it was being read."));
    } else if (m_reader.digest() != m_expectedDigest) {
        failFile(tr("Its content is not what the manifest says."));
    } else {
        countFile();
        m_observer->fileFinished(m_progress.currentFile, FileResult::Verified);
    }
}

void VerifyTask::countFile()
{
    m_bytesOfDoneFiles += m_entry.state.size;
    m_progress.bytesDone = m_bytesOfDoneFiles;
    ++m_progress.filesDone;
}

void VerifyTask::reportMissing()
{
    if (m_manifest.digests().isEmpty()) {
        m_phase = Done;
        return;
    }
    const QByteArray path = m_manifest.digests().firstKey();
    m_manifest.take(path);
    fail(path, tr("It is in the manifest, but missing."));
}

void VerifyTask::failFile(const QString &text)
{
    countFile();
    fail(m_entry.path, text);
}

void VerifyTask::fail(const QByteArray &path, const QString &text)
{
    report(path, text);
    m_observer->fileFinished(PosixFile::displayName(path), FileResult::Failed);
}

void VerifyTask::report(const QByteArray &path, const QString &text)
{
    m_observer->report(BackupProblem::Different, path, text);
}
