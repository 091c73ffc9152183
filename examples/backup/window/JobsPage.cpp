// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobsPage.h"

#include "JobModel.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QChildEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

JobsPage::JobsPage(JobModel *jobs, BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_jobs(jobs)
    , m_table(new EditableTableView)
    , m_hint(new QLabel(m_table->viewport()))
    , m_bandwidthLimit(new SpinBox)
{
    setUpTable();
    setUpLayout();
    followJobs();
    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::followJobs);
    connect(m_jobs, &JobModel::rowsInserted, this, &JobsPage::followJobs);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsPage::followJobs);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &JobsPage::currentJobChanged);
    // Not while the editor that says so is still writing.
    connect(m_jobs, &JobModel::sourceWanted, this, &JobsPage::chooseSource, Qt::QueuedConnection);
    connect(m_run, &BackupRun::finished, this, [this] {
        m_running = QModelIndex();
        dressButtons();
    });
}

// What the library's table is told: how each column is edited, which lists its combo boxes show,
// which column takes the width that is left, and who hears which button was clicked. Captions and
// labels are translated by the table, when it shows them. The columns come before the model.
void JobsPage::setUpTable()
{
    m_table->setColumns({"editbox", "combobox", "editcombobox", "passwordbox",
                         QString("checkbox:") + QT_TRANSLATE_NOOP("CheckItemDelegate", "Verify"),
                         QString("button:") + QT_TRANSLATE_NOOP("EditableTableView", "Run"),
                         QString("button:") + QT_TRANSLATE_NOOP("EditableTableView", "Remove")});
    m_table->bindModel(JobModel::Source, &m_sources);
    m_table->bindModel(JobModel::Repository, &m_repositories);
    m_table->setStretchSection(JobModel::Repository);
    m_table->setModel(m_jobs);
    connect(m_table,
            QOverload<QWidget *, int, int, QStringList>::of(&EditableTableView::buttonClicked),
            this, [this](QWidget *, int row, int column) {
                column == JobModel::Run ? runJob(row) : removeJob(row);
            });

    // The rest is as with any table view.
    m_table->setEditTriggers(QTableView::SelectedClicked | QTableView::DoubleClicked
                             | QTableView::EditKeyPressed | QTableView::AnyKeyPressed);
    m_table->setSelectionMode(QTableView::SingleSelection);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setWordWrap(false);
    m_table->setAccessibleName(tr("Backups"));
    const int letters[JobModel::ColumnCount] = {14, 16, 0, 12, 14, 12, 12};
    for (int column = 0; column < JobModel::ColumnCount; ++column) {
        m_table->resizeSection(column, letters[column] * fontMetrics().averageCharWidth());
    }
    // The arrow keys go from cell to cell; Tab goes on to the buttons and out of the table.
    m_table->setTabKeyNavigation(false);
    m_table->viewport()->installEventFilter(this);
}

void JobsPage::setUpLayout()
{
    m_hint->setText(tr("There is nothing to back up yet.\n\n\"New backup\" adds a row. Choose the "
                       "folder to back up and the repository that is to keep the backups: another "
                       "folder, or any address that restic takes. Then press \"Run\"."));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    QVBoxLayout *onTable = new QVBoxLayout(m_table->viewport());
    onTable->addWidget(m_hint);

    QPushButton *add = new QPushButton(tr("&New backup"));
    connect(add, &QPushButton::clicked, this, &JobsPage::addJob);
    QLabel *limit = new QLabel(tr("Bandwidth &limit:"));
    limit->setBuddy(m_bandwidthLimit);
    m_bandwidthLimit->setRange(0, 10000000);
    m_bandwidthLimit->setSingleStep(100);
    m_bandwidthLimit->setSuffix(tr(" KB/s"));
    m_bandwidthLimit->setSpecialValueText(tr("none"));
    // The library's spin box tells when the user comes to it.
    connect(m_bandwidthLimit, &SpinBox::focused, this, [this] {
        emit message(tr("How much the next run writes to the repository in a second at most"));
    });

    QHBoxLayout *below = new QHBoxLayout;
    below->addWidget(add);
    below->addStretch();
    below->addWidget(limit);
    below->addWidget(m_bandwidthLimit);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(below);
}

BackupJob JobsPage::currentJob() const
{
    const int row = qMax(0, m_table->currentIndex().row());
    return row < m_jobs->rowCount() ? m_jobs->job(row) : BackupJob();
}

bool JobsPage::askForPassword(QWidget *parent, BackupJob *job)
{
    if (job->password.isEmpty()) {
        // One ampersand is the mark of a shortcut there.
        const QString address = QString(job->repository).replace('&', "&&");
        const QString question = tr("Password of the repository %1:").arg(address);
        job->password = QInputDialog::getText(parent, parent->window()->windowTitle(), question,
                                              QLineEdit::Password);
    }
    return !job->password.isEmpty();
}

// A choice in a combo box is made by choosing: nobody expects to have to press Enter as well.
bool JobsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject *editor = static_cast<QChildEvent *>(event)->child();
        if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
            connect(box, QOverload<int>::of(&QComboBox::activated), m_table, [this] {
                m_table->setFocus();
            });
        }
    }
    return QWidget::eventFilter(watched, event);
}

// Buttons come with the caption of their column; which one cancels, and what each is for, is ours.
void JobsPage::dressButtons()
{
    for (int row = 0; row < m_jobs->rowCount(); ++row) {
        const QString name = m_jobs->job(row).name;
        const bool isRunning = row == m_running.row();
        QPushButton *run = qobject_cast<QPushButton *>(m_table->button(row, JobModel::Run));
        QWidget *remove = m_table->button(row, JobModel::Remove);
        if (run && remove) {
            run->setText(isRunning ? EditableTableView::tr("Cancel")
                                   : EditableTableView::tr("Run"));
            run->setAccessibleName((isRunning ? tr("Cancel %1") : tr("Run %1")).arg(name));
            remove->setAccessibleName(tr("Remove %1").arg(name));
        }
    }
    m_hint->setVisible(m_jobs->rowCount() == 0);
}

void JobsPage::followJobs()
{
    QStringList sources(QDir::homePath());
    QStringList repositories;
    for (int row = 0; row < m_jobs->rowCount(); ++row) {
        sources.append(m_jobs->job(row).source);
        repositories.append(m_jobs->job(row).repository);
    }
    for (QStringList *folders : {&sources, &repositories}) {
        folders->removeDuplicates();
        folders->removeAll(QString());
    }
    m_sources.setStringList(sources << JobModel::tr("Choose a folder..."));
    m_repositories.setStringList(repositories);
    dressButtons();
    emit currentJobChanged();
}

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
    BackupJob job = m_jobs->job(row);
    job.uploadLimit = m_bandwidthLimit->value();
    if (row == m_running.row()) {
        m_run->cancel();
    } else if (m_run->isRunning()) {
        emit message(tr("\"%1\" was not started: there is one run at a time.").arg(job.name));
    } else if (job.repository.isEmpty()) {
        emit message(tr("Say first where the backups of \"%1\" are to be kept.").arg(job.name));
        editCell(row, JobModel::Repository);
    } else if (askForPassword(this, &job) && m_run->backUp(job)) {
        m_running = m_jobs->index(row, JobModel::Run);
        dressButtons();
        emit started(tr("Backing up \"%1\"").arg(job.name));
    }
}

void JobsPage::removeJob(int row)
{
    const QString name = m_jobs->job(row).name;
    if (row == m_running.row()) {
        emit message(tr("\"%1\" is running. Cancel it before you remove it.").arg(name));
        return;
    }
    // The name may look like HTML.
    const QString question = Qt::convertFromPlainText(
        tr("Remove \"%1\" from the list? Its backups stay in the repository.").arg(name));
    if (QMessageBox::question(this, window()->windowTitle(), question) == QMessageBox::Yes) {
        m_jobs->removeRow(row);
    }
}

void JobsPage::chooseSource(int row)
{
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Folder to back up"), m_jobs->job(row).source);
    if (!folder.isEmpty()) {
        m_jobs->setData(m_jobs->index(row, JobModel::Source), QDir::cleanPath(folder));
    }
}

void JobsPage::editCell(int row, int column)
{
    const QModelIndex cell = m_jobs->index(row, column);
    m_table->setFocus();
    m_table->setCurrentIndex(cell);
    m_table->edit(cell);
}
