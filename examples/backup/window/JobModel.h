// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBMODEL_H
#define JOBMODEL_H

#include "BackupJob.h"

#include <QList>
#include <QStandardItemModel>

/// The jobs as the table shows them, a row each.
class JobModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Source, Target, Passphrase, Verify, Run, Remove, ColumnCount };

    explicit JobModel(QObject *parent = nullptr);

    /// What EditableTableView::setColumns() is to be told for these columns.
    static QStringList columnDeclarations();

    void appendJob(const BackupJob &job);
    BackupJob job(int row) const;
    QList<BackupJob> jobs() const;

private:
    QString text(int row, Column column) const;
};

#endif
