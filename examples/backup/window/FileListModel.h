// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILELISTMODEL_H
#define FILELISTMODEL_H

#include "BackupReport.h"
#include "FileListing.h"

#include <QHash>
#include <QStandardItemModel>
#include <QTimer>

/// The files of a backup's source, page by page, for a FileListTableView.
///
/// The rows have no items: what they show stands in a vector of this model. That makes a page one
/// insertion, which costs the same however long the list is. Files come in the order of the disk
/// until the user sorts; the pages after that come behind.
class FileListModel : public QStandardItemModel
{
    Q_OBJECT
    // The list asks for this signal by this name.
    // clazy:excludeall=overloaded-signal

public:
    enum Column { Name, Modified, Size, Type, State, ColumnCount };

    explicit FileListModel(QObject *parent = nullptr);

    /// Lists another job's source from the start.
    void setJob(const BackupJob &job);

    /// Files in a page, from the next page on; at least 1, 500 by default.
    void setPageSize(int count);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

public slots:
    /// Reads the next page in slices on the event loop, then inserts it all at once before the last
    /// row and announces it.
    void LoadItems();

    /// Shows what a running backup did with a file.
    void noteFile(const QString &path, FileResult result);

signals:
    void pageLoaded(qint64 count, bool completed);
    /// Another source is to be listed.
    void dataChanged();

private:
    void readOn();
    void deliverPage(bool completed);
    void takeInsertedRows(const QModelIndex &parent, int first, int last);
    void dropRemovedRows(const QModelIndex &parent, int first, int last);
    void applyOrder(const QVector<int> &order);

    QVariant textOf(const ListedFile &file, int column) const;

    FileListing m_listing;
    QVector<ListedFile>
        m_files; ///< What the rows show, in their order; the paging row is not in it.
    QVector<ListedFile> m_page; ///< What has been read of the next page.
    QHash<QString, int> m_rows; ///< By name; empty when it has to be made anew.
    QTimer m_timer;
    int m_pageSize = 500;
    bool m_isRequested = false;
};

#endif
