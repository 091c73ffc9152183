// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListing.h"

#include "PosixFile.h"
#include "TargetFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

namespace {

const qint64 sliceMilliseconds = 12;

QString typeOf(const QFileInfo &info)
{
    if (info.isSymLink()) {
        return QCoreApplication::translate("FileListing", "link");
    }
    return info.suffix().isEmpty() ? QCoreApplication::translate("FileListing", "file")
                                   : info.suffix();
}

ListedFile::State compare(const QByteArray &original, const QByteArray &copy)
{
    FileState originalState;
    FileState copyState;
    PosixFile::state(original, &originalState);
    PosixFile::state(copy, &copyState);
    if (copyState.kind == FileState::Absent) {
        return ListedFile::New;
    }
    const bool isSame = originalState.kind == copyState.kind && originalState.hasSameTime(copyState)
        && originalState.size == copyState.size;
    return isSame ? ListedFile::Saved : ListedFile::Changed;
}

} // namespace

FileListing::FileListing() = default;

FileListing::~FileListing() = default;

void FileListing::start(const BackupJob &job)
{
    m_job = job;
    m_iterator.reset();
    if (!job.sourceFolder.isEmpty()) {
        m_iterator.reset(new QDirIterator(job.sourceFolder,
                                          QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                                          QDirIterator::Subdirectories));
    }
}

bool FileListing::read(QVector<ListedFile> *files, int wanted)
{
    QElapsedTimer timer;
    timer.start();
    while (m_iterator && files->size() < wanted && timer.elapsed() < sliceMilliseconds) {
        if (!m_iterator->hasNext()) {
            m_iterator.reset();
        } else {
            m_iterator->next();
            files->append(describe());
        }
    }
    return m_iterator && m_iterator->hasNext();
}

ListedFile FileListing::describe() const
{
    const QFileInfo info = m_iterator->fileInfo();
    ListedFile file;
    file.name = QDir(m_job.sourceFolder).relativeFilePath(info.filePath());
    file.modified = info.lastModified();
    file.size = info.size();
    file.type = typeOf(info);
    const TargetFolder target(QFile::encodeName(m_job.targetFolder));
    file.state = compare(QFile::encodeName(info.filePath()),
                         target.dataPath(QFile::encodeName(file.name)));
    return file;
}
