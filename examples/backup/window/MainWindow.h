// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "JobStore.h"

#include <QMainWindow>
#include <QTimer>

class FilesPage;
class JobsPage;
class QTabWidget;

/// The program's window. Keeps the jobs in the store as they are edited.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const JobStore &store, QWidget *parent = nullptr);

    JobsPage *jobsPage() const
    {
        return m_jobsPage;
    }

    FilesPage *filesPage() const
    {
        return m_filesPage;
    }

    QTabWidget *pages() const
    {
        return m_pages;
    }

protected:
    /// Saves what is not saved yet. A running backup is cancelled in good order first.
    void closeEvent(QCloseEvent *event) override;

private slots:
    void chooseSource();
    void save();
    void showHint(const QString &text);

private:
    void setUpPages();
    void setUpActions();

    JobStore m_store;
    JobsPage *m_jobsPage;
    FilesPage *m_filesPage;
    QTabWidget *m_pages;
    QTimer m_saveSoon; ///< Gathers the changes of one edit into one save.
};

#endif
