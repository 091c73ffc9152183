// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FolderList.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QStringListModel>

namespace {

bool isPseudo(const QStorageInfo &volume)
{
    return !volume.isValid() || !volume.isReady() || !volume.device().startsWith('/');
}

QStringList mountedVolumes()
{
    QStringList volumes;
    const QList<QStorageInfo> mounted = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : mounted) {
        if (!isPseudo(volume) && QFileInfo(volume.rootPath()).isDir()) {
            volumes.append(volume.rootPath());
        }
    }
    return volumes;
}

} // namespace

QStringList FolderList::sources()
{
    QStringList folders(QDir::homePath());
    const QFileInfoList inHome
        = QDir::home().entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &folder : inHome) {
        folders.append(folder.filePath());
    }
    folders.append(mountedVolumes());
    folders.removeDuplicates();
    return folders;
}

void FolderList::add(QStringListModel *list, const QString &folder)
{
    if (folder.isEmpty() || list->stringList().contains(folder)) {
        return;
    }
    const int row = list->rowCount();
    list->insertRow(row);
    list->setData(list->index(row), folder);
}
