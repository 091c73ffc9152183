// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FolderCheck.h"

#include "PosixFile.h"
#include "TargetFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool isSameOrInside(const QByteArray &path, const QByteArray &folder)
{
    return path == folder || folder == "/" || path.startsWith(folder + '/');
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

// Also for a path that does not exist yet: then its nearest existing ancestor counts.
QByteArray canonicalOrFuturePath(const QString &path)
{
    QByteArray existing = PosixFile::canonicalPath(QFile::encodeName(path));
    if (!existing.isEmpty()) {
        return existing;
    }
    const QFileInfo info(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    return joined(canonicalOrFuturePath(info.path()), QFile::encodeName(info.fileName()));
}

bool isFolderOrAbsent(const QByteArray &path)
{
    FileState state;
    PosixFile::state(path, &state);
    return state.kind == FileState::Folder || state.kind == FileState::Absent;
}

bool isAbsent(const QByteArray &path)
{
    FileState state;
    PosixFile::state(path, &state);
    return state.kind == FileState::Absent;
}

bool isEmptyOrAbsent(const QByteArray &folder)
{
    QByteArray name;
    return isAbsent(folder) || !FolderReader(folder).next(&name);
}

// A run removes from data/ what the source does not have, so it must be a backup's own.
bool holdsForeignFiles(const TargetFolder &target)
{
    return !isEmptyOrAbsent(target.dataPath()) && isAbsent(target.manifestPath())
        && isAbsent(target.workFolder());
}

} // namespace

FolderCheck::FolderCheck(const BackupJob &job)
    : m_job(job)
{
}

bool FolderCheck::allowsRun()
{
    return checkPaths() && checkSource() && checkTarget() && checkNesting() && checkLayout()
        && checkOwnership() && createTarget();
}

bool FolderCheck::allowsVerify()
{
    if (m_job.targetFolder.isEmpty()) {
        return refuse(tr("No target folder was given."));
    }
    m_target = PosixFile::canonicalPath(QFile::encodeName(m_job.targetFolder));
    if (m_target.isEmpty() || !PosixFile::isReadableFolder(m_target)) {
        return refuse(
            tr("The target folder %1 does not exist or cannot be read.").arg(m_job.targetFolder));
    }
    return checkLayout();
}

bool FolderCheck::checkPaths()
{
    if (m_job.sourceFolder.isEmpty()) {
        return refuse(tr("No source folder was given."));
    }
    return !m_job.targetFolder.isEmpty() || refuse(tr("No target folder was given."));
}

bool FolderCheck::checkSource()
{
    m_source = PosixFile::canonicalPath(QFile::encodeName(m_job.sourceFolder));
    FileState state;
    if (m_source.isEmpty() || PosixFile::state(m_source, &state) != 0) {
        return refuse(tr("The source folder %1 does not exist.").arg(m_job.sourceFolder));
    }
    if (state.kind != FileState::Folder) {
        return refuse(tr("The source %1 is not a folder.").arg(m_job.sourceFolder));
    }
    return PosixFile::isReadableFolder(m_source)
        || refuse(tr("The source folder %1 cannot be read.").arg(m_job.sourceFolder));
}

bool FolderCheck::checkTarget()
{
    m_target = canonicalOrFuturePath(m_job.targetFolder);
    if (QFile::encodeName(QFile::decodeName(m_target)) != m_target) {
        return refuse(tr("The name of the target folder %1 is not valid text.")
                          .arg(PosixFile::displayName(m_target)));
    }
    return isFolderOrAbsent(m_target)
        || refuse(tr("The target %1 is not a folder.").arg(m_job.targetFolder));
}

bool FolderCheck::checkNesting()
{
    if (m_source == m_target) {
        return refuse(tr("The source and the target are the same folder."));
    }
    if (isSameOrInside(m_target, m_source)) {
        return refuse(
            tr("The target folder %1 is inside the source folder.").arg(m_job.targetFolder));
    }
    const TargetFolder target(m_target);
    if (isSameOrInside(m_source, target.dataPath())
        || isSameOrInside(m_source, target.workFolder())) {
        return refuse(
            tr("The source folder %1 is inside the target's own folders.").arg(m_job.sourceFolder));
    }
    return true;
}

bool FolderCheck::checkLayout()
{
    const TargetFolder target(m_target);
    for (const QByteArray &path : {target.dataPath(), target.workFolder()}) {
        // A symbolic link here would have the run remove files somewhere else.
        if (!isFolderOrAbsent(path)) {
            return refuse(
                tr("%1 is in the way: it is not a folder.").arg(PosixFile::displayName(path)));
        }
    }
    return true;
}

bool FolderCheck::checkOwnership()
{
    const TargetFolder target(m_target);
    if (holdsForeignFiles(target)) {
        return refuse(tr("%1 holds files that no backup has put there. Choose another target.")
                          .arg(PosixFile::displayName(target.dataPath())));
    }
    return true;
}

bool FolderCheck::createTarget()
{
    const QString path = QFile::decodeName(m_target);
    if (!QDir().mkpath(path)) {
        return refuse(tr("The target folder %1 cannot be created.").arg(m_job.targetFolder));
    }
    return PosixFile::isWritableFolder(m_target)
        || refuse(tr("The target folder %1 is not writable.").arg(m_job.targetFolder));
}

bool FolderCheck::refuse(const QString &reason)
{
    m_refusal = reason;
    return false;
}
