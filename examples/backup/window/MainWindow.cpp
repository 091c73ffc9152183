// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MainWindow.h"

#include "FilesPage.h"
#include "JobModel.h"
#include "JobsPage.h"
#ifdef TESSALINE_HAS_PLOT
#include "ThroughputPage.h"
#endif

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QKeySequence>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

MainWindow::MainWindow(const JobStore &store, QWidget *parent)
    : QMainWindow(parent)
    , m_store(store)
    , m_jobsPage(new JobsPage(store.load()))
    , m_filesPage(new FilesPage(m_jobsPage->engine()))
    , m_pages(new QTabWidget)
{
    setWindowTitle(tr("Backup"));
    setUpPages();
    setUpActions();
    statusBar();
    resize(960, 560);

    m_saveSoon.setSingleShot(true);
    connect(&m_saveSoon, &QTimer::timeout, this, &MainWindow::save);
    connect(m_jobsPage, &JobsPage::changed, &m_saveSoon, QOverload<>::of(&QTimer::start));
    connect(m_jobsPage, &JobsPage::currentJobChanged, m_filesPage, &FilesPage::setJob);
    connect(m_jobsPage, &JobsPage::message, this, &MainWindow::showHint);
    connect(m_filesPage, &FilesPage::message, this, &MainWindow::showHint);
    m_filesPage->setJob(m_jobsPage->currentJob());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    save();
    BackupEngine *engine = m_jobsPage->engine();
    if (engine->isRunning()) {
        connect(engine, &BackupEngine::finished, this, &QWidget::close,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        engine->cancel();
        event->ignore();
    }
}

void MainWindow::chooseSource()
{
    m_jobsPage->addSource(QFileDialog::getExistingDirectory(this, tr("Folder to back up")));
}

void MainWindow::save()
{
    m_saveSoon.stop();
    if (!m_store.save(m_jobsPage->jobs()->jobs())) {
        statusBar()->showMessage(tr("The list of backups could not be saved."));
    }
}

void MainWindow::showHint(const QString &text)
{
    statusBar()->showMessage(text);
}

void MainWindow::setUpPages()
{
    m_pages->addTab(m_jobsPage, tr("&Backups"));
    m_pages->addTab(m_filesPage, tr("&Files"));
#ifdef TESSALINE_HAS_PLOT
    m_pages->addTab(new ThroughputPage(m_jobsPage->engine()), tr("&Throughput"));
#endif
    setCentralWidget(m_pages);
}

void MainWindow::setUpActions()
{
    QMenu *menu = menuBar()->addMenu(tr("&Menu"));
    QToolBar *toolBar = addToolBar(tr("Backups"));
    toolBar->setObjectName(QStringLiteral("backups"));
    QAction *add = menu->addAction(tr("&New backup"), m_jobsPage, &JobsPage::addJob);
    add->setShortcut(QKeySequence::New);
    toolBar->addAction(add);
    QAction *source
        = menu->addAction(tr("Add &folder to choose from..."), this, &MainWindow::chooseSource);
    source->setShortcut(QKeySequence::Open);
    toolBar->addAction(source);
    QAction *quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
}
