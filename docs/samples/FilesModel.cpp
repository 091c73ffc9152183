// SPDX-License-Identifier: LGPL-3.0-or-later
//! [model]
#include "FilesModel.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QLocale>

namespace {

const int pageSize = 100;

QDirIterator *filesBelow(const QString &folder)
{
    return new QDirIterator(folder, QDir::Files, QDirIterator::Subdirectories);
}

QStandardItem *cell(const QString &text, const QVariant &sortKey)
{
    QStandardItem *item = new QStandardItem(text);
    item->setData(sortKey, Qt::UserRole);
    return item;
}

QList<QStandardItem *> rowOf(const QFileInfo &file)
{
    const QLocale locale;
    const QDateTime time = file.lastModified();
    QList<QStandardItem *> row;
    row << cell(file.fileName(), file.fileName())
        << cell(locale.toString(time.date(), QLocale::ShortFormat), time)
        << cell(locale.formattedDataSize(file.size()), file.size())
        << cell(file.suffix(), file.suffix())
        << cell(file.isWritable() ? QString() : FilesModel::tr("read only"), file.isWritable());
    return row;
}

} // namespace

FilesModel::FilesModel(const QString &folder, QObject *parent)
    : QStandardItemModel(0, 5, parent) // it has its columns before a view gets it
    , files(filesBelow(folder))
{
    setHorizontalHeaderLabels(QStringList() << tr("Name") << tr("Modified") << tr("Size")
                                            << tr("Type") << tr("State"));
    setSortRole(Qt::UserRole);
}

FilesModel::~FilesModel() = default;

void FilesModel::setFolder(const QString &folder)
{
    files.reset(filesBelow(folder));
    emit dataChanged(); // the list removes all rows and asks for the first page
}

void FilesModel::LoadItems()
{
    int count = 0;
    for (; count < pageSize && files->hasNext(); ++count) {
        files->next();
        insertRow(qMax(0, rowCount() - 1),
                  rowOf(files->fileInfo())); // before the row of the button
    }
    emit pageLoaded(count, !files->hasNext());
}
//! [model]
