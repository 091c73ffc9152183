// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileModel.h"

#include <array>

namespace {

std::vector<std::array<QString, fileColumns>> makeTexts()
{
    std::vector<std::array<QString, fileColumns>> texts;
    for (int i = 0; i < pageRows; ++i) {
        texts.push_back(
            {{QStringLiteral("photograph-%1.jpg").arg(i),
              QStringLiteral("2021-03-%1 10:20").arg(i % 28 + 1), QStringLiteral("%1 KB").arg(i),
              QStringLiteral("copied"), QStringLiteral("0644")}});
    }
    return texts;
}

} // namespace

QString fileText(int file, int column)
{
    static const std::vector<std::array<QString, fileColumns>> texts = makeTexts();
    return texts[static_cast<std::size_t>(file % pageRows)][static_cast<std::size_t>(column)];
}

FileModel::FileModel()
    : QStandardItemModel(0, fileColumns)
    , insertion(Insertion::AtOnce)
{
}

void FileModel::appendEmptyRow()
{
    appendRow(QList<QStandardItem *>());
}

void FileModel::insertFiles(int count)
{
    for (int i = 0; i < count; ++i) {
        files.push_back(static_cast<int>(files.size()) % pageRows);
    }
    if (insertion == Insertion::AtOnce) {
        insertRows(rowCount() - 1, count);
        return;
    }
    for (int i = 0; i < count; ++i) {
        QList<QStandardItem *> items;
        for (int column = 0; column < fileColumns; ++column) {
            items.append(new QStandardItem(fileText(i, column)));
        }
        insertRow(rowCount() - 1, items);
    }
}

void FileModel::removePage()
{
    removeRows(rowCount() - 1 - pageRows, pageRows);
    files.resize(files.size() - pageRows);
}

QVariant FileModel::data(const QModelIndex &index, int role) const
{
    const std::size_t row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= files.size()) {
        return QVariant();
    }
    return fileText(files[row], index.column());
}

void FileModel::LoadItems()
{
    insertFiles(pageRows);
    emit pageLoaded(pageRows, false);
}

void VectorModel::insertFiles(int count)
{
    beginInsertRows(QModelIndex(), size(), size() + count - 1);
    for (int i = 0; i < count; ++i) {
        files.push_back(size() % pageRows);
    }
    endInsertRows();
}

void VectorModel::removePage()
{
    beginRemoveRows(QModelIndex(), size() - pageRows, size() - 1);
    files.resize(files.size() - pageRows);
    endRemoveRows();
}

int VectorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : size();
}

int VectorModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : fileColumns;
}

QVariant VectorModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole) {
        return QVariant();
    }
    return fileText(files[static_cast<std::size_t>(index.row())], index.column());
}

int VectorModel::size() const
{
    return static_cast<int>(files.size());
}
