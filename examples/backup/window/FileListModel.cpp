// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListModel.h"

#include <QLocale>

#include <algorithm>
#include <numeric>

namespace {

bool isBefore(const ListedFile &left, const ListedFile &right, int column)
{
    switch (column) {
    case FileListModel::Modified:
        return left.modified < right.modified;
    case FileListModel::Size:
        return left.size < right.size;
    case FileListModel::Type:
        return left.type < right.type;
    case FileListModel::State:
        return left.state < right.state;
    default:
        return left.name < right.name;
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

} // namespace

FileListModel::FileListModel(QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Modified"), tr("Size"), tr("Type"), tr("State")});
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FileListModel::readOn);
    // Connected before any view is, so that the vector agrees with the rows when a view looks.
    connect(this, &FileListModel::rowsInserted, this, &FileListModel::takeInsertedRows);
    connect(this, &FileListModel::rowsRemoved, this, &FileListModel::dropRemovedRows);
}

void FileListModel::setJob(const BackupJob &job)
{
    m_listing.start(job);
    m_page.clear();
    // A page that is on its way comes from the new source: the view does not ask again for it.
    emit dataChanged();
}

void FileListModel::setPageSize(int count)
{
    m_pageSize = qMax(1, count);
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.parent().isValid() || index.row() >= m_files.size()) {
        return QStandardItemModel::data(index, role);
    }
    const ListedFile &file = m_files.at(index.row());
    if (role == Qt::DisplayRole) {
        return textOf(file, index.column());
    }
    if (role == Qt::ToolTipRole && index.column() == Name) {
        return file.name;
    }
    if (role == Qt::ToolTipRole && index.column() == Modified) {
        return QLocale().toString(file.modified, QLocale::LongFormat);
    }
    if (role == Qt::TextAlignmentRole && index.column() == Size) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    return QVariant();
}

void FileListModel::sort(int column, Qt::SortOrder order)
{
    QVector<int> sorted(m_files.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::stable_sort(sorted.begin(), sorted.end(), [this, column, order](int left, int right) {
        const bool ascends = order == Qt::AscendingOrder;
        return isBefore(m_files.at(ascends ? left : right), m_files.at(ascends ? right : left),
                        column);
    });
    emit layoutAboutToBeChanged();
    applyOrder(sorted);
    emit layoutChanged();
}

void FileListModel::LoadItems()
{
    if (!m_isRequested) {
        m_isRequested = true;
        m_timer.start(0);
    }
}

void FileListModel::noteFile(const QString &path, FileResult result)
{
    if (result == FileResult::Failed) {
        return;
    }
    if (m_rows.isEmpty()) {
        for (int row = 0; row < m_files.size(); ++row) {
            m_rows.insert(m_files.at(row).name, row);
        }
    }
    const int row = m_rows.value(path, -1);
    if (row >= 0 && m_files.at(row).state != ListedFile::Saved) {
        m_files[row].state = ListedFile::Saved;
        const QModelIndex cell = index(row, State);
        emit QStandardItemModel::dataChanged(cell, cell);
    }
}

void FileListModel::readOn()
{
    const bool hasMore = m_listing.read(&m_page, m_pageSize);
    if (hasMore && m_page.size() < m_pageSize) {
        m_timer.start(0);
    } else {
        deliverPage(!hasMore);
    }
}

void FileListModel::deliverPage(bool completed)
{
    const int count = int(m_page.size());
    if (count > 0) {
        insertRows(int(m_files.size()), count);
    }
    m_isRequested = false;
    emit pageLoaded(count, completed);
}

void FileListModel::takeInsertedRows(const QModelIndex &parent, int first, int last)
{
    const bool isPage
        = !parent.isValid() && first == m_files.size() && last - first + 1 == m_page.size();
    if (isPage) {
        m_files += m_page;
        m_page.clear();
        m_rows.clear();
    }
}

void FileListModel::dropRemovedRows(const QModelIndex &parent, int first, int last)
{
    const int count = qMin(last + 1, int(m_files.size())) - first;
    if (!parent.isValid() && count > 0) {
        m_files.remove(first, count);
        m_rows.clear();
    }
}

// The paging row is not among the files and so stays where it is, behind them.
void FileListModel::applyOrder(const QVector<int> &order)
{
    QVector<ListedFile> files;
    QVector<int> rowAfter(order.size());
    files.reserve(order.size());
    for (int row : order) {
        rowAfter[row] = int(files.size());
        files.append(m_files.at(row));
    }
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after = before;
    for (QModelIndex &index : after) {
        if (index.row() < rowAfter.size()) {
            index = this->index(rowAfter.at(index.row()), index.column());
        }
    }
    changePersistentIndexList(before, after);
    m_files = files;
    m_rows.clear();
}

QVariant FileListModel::textOf(const ListedFile &file, int column) const
{
    switch (column) {
    case Name:
        return file.name;
    case Modified:
        return shortTime(file.modified);
    case Size:
        return QLocale().formattedDataSize(file.size, 1, QLocale::DataSizeTraditionalFormat);
    case Type:
        return file.type;
    default:
        return file.state == ListedFile::New    ? tr("new")
            : file.state == ListedFile::Changed ? tr("changed")
                                                : tr("saved");
    }
}
