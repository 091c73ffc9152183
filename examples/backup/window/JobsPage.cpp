// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobsPage.h"

#include "JobModel.h"
#include "JobsTable.h"
#include "Question.h"

#include <SpinBox.h>

#include <QDir>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

JobsPage::JobsPage(JobModel *jobs, BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_jobs(jobs)
    , m_table(new JobsTable(m_jobs))
    , m_bandwidthLimit(new SpinBox)
{
    setUpBandwidthLimit();
    setUpLayout();

    // The library reports which button was clicked, and where.
    connect(m_table,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(actOnClick(QWidget*,int,int)));
    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::announceCurrentJob);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsPage::announceCurrentJob);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &JobsPage::announceCurrentJob);
    connect(m_run, &BackupRun::finished, this, &JobsPage::endRun);
}

BackupJob JobsPage::currentJob() const
{
    const int row = qMax(0, m_table->currentIndex().row());
    return row < m_jobs->rowCount() ? m_jobs->job(row) : BackupJob();
}

void JobsPage::addJob()
{
    BackupJob job;
    job.name = tr("New backup");
    job.source = QDir::homePath();
    m_jobs->appendJob(job);
    m_table->editCell(m_jobs->rowCount() - 1, JobModel::Name);
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
        m_table->editCell(row, JobModel::Repository);
    } else if (job.password.isEmpty()) {
        askPassword(row);
    } else {
        start(row, job);
    }
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

void JobsPage::actOnClick(QWidget *, int row, int column)
{
    if (column == JobModel::Run) {
        runJob(row);
    } else {
        removeJob(row);
    }
}

void JobsPage::announceCurrentJob()
{
    emit currentJobChanged(currentJob());
}

void JobsPage::endRun()
{
    m_jobs->setRunningRow(-1);
}

void JobsPage::setUpBandwidthLimit()
{
    m_bandwidthLimit->setRange(0, 10000000);
    m_bandwidthLimit->setSingleStep(100);
    m_bandwidthLimit->setSuffix(tr(" KB/s"));
    m_bandwidthLimit->setSpecialValueText(tr("none"));
    // The library's spin box tells when the user comes to it.
    connect(m_bandwidthLimit, &SpinBox::focused, this, [this] {
        emit message(tr("How much the next run writes to the repository in a second at most"));
    });
}

void JobsPage::setUpLayout()
{
    QPushButton *add = new QPushButton(tr("&New backup"));
    connect(add, &QPushButton::clicked, this, &JobsPage::addJob);
    QLabel *limit = new QLabel(tr("Bandwidth &limit:"));
    limit->setBuddy(m_bandwidthLimit);

    QHBoxLayout *below = new QHBoxLayout;
    below->addWidget(add);
    below->addStretch();
    below->addWidget(limit);
    below->addWidget(m_bandwidthLimit);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(below);
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
