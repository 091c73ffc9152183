// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSTABLE_H
#define JOBSTABLE_H

#include <EditableTableView.h>

class JobModel;
class QLabel;
class QStringListModel;

/// The jobs to edit, one a row, with buttons that run and remove them.
class JobsTable : public EditableTableView
{
    Q_OBJECT

public:
    /// The model is not owned.
    explicit JobsTable(JobModel *jobs, QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;

    /// Brings the user into a cell, with its editor open.
    void editCell(int row, int column);

protected:
    bool viewportEvent(QEvent *event) override;

private slots:
    void shareWidth();
    void dressButtons();
    void collectFolders();
    void chooseSource(int row);

private:
    void setUpColumns();
    void setUpWidths();
    void setUpHint();
    void setUpSignals();

    JobModel *m_jobs;
    QStringListModel *m_sources;
    QStringListModel *m_repositories;
    QLabel *m_hint; ///< How to begin, where there is no job.
};

#endif
