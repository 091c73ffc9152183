// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILELISTMODEL_H
#define FILELISTMODEL_H

#include "SnapshotListing.h"

#include <QStandardItemModel>

/// The files of a snapshot, page by page, for a FileListTableView.
///
/// The rows have no items: what they show stands in a list of this model. That makes a page one
/// insertion, which costs the same however long the list is. Files come in restic's order until the
/// user sorts; the pages after that come behind.
class FileListModel : public QStandardItemModel
{
    Q_OBJECT
    // The list asks for this signal by this name.
    // clazy:excludeall=overloaded-signal

public:
    enum Column { Name, Modified, Size, Type, Rights, ColumnCount };

    explicit FileListModel(QObject *parent = nullptr);

    /// Lists another snapshot from the start; none, if its id is empty.
    void setSnapshot(const BackupJob &job, const QString &id);

    /// Files in a page, from the next page on; at least 1, 500 by default.
    void setPageSize(int count);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order) override;

public slots:
    /// Has the next page read, inserts it all at once before the last row and announces it.
    void LoadItems();

signals:
    void pageLoaded(qint64 count, bool completed);
    /// Another snapshot is to be listed.
    void dataChanged();
    void failed(const Outcome &outcome);

private:
    void takePage(const QList<SnapshotFile> &files, bool completed);

    SnapshotListing m_listing;
    QList<SnapshotFile> m_files; ///< As the rows show them; the paging row is not among them.
    QList<SnapshotFile> m_page; ///< What is being inserted.
    int m_pageSize = 500;
};

#endif
