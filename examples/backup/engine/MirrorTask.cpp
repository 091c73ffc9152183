// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MirrorTask.h"

#include "ManifestReader.h"
#include "ManifestWriter.h"
#include "TreeRemover.h"

#include <cerrno>

namespace {

// Small enough that a block is read, hashed and written in a few milliseconds.
const qint64 blockSize = 256 * 1024;

} // namespace

const MirrorTask::Phase MirrorTask::phases[] = {
    &MirrorTask::emptyWorkFolder, &MirrorTask::readOldManifest, &MirrorTask::scanSource,
    &MirrorTask::makeWorkFolder,  &MirrorTask::copyEntries,     &MirrorTask::scanCopy,
    &MirrorTask::removeSurplus,   &MirrorTask::hashUnlisted,    &MirrorTask::emptyWorkFolder,
    &MirrorTask::writeManifest,   &MirrorTask::finishFolders,   &MirrorTask::removeWorkFolder,
};
const int MirrorTask::phaseCount = sizeof phases / sizeof phases[0];
const int MirrorTask::copyingPhase = 4;
const int MirrorTask::finishingPhase = 8;

MirrorTask::MirrorTask(const QByteArray &source, const QByteArray &target,
                       const QString &passphrase, BackupObserver *observer)
    : m_source(source)
    , m_target(target)
    , m_passphrase(passphrase)
    , m_observer(observer)
    , m_sourceScan(source)
    , m_mirror(source, &m_target, &m_manifest, observer)
{
}

MirrorTask::~MirrorTask() = default;

bool MirrorTask::step()
{
    if (m_phase < phaseCount) {
        const Phase phase = phases[m_phase];
        if (!(this->*phase)()) {
            ++m_phase;
        }
    }
    return m_phase < phaseCount;
}

void MirrorTask::cancel()
{
    if (m_phase < copyingPhase) {
        // Nothing has been touched yet.
        m_phase = phaseCount;
    } else if (m_phase < finishingPhase) {
        m_mirror.abort();
        m_phase = finishingPhase;
    }
}

bool MirrorTask::emptyWorkFolder()
{
    if (!m_remover) {
        FileState state;
        PosixFile::state(m_target.workFolder(), &state);
        if (state.kind != FileState::Folder) {
            return false;
        }
        m_remover.reset(new TreeRemover(m_target.workFolder()));
    }
    if (m_remover->step()) {
        return true;
    }
    if (m_remover->error()) {
        report("data.unfinished",
               tr("Not everything in it can be removed: %1")
                   .arg(PosixFile::errorText(m_remover->error())));
    }
    m_remover.reset();
    return false;
}

bool MirrorTask::readOldManifest()
{
    if (!m_manifestReader) {
        FileState workFolder;
        m_manifestReader.reset(new ManifestReader(m_target.manifestPath(), QString()));
        const bool wasCutOff = PosixFile::state(m_target.workFolder(), &workFolder) == 0;
        return !wasCutOff && m_manifestReader->open() == 0;
    }
    if (m_manifestReader->step()) {
        return true;
    }
    m_manifest = m_manifestReader->takeManifest();
    m_manifestReader.reset();
    return false;
}

bool MirrorTask::scanSource()
{
    m_progress.phase = BackupPhase::Scanning;
    const bool isScanning = m_sourceScan.step();
    m_progress.bytesTotal = m_sourceScan.byteCount();
    m_progress.filesTotal = m_sourceScan.regularFileCount() + m_sourceScan.linkCount();
    reportFaults(m_sourceScan, &m_reportedFaults);
    return isScanning;
}

bool MirrorTask::makeWorkFolder()
{
    m_progress.phase = BackupPhase::Copying;
    const int error = PosixFile::makeFolder(m_target.workFolder());
    if (error && error != EEXIST) {
        report("data.unfinished",
               tr("The folder cannot be created: %1").arg(PosixFile::errorText(error)));
        m_phase = phaseCount;
    }
    return false;
}

bool MirrorTask::copyEntries()
{
    if (m_mirror.isActive()) {
        // All content passes through here block by block: the place to limit its rate.
        m_mirror.step(blockSize);
    } else if (m_nextEntry < m_sourceScan.entries().size()) {
        startEntry(m_sourceScan.entries().at(m_nextEntry++));
    } else {
        return false;
    }
    m_progress.bytesDone = m_bytesOfDoneFiles + m_mirror.bytesRead();
    if (!m_mirror.isActive()) {
        endEntry(m_sourceScan.entries().at(m_nextEntry - 1));
    }
    return true;
}

void MirrorTask::startEntry(const TreeEntry &entry)
{
    m_progress.currentFile = PosixFile::displayName(entry.path);
    m_mirror.start(entry);
}

void MirrorTask::endEntry(const TreeEntry &entry)
{
    if (entry.state.kind == FileState::Regular) {
        m_bytesOfDoneFiles += entry.state.size;
        ++m_progress.filesDone;
    } else if (entry.state.kind == FileState::Link) {
        ++m_progress.filesDone;
    }
    m_progress.bytesDone = m_bytesOfDoneFiles;
}

bool MirrorTask::scanCopy()
{
    m_progress.phase = BackupPhase::Removing;
    m_progress.currentFile.clear();
    if (!m_copyScan) {
        m_copyScan.reset(new TreeScanner(m_target.dataPath()));
    }
    const bool isScanning = m_copyScan->step();
    reportFaults(*m_copyScan, &m_reportedCopyFaults);
    return isScanning;
}

bool MirrorTask::removeSurplus()
{
    if (m_nextCopy == m_copyScan->entries().size()) {
        return false;
    }
    examineCopy(m_copyScan->entries().at(m_nextCopy++));
    return true;
}

void MirrorTask::examineCopy(const TreeEntry &entry)
{
    if (!m_sourceScan.contains(entry.path) && !m_sourceScan.isUncertain(entry.path)) {
        removeCopy(entry);
    } else if (entry.state.kind == FileState::Regular && m_manifest.digest(entry.path).isEmpty()) {
        m_unlisted.append(entry.path);
    }
}

void MirrorTask::removeCopy(const TreeEntry &entry)
{
    const int error = m_target.moveAside(entry.path);
    // What was inside a folder has gone with it.
    if (error && error != ENOENT) {
        report(entry.path,
               tr("It is no longer in the source, but its copy cannot be removed: %1")
                   .arg(PosixFile::errorText(error)));
    } else if (entry.state.kind != FileState::Folder) {
        m_observer->fileRemoved();
    }
}

bool MirrorTask::hashUnlisted()
{
    if (!m_reader.isOpen()) {
        if (m_unlisted.isEmpty()) {
            return false;
        }
        startHashing(m_unlisted.last());
        return true;
    }
    const FileReader::Result result = m_reader.read(blockSize);
    if (result == FileReader::More) {
        return true;
    }
    if (result == FileReader::Finished) {
        m_manifest.insert(m_unlisted.last(), m_reader.digest());
    } else {
        report(m_unlisted.last(), tr("Its old copy is not in the manifest."));
    }
    m_reader.close();
    m_unlisted.removeLast();
    return true;
}

void MirrorTask::startHashing(const QByteArray &path)
{
    if (!m_reader.open(m_target.dataPath(path))) {
        report(path, m_reader.error());
        m_unlisted.removeLast();
    }
}

bool MirrorTask::writeManifest()
{
    m_progress.phase = BackupPhase::Finishing;
    m_progress.currentFile.clear();
    if (!m_manifestWriter) {
        m_manifestWriter.reset(new ManifestWriter(m_target, m_manifest, m_passphrase));
    }
    if (m_manifestWriter->step()) {
        return true;
    }
    m_manifestIsWritten = m_manifestWriter->error().isEmpty();
    if (!m_manifestIsWritten) {
        report("manifest.sha256", m_manifestWriter->error());
    }
    m_manifestWriter.reset();
    return false;
}

bool MirrorTask::finishFolders()
{
    if (m_nextEntry == 0) {
        return false;
    }
    // Backwards, so that a folder follows everything in it.
    const TreeEntry &entry = m_sourceScan.entries().at(--m_nextEntry);
    // A folder that could not be listed was not mirrored; its copy should stay accessible.
    if (entry.state.kind == FileState::Folder && !m_sourceScan.isUncertain(entry.path)) {
        m_mirror.finishFolder(entry);
    }
    return true;
}

bool MirrorTask::removeWorkFolder()
{
    if (!m_manifestIsWritten) {
        return false;
    }
    if (const int error = PosixFile::remove(m_target.workFolder(), FileState::Folder)) {
        report("data.unfinished",
               tr("The folder cannot be removed: %1").arg(PosixFile::errorText(error)));
    }
    return false;
}

void MirrorTask::reportFaults(const TreeScanner &scanner, int *reported)
{
    while (*reported < scanner.faults().size()) {
        const TreeFault &fault = scanner.faults().at((*reported)++);
        report(fault.path,
               fault.error == ENOENT
                   ? tr("It vanished before it was read: %1").arg(PosixFile::errorText(ENOENT))
                   : tr("It cannot be read: %1").arg(PosixFile::errorText(fault.error)));
    }
}

void MirrorTask::report(const QByteArray &path, const QString &text)
{
    m_observer->report(BackupProblem::Failed, path, text);
}
