// SPDX-License-Identifier: LGPL-3.0-or-later
// What the user does with the jobs; how the page is made is in JobsPage.cpp.
#include "JobModel.h"
#include "JobsPage.h"
#include "Question.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QDir>
#include <QFileDialog>

void JobsPage::addJob()
{
    BackupJob job;
    job.name = tr("New backup");
    job.source = QDir::homePath();
    m_jobs->appendJob(job);
    editCell(m_jobs->rowCount() - 1, JobModel::Name);
}

void JobsPage::runJob(int row)
{
    const BackupJob job = m_jobs->job(row);
    if (row == m_jobs->runningRow()) {
        m_run->cancel();
    } else if (m_run->isRunning()) {
        emit message(tr("\"%1\" was not started: there is one run at a time.").arg(job.name));
    } else if (job.repository.isEmpty()) {
        emit message(tr("Say first where the backups of \"%1\" are to be kept.").arg(job.name));
        editCell(row, JobModel::Repository);
    } else if (job.password.isEmpty()) {
        askPassword(row);
    } else {
        start(row, job);
    }
}

void JobsPage::askPassword(int row)
{
    const QPersistentModelIndex cell(m_jobs->index(row, JobModel::Password));
    const QString question = tr("Password of the repository %1:").arg(m_jobs->job(row).repository);
    Question::askPassword(this, question, [this, cell](const QString &password) {
        if (cell.isValid()) {
            BackupJob job = m_jobs->job(cell.row());
            job.password = password;
            start(cell.row(), job);
        }
    });
}

void JobsPage::start(int row, const BackupJob &job)
{
    m_run->setUploadLimit(m_bandwidthLimit->value());
    if (m_run->backUp(job)) {
        m_jobs->setRunningRow(row);
        emit started(tr("Backing up \"%1\"").arg(job.name));
    }
}

void JobsPage::endRun()
{
    m_jobs->setRunningRow(-1);
}

void JobsPage::removeJob(int row)
{
    const QString name = m_jobs->job(row).name;
    if (row == m_jobs->runningRow()) {
        emit message(tr("\"%1\" is running. Cancel it before you remove it.").arg(name));
        return;
    }
    const QString question = tr("Remove \"%1\" from the list? Its backups stay in the repository.");
    const QPersistentModelIndex cell(m_jobs->index(row, JobModel::Remove));
    Question::ask(this, question.arg(name), [this, cell](bool yes) {
        if (yes && cell.isValid()) {
            m_jobs->removeRow(cell.row());
        }
    });
}

void JobsPage::chooseSource(int row)
{
    const QPersistentModelIndex cell(m_jobs->index(row, JobModel::Source));
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Folder to back up"), m_jobs->job(row).source);
    if (!folder.isEmpty() && cell.isValid()) {
        m_jobs->setData(cell, QDir::cleanPath(folder));
    }
}

void JobsPage::editCell(int row, int column)
{
    const QModelIndex cell = m_jobs->index(row, column);
    m_table->setFocus();
    m_table->setCurrentIndex(cell);
    m_table->edit(cell);
}
