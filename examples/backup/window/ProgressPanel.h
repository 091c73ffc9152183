// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef PROGRESSPANEL_H
#define PROGRESSPANEL_H

#include "BackupReport.h"

#include <QWidget>

class BackupEngine;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;

/// How a run comes along: what it does, how far it is in bytes and files, what went wrong, and a
/// button that cancels it.
class ProgressPanel : public QWidget
{
    Q_OBJECT

public:
    /// The engine is not owned.
    explicit ProgressPanel(BackupEngine *engine, QWidget *parent = nullptr);

    /// Clears away the last run.
    void begin(const QString &jobName);
    /// Shows why a run was not started.
    void showRefusal(const QString &reason);

private slots:
    void showProgress(const BackupProgress &progress);
    void showProblem(const BackupProblem &problem);
    void showSummary(const BackupSummary &summary);

private:
    QString m_jobName;
    QLabel *m_headline;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QLabel *m_details;
    QTreeWidget *m_problems;
};

#endif
