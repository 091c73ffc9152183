// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBMODEL_H
#define JOBMODEL_H

#include "JobStore.h"

#include <QList>
#include <QPersistentModelIndex>
#include <QStandardItemModel>
#include <QStringListModel>

/// The jobs as the table shows them, a row each.
class JobModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Source, Repository, Password, Verify, Run, Remove, ColumnCount };

    explicit JobModel(const QList<BackupJob> &jobs, QObject *parent = nullptr);

    void appendJob(const BackupJob &job);
    BackupJob job(int row) const;
    QList<BackupJob> jobs() const;

    /// The row of the job that is being backed up; -1 if none is.
    int runningRow() const;
    void setRunningRow(int row);

    /// What the combo boxes offer: all that was ever used here; the last of the sources stands for
    /// a folder still to be chosen.
    QStringListModel *sources()
    {
        return &m_sources;
    }

    QStringListModel *repositories()
    {
        return &m_repositories;
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// The user wants to choose a folder for the source; the job keeps the one it has.
    void sourceWanted(int row);

private:
    void collectFolders();
    QString text(int row, Column column) const;
    QVariant accessibleText(const QModelIndex &index) const;

    QPersistentModelIndex m_running;
    QStringListModel m_sources;
    QStringListModel m_repositories;
};

#endif
