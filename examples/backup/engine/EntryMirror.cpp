// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EntryMirror.h"

#include "Manifest.h"

EntryMirror::EntryMirror(const QByteArray &source, TargetFolder *target, Manifest *manifest,
                         BackupObserver *observer)
    : m_source(source)
    , m_target(target)
    , m_manifest(manifest)
    , m_observer(observer)
    , m_copier(target->workPath("copy"))
{
}

void EntryMirror::start(const TreeEntry &entry)
{
    m_entry = entry;
    m_isRetry = false;
    PosixFile::state(m_target->dataPath(entry.path), &m_before);
    switch (entry.state.kind) {
    case FileState::Folder:
        openFolder();
        break;
    case FileState::Regular:
        startFile();
        break;
    case FileState::Link:
        mirrorLink();
        break;
    case FileState::Special:
        m_observer->report(BackupProblem::Skipped, entry.path,
                           tr("Skipped: it is a pipe, a socket or a device."));
        break;
    case FileState::Absent:
        break;
    }
}

void EntryMirror::step(qint64 maximumBytes)
{
    if (m_copier.isActive()) {
        stepCopy(maximumBytes);
    } else {
        stepHash(maximumBytes);
    }
}

void EntryMirror::abort()
{
    m_copier.abort();
    m_reader.close();
}

void EntryMirror::finishFolder(const TreeEntry &entry)
{
    const QByteArray path = m_target->dataPath(entry.path);
    FileState now;
    PosixFile::state(path, &now);
    if (now.kind != FileState::Folder) {
        return;
    }
    int error = now.hasSameTime(entry.state) ? 0 : PosixFile::setTime(path, entry.state);
    if (!error && now.permissions != entry.state.permissions) {
        error = PosixFile::setPermissions(path, entry.state.permissions);
    }
    if (error) {
        m_observer->report(BackupProblem::Failed, entry.path,
                           tr("The folder's modification time and permissions were not kept: %1")
                               .arg(PosixFile::errorText(error)));
    }
}

qint64 EntryMirror::bytesRead() const
{
    if (m_copier.isActive()) {
        return m_copier.bytesRead();
    }
    return m_reader.isOpen() ? m_reader.bytesRead() : 0;
}

QByteArray EntryMirror::sourcePath() const
{
    return m_source + '/' + m_entry.path;
}

void EntryMirror::openFolder()
{
    if (const int error = m_target->openFolder(m_entry.path)) {
        m_observer->report(BackupProblem::Failed, m_entry.path,
                           tr("The folder cannot be created: %1").arg(PosixFile::errorText(error)));
    }
}

void EntryMirror::startFile()
{
    if (!m_before.hasSameContent(m_entry.state)) {
        startCopy();
    } else if (!m_manifest->digest(m_entry.path).isEmpty()) {
        keepContent();
    } else if (!m_reader.open(sourcePath())) {
        // The source is hashed and not the copy: should the copy have been damaged, verifying
        // will then tell.
        fail(m_reader.error());
    }
}

void EntryMirror::startCopy()
{
    if (!m_copier.start(sourcePath())) {
        fail(m_copier.error());
    }
}

void EntryMirror::stepCopy(qint64 maximumBytes)
{
    switch (m_copier.step(maximumBytes)) {
    case FileReader::More:
        break;
    case FileReader::Finished:
        placeCopy();
        break;
    case FileReader::Changed:
        retryOrFail();
        break;
    case FileReader::Failed:
        fail(m_copier.error());
        break;
    }
}

void EntryMirror::placeCopy()
{
    if (const int error = m_target->place(m_copier.standIn(), m_entry.path)) {
        PosixFile::remove(m_copier.standIn(), FileState::Regular);
        fail(tr("The copy cannot be put in its place: %1").arg(PosixFile::errorText(error)));
        return;
    }
    m_manifest->insert(m_entry.path, m_copier.digest());
    m_observer->bytesWritten(m_copier.bytesRead());
    if (!m_copier.warning().isEmpty()) {
        m_observer->report(BackupProblem::Failed, m_entry.path, m_copier.warning());
    }
    succeed();
}

void EntryMirror::retryOrFail()
{
    if (m_isRetry) {
        fail(tr("It kept changing while it was being read."));
        return;
    }
    m_isRetry = true;
    startCopy();
}

void EntryMirror::stepHash(qint64 maximumBytes)
{
    switch (m_reader.read(maximumBytes)) {
    case FileReader::More:
        break;
    case FileReader::Finished:
        m_reader.close();
        if (!m_before.hasSameContent(m_reader.state())) {
            startCopy();
            break;
        }
        m_manifest->insert(m_entry.path, m_reader.digest());
        keepContent();
        break;
    case FileReader::Changed:
        m_reader.close();
        startCopy();
        break;
    case FileReader::Failed:
        fail(m_reader.error());
        break;
    }
}

void EntryMirror::keepContent()
{
    if (m_before.permissions == m_entry.state.permissions) {
        m_observer->fileFinished(PosixFile::displayName(m_entry.path), FileResult::Unchanged);
        return;
    }
    const QByteArray path = m_target->dataPath(m_entry.path);
    if (const int error = PosixFile::setPermissions(path, m_entry.state.permissions)) {
        fail(tr("Its permissions were not kept: %1").arg(PosixFile::errorText(error)));
        return;
    }
    succeed();
}

void EntryMirror::mirrorLink()
{
    QByteArray text;
    if (const int error = PosixFile::readLink(sourcePath(), &text)) {
        fail(tr("The symbolic link cannot be read: %1").arg(PosixFile::errorText(error)));
    } else if (keepsLink(text)) {
        m_observer->fileFinished(PosixFile::displayName(m_entry.path), FileResult::Unchanged);
    } else {
        replaceLink(text);
    }
}

bool EntryMirror::keepsLink(const QByteArray &text)
{
    QByteArray oldText;
    return m_before.kind == FileState::Link && m_before.hasSameTime(m_entry.state)
        && PosixFile::readLink(m_target->dataPath(m_entry.path), &oldText) == 0 && oldText == text;
}

void EntryMirror::replaceLink(const QByteArray &text)
{
    const QByteArray standIn = m_target->workPath("link");
    int error = PosixFile::makeLink(text, standIn);
    if (!error) {
        error = PosixFile::setTime(standIn, m_entry.state);
    }
    if (!error) {
        error = m_target->place(standIn, m_entry.path);
    }
    if (error) {
        PosixFile::remove(standIn, FileState::Link);
        fail(tr("The symbolic link cannot be created: %1").arg(PosixFile::errorText(error)));
        return;
    }
    succeed();
}

void EntryMirror::succeed()
{
    m_observer->fileFinished(PosixFile::displayName(m_entry.path),
                             m_before.kind == FileState::Absent ? FileResult::New
                                                                : FileResult::Changed);
}

void EntryMirror::fail(const QString &text)
{
    abort();
    m_observer->report(BackupProblem::Failed, m_entry.path, text);
    m_observer->fileFinished(PosixFile::displayName(m_entry.path), FileResult::Failed);
}
