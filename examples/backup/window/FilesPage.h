// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FILESPAGE_H
#define FILESPAGE_H

#include "BackupJob.h"

#include <QWidget>

class BackupEngine;
class FileListModel;
class FileListTableView;
class QLabel;
class SpinBox;

/// The files of the selected job's source, and which of them are saved.
class FilesPage : public QWidget
{
    Q_OBJECT

public:
    /// The engine is not owned; a backup that it runs is followed in the list.
    explicit FilesPage(BackupEngine *engine, QWidget *parent = nullptr);

    /// Lists the job's source from the start. Nothing is read before the page is shown.
    void setJob(const BackupJob &job);

    FileListTableView *list() const
    {
        return m_list;
    }

    FileListModel *model() const
    {
        return m_model;
    }

    SpinBox *pageSize() const
    {
        return m_pageSize;
    }

signals:
    /// A hint for the status bar.
    void message(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void showPageSizeHint();

private:
    void listJob();

    BackupJob m_job;
    bool m_isStale = true;
    QLabel *m_headline;
    SpinBox *m_pageSize;
    FileListTableView *m_list;
    FileListModel *m_model;
};

#endif
