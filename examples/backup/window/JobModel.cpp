// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobModel.h"

JobModel::JobModel(const QList<BackupJob> &jobs, QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Source"), tr("Repository"), tr("Password"),
                               tr("Check"), QString(), QString()});
    for (const BackupJob &job : jobs) {
        appendJob(job);
    }
}

void JobModel::appendJob(const BackupJob &job)
{
    QList<QStandardItem *> row;
    for (const QString &text : {job.name, job.source, job.repository, QString(),
                                QString(job.verify ? "1" : ""), QString(), QString()}) {
        row.append(new QStandardItem(text));
    }
    appendRow(row);
}

BackupJob JobModel::job(int row) const
{
    BackupJob job;
    job.name = index(row, Name).data().toString();
    job.source = index(row, Source).data().toString();
    job.repository = index(row, Repository).data().toString();
    // The cell itself shows a mask; what was typed the table's password column keeps here.
    job.password = index(row, Password).data(Qt::UserRole + 1).toString();
    job.verify = !index(row, Verify).data().toString().isEmpty();
    return job;
}

// What is painted as a check box is a "1" to screen readers.
QVariant JobModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::AccessibleTextRole && index.column() == Verify) {
        return data(index).toString().isEmpty() ? tr("Verify: no") : tr("Verify: yes");
    }
    return QStandardItemModel::data(index, role);
}

bool JobModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.column() == Source && value.toString() == tr("Choose a folder...")) {
        emit sourceWanted(index.row());
        return false;
    }
    return QStandardItemModel::setData(index, value, role);
}
