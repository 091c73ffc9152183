// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobModel.h"

#include <QDir>

namespace {

// Where the table's password column keeps what was typed; the cell itself holds the mask only.
const int passwordRole = Qt::UserRole + 1;

QStandardItem *textItem(const QString &text)
{
    return new QStandardItem(text);
}

void offer(QStringList *folders, const QString &folder)
{
    if (!folder.isEmpty() && !folders->contains(folder)) {
        folders->append(folder);
    }
}

} // namespace

JobModel::JobModel(const QList<BackupJob> &jobs, QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
    , m_sources(QStringList(QDir::homePath()))
{
    setHorizontalHeaderLabels({tr("Name"), tr("Source"), tr("Repository"), tr("Password"),
                               tr("Check"), QString(), QString()});
    for (const BackupJob &job : jobs) {
        appendJob(job);
    }
    collectFolders();
    connect(this, &JobModel::itemChanged, this, &JobModel::collectFolders);
}

void JobModel::appendJob(const BackupJob &job)
{
    const QString verify = job.verify ? QStringLiteral("1") : QString();
    appendRow({textItem(job.name), textItem(job.source), textItem(job.repository),
               textItem(QString()), textItem(verify), textItem(QString()), textItem(QString())});
}

BackupJob JobModel::job(int row) const
{
    BackupJob job;
    job.name = text(row, Name);
    job.source = text(row, Source);
    job.repository = text(row, Repository);
    job.password = index(row, Password).data(passwordRole).toString();
    job.verify = !text(row, Verify).isEmpty();
    return job;
}

QList<BackupJob> JobModel::jobs() const
{
    QList<BackupJob> all;
    for (int row = 0; row < rowCount(); ++row) {
        all.append(job(row));
    }
    return all;
}

int JobModel::runningRow() const
{
    return m_running.row();
}

void JobModel::setRunningRow(int row)
{
    const int before = runningRow();
    m_running = index(row, Run);
    for (int changed : {before, row}) {
        if (changed >= 0) {
            emit dataChanged(index(changed, Run), index(changed, Run));
        }
    }
}

QVariant JobModel::data(const QModelIndex &index, int role) const
{
    const bool isPath = index.column() == Source || index.column() == Repository;
    if (role == Qt::ToolTipRole && isPath) {
        return data(index); // the cell may be too narrow for it
    }
    if (role == Qt::AccessibleTextRole && index.column() >= Password) {
        return accessibleText(index);
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

void JobModel::collectFolders()
{
    QStringList sources = m_sources.stringList();
    QStringList repositories = m_repositories.stringList();
    const QString choose = tr("Choose a folder...");
    sources.removeAll(choose);
    const QList<BackupJob> all = jobs();
    for (const BackupJob &job : all) {
        offer(&sources, job.source);
        offer(&repositories, job.repository);
    }
    m_sources.setStringList(sources << choose);
    m_repositories.setStringList(repositories);
}

QString JobModel::text(int row, Column column) const
{
    return index(row, column).data(Qt::EditRole).toString();
}

// A button covers its cell, and what is painted as a check box is a "1" to a screen reader.
QVariant JobModel::accessibleText(const QModelIndex &index) const
{
    const QString name = text(index.row(), Name);
    const bool isEmpty = text(index.row(), Column(index.column())).isEmpty();
    switch (index.column()) {
    case Password:
        return isEmpty ? tr("Password: asked for") : tr("Password: typed");
    case Verify:
        return isEmpty ? tr("Verify: no") : tr("Verify: yes");
    case Run:
        return (index.row() == runningRow() ? tr("Cancel %1") : tr("Run %1")).arg(name);
    default:
        return tr("Remove %1").arg(name);
    }
}
