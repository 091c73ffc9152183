// SPDX-License-Identifier: LGPL-3.0-or-later
//! [model]
#ifndef FILESMODEL_H
#define FILESMODEL_H

#include <QStandardItemModel>

#include <memory>

class QDirIterator;

/// The files below a folder, page by page, for a FileListTableView.
class FilesModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit FilesModel(const QString &folder, QObject *parent = nullptr);
    ~FilesModel() override;

    /// Lists another folder, from its start.
    void setFolder(const QString &folder);

public Q_SLOTS:
    void LoadItems();

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();

private:
    std::unique_ptr<QDirIterator> files;
};

#endif
//! [model]
