// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListModel.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

QString typeText(const SnapshotFile &file)
{
    const QString suffix = QFileInfo(file.path).suffix();
    if (file.type == QLatin1String("dir")) {
        return FileListModel::tr("folder");
    }
    if (file.type == QLatin1String("symlink")) {
        return FileListModel::tr("link");
    }
    return suffix.isEmpty() ? FileListModel::tr("file") : suffix;
}

bool isBefore(const SnapshotFile &left, const SnapshotFile &right, int column)
{
    switch (column) {
    case FileListModel::Modified:
        return left.modified < right.modified;
    case FileListModel::Size:
        return left.size < right.size;
    case FileListModel::Type:
        return typeText(left) < typeText(right);
    case FileListModel::Rights:
        return left.permissions < right.permissions;
    default:
        return left.path < right.path;
    }
}

// Fits the narrow column: the time of day for what is recent, the year for the rest.
QString shortTime(const QDateTime &time)
{
    const qint64 days = time.daysTo(QDateTime::currentDateTime());
    const bool isRecent = days >= 0 && days < 180;
    return QLocale().toString(
        time, isRecent ? QStringLiteral("d MMM hh:mm") : QStringLiteral("d MMM yyyy"));
}

// "rwxr-xr-x" as "755": the column is narrow.
QString octal(const QString &permissions)
{
    QString digits;
    for (int first = 0; first + 2 < permissions.size(); first += 3) {
        int digit = 0;
        for (int bit = first; bit < first + 3; ++bit) {
            digit = digit * 2 + (permissions.at(bit) == QLatin1Char('-') ? 0 : 1);
        }
        digits += QString::number(digit);
    }
    return digits;
}

QString cellText(const SnapshotFile &file, int column)
{
    switch (column) {
    case FileListModel::Modified:
        return shortTime(file.modified);
    case FileListModel::Size:
        return file.type == QLatin1String("file") ? sizeText(file.size) : QString();
    case FileListModel::Type:
        return typeText(file);
    case FileListModel::Rights:
        return octal(file.permissions.right(9)); // before them stands the type
    default:
        return file.path;
    }
}

} // namespace

FileListModel::FileListModel(QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Modified"), tr("Size"), tr("Type"), tr("Rights")});
    connect(&m_listing, &SnapshotListing::pageRead, this, &FileListModel::takePage);
    connect(&m_listing, &SnapshotListing::failed, this, &FileListModel::takeFailure);
    // Connected before any view is, so that the list agrees with the rows when a view looks.
    connect(this, &FileListModel::rowsInserted, this, &FileListModel::takeInsertedRows);
    connect(this, &FileListModel::rowsRemoved, this, &FileListModel::dropRemovedRows);
}

void FileListModel::setSnapshot(const BackupJob &job, const QString &id)
{
    // The listing forgets a page that was asked for; the list waits for it and does not ask again.
    const bool isAwaited = m_isRequested;
    m_hasSnapshot = !id.isEmpty();
    m_listing.open(job, id);
    emit dataChanged();
    if (isAwaited) {
        LoadItems();
    }
}

void FileListModel::setPageSize(int count)
{
    m_pageSize = qMax(1, count);
}

void FileListModel::LoadItems()
{
    m_isRequested = true;
    if (m_hasSnapshot) {
        m_listing.requestPage(m_pageSize);
    } else {
        takePage({}, true);
    }
}

void FileListModel::takePage(const QList<SnapshotFile> &files, bool completed)
{
    m_isRequested = false;
    if (!files.isEmpty()) {
        m_page = files;
        insertRows(int(m_files.size()), int(files.size()));
    }
    emit pageLoaded(files.size(), completed);
}

void FileListModel::takeFailure(const Outcome &outcome)
{
    takePage({}, true);
    emit failed(outcome);
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.parent().isValid() || index.row() >= m_files.size()) {
        return QStandardItemModel::data(index, role);
    }
    const SnapshotFile &file = m_files.at(index.row());
    if (role == Qt::DisplayRole) {
        return cellText(file, index.column());
    }
    if (role == Qt::ToolTipRole && index.column() == Modified) {
        return QLocale().toString(file.modified, QLocale::LongFormat);
    }
    if (role == Qt::ToolTipRole) {
        return cellText(file, index.column());
    }
    if (role == Qt::TextAlignmentRole && index.column() == Size) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    return QVariant();
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

void FileListModel::takeInsertedRows(const QModelIndex &parent, int first, int last)
{
    const bool isPage
        = !parent.isValid() && first == m_files.size() && last - first + 1 == m_page.size();
    if (isPage) {
        m_files += m_page;
        m_page.clear();
    }
}

void FileListModel::dropRemovedRows(const QModelIndex &parent, int first, int last)
{
    if (!parent.isValid() && first < m_files.size()) {
        const int end = qMin(last + 1, int(m_files.size()));
        m_files.erase(m_files.begin() + first, m_files.begin() + end);
    }
}
