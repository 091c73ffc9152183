// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MainWindow.h"

#include "FilesPage.h"
#include "JobModel.h"
#include "JobsPage.h"
#ifdef TESSALINE_HAS_PLOT
#include "ThroughputPage.h"
#endif

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>

MainWindow::MainWindow(const JobStore &store, QWidget *parent)
    : QMainWindow(parent)
    , m_store(store)
    , m_jobs(new JobModel(store.load(), this))
    , m_run(new BackupRun(this))
    , m_headline(new QLabel(tr("Nothing is running.")))
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(tr("&Cancel")))
    , m_progress(new QLabel)
    , m_details(new QPlainTextEdit)
{
    setWindowTitle(tr("Backup"));
    setCentralWidget(new QWidget);
    QVBoxLayout *layout = new QVBoxLayout(centralWidget());
    layout->addWidget(makePages(), 1);
    layout->addLayout(makeRunPanel());
    resize(QSize(960, 560).boundedTo(screen()->availableSize() * 0.95));
    connect(m_jobs, &JobModel::itemChanged, this, &MainWindow::save);
    connect(m_jobs, &JobModel::rowsInserted, this, &MainWindow::save);
    connect(m_jobs, &JobModel::rowsRemoved, this, &MainWindow::save);
    connect(m_cancel, &QPushButton::clicked, m_run, &BackupRun::cancel);
    connect(m_run, &BackupRun::progressChanged, this, &MainWindow::showProgress);
    connect(m_run, &BackupRun::problemFound, this, &MainWindow::showDetail);
    connect(m_run, &BackupRun::finished, this, &MainWindow::showOutcome);
    // Not while the run is still busy asking.
    connect(m_run, &BackupRun::asked, this, &MainWindow::ask, Qt::QueuedConnection);
}

QWidget *MainWindow::makePages()
{
    JobsPage *jobs = new JobsPage(m_jobs, m_run);
    FilesPage *files = new FilesPage(m_run);
    QTabWidget *pages = new QTabWidget;
    pages->addTab(jobs, tr("&Backups"));
    pages->addTab(files, tr("&Files"));
#ifdef TESSALINE_HAS_PLOT
    pages->addTab(new ThroughputPage(m_run), tr("&Throughput"));
#endif
    const auto setJob = [jobs, files] {
        files->setJob(jobs->currentJob());
    };
    setJob();
    connect(jobs, &JobsPage::currentJobChanged, files, setJob);
    connect(jobs, &JobsPage::started, this, &MainWindow::showStart);
    connect(files, &FilesPage::started, this, &MainWindow::showStart);
    connect(jobs, SIGNAL(message(QString)), statusBar(), SLOT(showMessage(QString)));
    connect(files, SIGNAL(message(QString)), statusBar(), SLOT(showMessage(QString)));
    return pages;
}

QLayout *MainWindow::makeRunPanel()
{
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setWordWrap(true);
    m_bar->setRange(0, 1000);
    m_bar->setValue(0);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setEnabled(false);
    // A long file name shall not widen the window.
    m_progress->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setTextFormat(Qt::PlainText);
    m_details->setReadOnly(true);
    m_details->setAccessibleName(tr("What restic said"));
    m_details->setMaximumHeight(4 * fontMetrics().lineSpacing());
    m_details->setMaximumBlockCount(1000);
    m_details->hide();

    QGridLayout *layout = new QGridLayout;
    layout->addWidget(m_headline, 0, 0, 1, 2);
    layout->addWidget(m_bar, 1, 0);
    layout->addWidget(m_cancel, 1, 1);
    layout->addWidget(m_progress, 2, 0, 1, 2);
    layout->addWidget(m_details, 3, 0, 1, 2);
    return layout;
}

void MainWindow::save()
{
    QList<BackupJob> jobs;
    for (int row = 0; row < m_jobs->rowCount(); ++row) {
        jobs.append(m_jobs->job(row));
    }
    if (!m_store.save(jobs)) {
        statusBar()->showMessage(tr("The list of backups could not be saved."));
    }
}

void MainWindow::showStart(const QString &headline)
{
    m_headline->setText(headline);
    m_cancel->setEnabled(true);
    m_details->clear();
    m_details->hide();
}

void MainWindow::showProgress(const BackupProgress &progress)
{
    m_bar->setMaximum(progress.fraction < 0 ? 0 : 1000); // a bar without a maximum just moves
    m_bar->setValue(int(progress.fraction * 1000));
    m_progress->setText(progress.text());
}

void MainWindow::showDetail(const QString &text)
{
    m_details->appendPlainText(text);
    m_details->show();
}

void MainWindow::showOutcome(const Outcome &outcome)
{
    m_cancel->setEnabled(false);
    m_bar->setMaximum(1000);
    m_bar->setValue(outcome.isGood() ? 1000 : 0);
    m_headline->setText(outcome.text());
    m_progress->clear();
    if (!outcome.isGood() && !outcome.details.isEmpty()) {
        showDetail(outcome.details);
    }
}

void MainWindow::ask(BackupRun::Question question)
{
    const QString text = question == BackupRun::CreateRepository
        ? tr("There is no repository there yet. Create one? Whoever loses its password loses the "
             "backups in it.")
        : tr("The repository is locked. Remove the lock if the program that made it is gone?");
    m_run->answer(QMessageBox::question(this, windowTitle(), text) == QMessageBox::Yes);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const QString question = tr("A run is under way. Cancel it and close the window?");
    const bool closes = !m_run->isRunning()
        || QMessageBox::question(this, windowTitle(), question) == QMessageBox::Yes;
    // It may have ended by itself meanwhile.
    event->setAccepted(closes && !m_run->isRunning());
    if (closes && m_run->isRunning()) {
        connect(m_run, &BackupRun::finished, this, &QWidget::close, Qt::QueuedConnection);
        m_run->cancel();
    }
}
