// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FOLDERLIST_H
#define FOLDERLIST_H

#include <QStringList>

class QStringListModel;

/// Folders to offer in a combo box of the table.
namespace FolderList {

/// What there is on this machine to back up: the home folder, the folders in it and the volumes
/// that are mounted, pseudo file systems left out.
QStringList sources();

/// Adds a folder to such a list unless it is empty or in there already.
void add(QStringListModel *list, const QString &folder);

} // namespace FolderList

#endif
