// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "BackupRun.h"
#include "JobStore.h"

#include <QMainWindow>

class JobModel;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

/// The program's window: the pages, and below them how a run comes along, with a button that
/// cancels it. What the run asks, it asks the user. Keeps the jobs in the store as they are edited.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const JobStore &store, QWidget *parent = nullptr);

protected:
    /// Asks before a run is cancelled for it.
    void closeEvent(QCloseEvent *event) override;

private slots:
    void save();
    void showStart(const QString &headline);
    void showProgress(const BackupProgress &progress);
    void showDetail(const QString &text);
    void showOutcome(const Outcome &outcome);
    void ask(BackupRun::Question question);

private:
    QWidget *makePages();
    QLayout *makeRunPanel();

    JobStore m_store;
    JobModel *m_jobs;
    BackupRun *m_run;
    QLabel *m_headline;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QLabel *m_progress;
    QPlainTextEdit *m_details; ///< restic's own words.
};

#endif
