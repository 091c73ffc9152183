// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobsPage.h"

#include "FolderList.h"
#include "JobModel.h"
#include "ProgressPanel.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QDir>
#include <QFormLayout>
#include <QItemSelectionModel>
#include <QStringListModel>
#include <QVBoxLayout>

JobsPage::JobsPage(const QList<BackupJob> &jobs, QWidget *parent)
    : QWidget(parent)
    , m_jobs(new JobModel(this))
    , m_sources(new QStringListModel(FolderList::sources(), this))
    , m_targets(new QStringListModel(this))
    , m_table(new EditableTableView)
    , m_engine(new BackupEngine(this))
    , m_progress(new ProgressPanel(m_engine))
    , m_bandwidthLimit(new SpinBox)
{
    for (const BackupJob &job : jobs) {
        m_jobs->appendJob(job);
        FolderList::add(m_sources, job.sourceFolder);
    }
    collectTargets();
    setUpTable();
    setUpBandwidthLimit();
    setUpLayout();

    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::changed);
    connect(m_jobs, &JobModel::rowsInserted, this, &JobsPage::changed);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsPage::changed);
    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::collectTargets);
    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::announceCurrentJob);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &JobsPage::announceCurrentJob);
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
    job.sourceFolder = QDir::homePath();
    m_jobs->appendJob(job);

    const QModelIndex name = m_jobs->index(m_jobs->rowCount() - 1, JobModel::Name);
    m_table->setFocus();
    m_table->setCurrentIndex(name);
    m_table->edit(name);
}

void JobsPage::addSource(const QString &folder)
{
    FolderList::add(m_sources, QDir::cleanPath(folder));
}

void JobsPage::runJob(int row)
{
    const BackupJob job = m_jobs->job(row);
    QString refusal;
    if (m_engine->start(job, &refusal)) {
        m_progress->begin(job.name);
    } else {
        m_progress->showRefusal(refusal);
    }
}

void JobsPage::removeJob(int row)
{
    const QString name = m_jobs->job(row).name;
    m_jobs->removeRow(row);
    emit message(tr("Removed \"%1\" from the list; its copies stay where they are").arg(name));
}

void JobsPage::actOnClick(QWidget *, int row, int column)
{
    if (column == JobModel::Run) {
        runJob(row);
    } else {
        removeJob(row);
    }
}

// The target column offers every target that was ever used here, typed ones included.
void JobsPage::collectTargets()
{
    const QList<BackupJob> jobs = m_jobs->jobs();
    for (const BackupJob &job : jobs) {
        FolderList::add(m_targets, job.targetFolder);
    }
}

void JobsPage::announceCurrentJob()
{
    emit currentJobChanged(currentJob());
}

void JobsPage::limitBandwidth(int mebibytes)
{
    m_engine->setBytesPerSecond(qint64(mebibytes) * 1024 * 1024);
}

void JobsPage::showBandwidthHint()
{
    emit message(tr("How much is copied in a second at most; 0 is no limit"));
}

void JobsPage::setUpTable()
{
    m_table->setColumns(JobModel::columnDeclarations());
    m_table->bindModel(JobModel::Source, m_sources);
    m_table->bindModel(JobModel::Target, m_targets);
    m_table->setStretchSection(JobModel::Target);
    m_table->setModel(m_jobs);
    m_table->setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::DoubleClicked
                             | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setAccessibleName(tr("Backups"));
    // The arrow keys go from cell to cell; Tab goes on to the buttons and out of the table.
    m_table->setTabKeyNavigation(false);

    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const QList<int> widths = {20, 28, 28, 14, 12, 10, 12}; // in digits; the target takes the rest
    for (int column = 0; column < widths.size(); ++column) {
        m_table->resizeSection(column, widths.at(column) * digit);
    }
    connect(m_table,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(actOnClick(QWidget*,int,int)));
}

void JobsPage::setUpBandwidthLimit()
{
    m_bandwidthLimit->setRange(0, 10000);
    m_bandwidthLimit->setSuffix(tr(" MiB/s"));
    m_bandwidthLimit->setSpecialValueText(tr("none"));
    connect(m_bandwidthLimit, QOverload<int>::of(&SpinBox::valueChanged), this,
            &JobsPage::limitBandwidth);
    connect(m_bandwidthLimit, &SpinBox::focused, this, &JobsPage::showBandwidthHint);
}

void JobsPage::setUpLayout()
{
    QFormLayout *settings = new QFormLayout;
    settings->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    settings->addRow(tr("Bandwidth &limit:"), m_bandwidthLimit);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addLayout(settings);
    layout->addWidget(m_progress);
}
