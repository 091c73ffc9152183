// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "JobStore.h"

#include <QMainWindow>
#include <QTimer>

class BackupRun;
class JobModel;

/// The program's window. Keeps the jobs in the store as they are edited.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const JobStore &store, QWidget *parent = nullptr);

protected:
    /// Saves what is not saved yet. Asks before a run is cancelled for it.
    void closeEvent(QCloseEvent *event) override;

private slots:
    void save();
    void showMessage(const QString &text);

private:
    void setUpPages();
    void saveWhenChanged();

    JobStore m_store;
    JobModel *m_jobs;
    BackupRun *m_run;
    QTimer m_saveSoon; ///< Gathers the changes of one edit into one save.
};

#endif
