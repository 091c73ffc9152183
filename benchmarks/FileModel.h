// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_FILEMODEL_H
#define TESSALINE_FILEMODEL_H

#include <QAbstractTableModel>
#include <QStandardItemModel>

#include <vector>

const int fileColumns = 5;
const int pageRows = 1000;

/// The text of a file in a column; the files of all pages are alike.
QString fileText(int file, int column);

/// A page in one insertion of rows without items, or each row with its items, as a simple
/// application inserts them.
enum class Insertion { AtOnce, RowByRow };

/// A list of files without an item per cell, so that as little as possible of what is measured is
/// the model's own doing. Its last row is for a button.
class FileModel : public QStandardItemModel
{
    Q_OBJECT

public:
    FileModel();

    void appendEmptyRow();
    void insertFiles(int count);
    void removePage();

    QVariant data(const QModelIndex &index, int role) const override;

    Insertion insertion;

public Q_SLOTS:
    void LoadItems();

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();

private:
    std::vector<int> files; ///< Which of the texts a row has.
};

/// The least that a model can be, without a row for a button.
class VectorModel : public QAbstractTableModel
{
public:
    void insertFiles(int count);
    void removePage();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    int size() const;

    std::vector<int> files;
};

#endif
