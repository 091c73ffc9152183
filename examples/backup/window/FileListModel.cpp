// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListModel.h"

#include <QFileInfo>
#include <QLocale>
#include <QTextDocument>

#include <algorithm>

namespace {

QString typeText(const SnapshotFile &file)
{
    const QString suffix = QFileInfo(file.path).suffix();
    return file.type == "dir"    ? FileListModel::tr("folder")
        : file.type == "symlink" ? FileListModel::tr("link")
        : suffix.isEmpty()       ? FileListModel::tr("file")
                                 : suffix;
}

QString cellText(const SnapshotFile &file, int column)
{
    switch (column) {
    case FileListModel::Modified:
        return QLocale().toString(file.modified.date(), QLocale::ShortFormat);
    case FileListModel::Size:
        return file.type == "file" ? sizeText(file.size) : QString();
    case FileListModel::Type:
        return typeText(file);
    case FileListModel::Rights:
        return QString("%1").arg(file.permissions, 3, 8, QChar('0')); // the column is narrow
    default:
        return file.path;
    }
}

bool isBefore(const SnapshotFile &left, const SnapshotFile &right, int column)
{
    return column == FileListModel::Modified ? left.modified < right.modified
        : column == FileListModel::Size      ? left.size < right.size
                                             : cellText(left, column) < cellText(right, column);
}

} // namespace

FileListModel::FileListModel(QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Modified"), tr("Size"), tr("Type"), tr("Rights")});
    connect(&m_listing, &SnapshotListing::pageRead, this, &FileListModel::takePage);
    connect(&m_listing, &SnapshotListing::failed, this, &FileListModel::failed);
    // Connected before any view is, so that the files agree with the rows when a view looks.
    connect(this, &FileListModel::rowsInserted, this, [this] {
        m_files += m_page;
        m_page.clear();
    });
}

void FileListModel::setSnapshot(const BackupJob &job, const QString &id)
{
    m_files.clear();
    m_listing.open(job, id);
    emit dataChanged(); // at which the list removes the rows
}

void FileListModel::setPageSize(int count)
{
    m_pageSize = qMax(1, count);
}

void FileListModel::LoadItems()
{
    m_listing.requestPage(m_pageSize);
}

void FileListModel::takePage(const QList<SnapshotFile> &files, bool completed)
{
    if (!files.isEmpty()) {
        m_page = files;
        insertRows(int(m_files.size()), int(files.size()));
    }
    emit pageLoaded(files.size(), completed);
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_files.size()) {
        return QStandardItemModel::data(index, role);
    }
    const SnapshotFile &file = m_files.at(index.row());
    if (role == Qt::ToolTipRole && index.column() == Modified) {
        return QLocale().toString(file.modified, QLocale::LongFormat);
    }
    if (role == Qt::ToolTipRole) {
        // A name may look like HTML.
        return Qt::convertFromPlainText(cellText(file, index.column()));
    }
    if (role == Qt::DisplayRole) {
        return cellText(file, index.column());
    }
    const bool isAligned = role == Qt::TextAlignmentRole && index.column() == Size;
    return isAligned ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
}

// The paging row is not among the files and so stays where it is, behind them.
void FileListModel::sort(int column, Qt::SortOrder order)
{
    const bool ascends = order == Qt::AscendingOrder;
    emit layoutAboutToBeChanged();
    std::stable_sort(m_files.begin(), m_files.end(),
                     [column, ascends](const SnapshotFile &left, const SnapshotFile &right) {
                         return isBefore(ascends ? left : right, ascends ? right : left, column);
                     });
    emit layoutChanged();
}
