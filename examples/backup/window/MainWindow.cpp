// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MainWindow.h"

#include "BackupRun.h"
#include "FilesPage.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "Question.h"
#include "RunPanel.h"
#ifdef TESSALINE_HAS_PLOT
#include "ThroughputPage.h"
#endif

#include <QCloseEvent>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

MainWindow::MainWindow(const JobStore &store, QWidget *parent)
    : QMainWindow(parent)
    , m_store(store)
    , m_jobs(new JobModel(store.load(), this))
    , m_run(new BackupRun(this))
{
    setWindowTitle(tr("Backup"));
    setUpPages();
    saveWhenChanged();
    resize(QSize(960, 560).boundedTo(screen()->availableSize() * 0.95));
}

void MainWindow::setUpPages()
{
    JobsPage *jobs = new JobsPage(m_jobs, m_run);
    FilesPage *files = new FilesPage(m_run);
    RunPanel *panel = new RunPanel(m_run);
    QTabWidget *pages = new QTabWidget;
    pages->addTab(jobs, tr("&Backups"));
    pages->addTab(files, tr("&Files"));
#ifdef TESSALINE_HAS_PLOT
    pages->addTab(new ThroughputPage(m_run), tr("&Throughput"));
#endif
    setCentralWidget(new QWidget);
    QVBoxLayout *layout = new QVBoxLayout(centralWidget());
    layout->addWidget(pages, 1);
    layout->addWidget(panel);
    statusBar();

    connect(jobs, &JobsPage::currentJobChanged, files, &FilesPage::setJob);
    connect(jobs, &JobsPage::started, panel, &RunPanel::begin);
    connect(files, &FilesPage::started, panel, &RunPanel::begin);
    connect(jobs, &JobsPage::message, this, &MainWindow::showMessage);
    connect(files, &FilesPage::message, this, &MainWindow::showMessage);
    files->setJob(jobs->currentJob());
}

void MainWindow::saveWhenChanged()
{
    m_saveSoon.setSingleShot(true);
    connect(&m_saveSoon, &QTimer::timeout, this, &MainWindow::save);
    const auto saveSoon = [this] {
        m_saveSoon.start();
    };
    connect(m_jobs, &JobModel::itemChanged, this, saveSoon);
    connect(m_jobs, &JobModel::rowsInserted, this, saveSoon);
    connect(m_jobs, &JobModel::rowsRemoved, this, saveSoon);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    save();
    if (!m_run->isRunning()) {
        return;
    }
    event->ignore();
    Question::ask(
        this, tr("A run is under way. Cancel it and close the window?"), [this](bool yes) {
            if (!yes) {
                return;
            }
            connect(m_run, &BackupRun::finished, this, &QWidget::close, Qt::QueuedConnection);
            m_run->cancel();
            if (!m_run->isRunning()) {
                close(); // it has ended by itself meanwhile
            }
        });
}

void MainWindow::save()
{
    m_saveSoon.stop();
    if (!m_store.save(m_jobs->jobs())) {
        showMessage(tr("The list of backups could not be saved."));
    }
}

void MainWindow::showMessage(const QString &text)
{
    statusBar()->showMessage(text);
}
