// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBMODEL_H
#define JOBMODEL_H

#include "JobStore.h"

#include <QStandardItemModel>

/// The jobs as the table shows them, a row each.
class JobModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Source, Repository, Password, Verify, Run, Remove, ColumnCount };

    explicit JobModel(const QList<BackupJob> &jobs, QObject *parent = nullptr);

    void appendJob(const BackupJob &job);
    BackupJob job(int row) const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// The user wants to choose a folder for the source; the job keeps the one it has.
    void sourceWanted(int row);
};

#endif
