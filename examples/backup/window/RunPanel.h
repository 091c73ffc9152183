// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RUNPANEL_H
#define RUNPANEL_H

#include "BackupRun.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

/// How a run comes along: what it does, how far it is, what it ended with, and a button that
/// cancels it. What the run asks, it asks the user.
class RunPanel : public QWidget
{
    Q_OBJECT

public:
    /// The run is not owned.
    explicit RunPanel(BackupRun *run, QWidget *parent = nullptr);

public slots:
    /// Clears away the last run.
    void begin(const QString &headline);

private slots:
    void showProgress(const BackupProgress &progress);
    void showOutcome(const Outcome &outcome);
    void addDetail(const QString &text);
    void ask(BackupRun::Question question);

private:
    BackupRun *m_run;
    QLabel *m_headline;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QLabel *m_progress;
    QPlainTextEdit *m_details; ///< restic's own words.
};

#endif
