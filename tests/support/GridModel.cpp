// SPDX-License-Identifier: LGPL-3.0-or-later
#include "GridModel.h"

#include <algorithm>

namespace {

const int secretRole = Qt::UserRole + 1;

/// Holds a flag for the time of a change.
class Change
{
    Q_DISABLE_COPY(Change)

public:
    explicit Change(bool *flag)
        : changing(flag)
    {
        *changing = true;
    }

    ~Change()
    {
        *changing = false;
    }

private:
    bool *const changing;
};

template <class Items> void shift(Items *items, int from, int to)
{
    const auto item = items->begin() + from;
    if (to > from) {
        std::rotate(item, item + 1, items->begin() + to);
    } else {
        std::rotate(items->begin() + to, item, item + 1);
    }
}

} // namespace

GridModel::GridModel(int rows, int columns, QObject *parent)
    : QAbstractTableModel(parent)
    , cells(static_cast<std::size_t>(rows), Row(static_cast<std::size_t>(columns)))
    , width(columns)
    , changing(false)
    , foreignColumn(-1)
{
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(cells.size());
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : width;
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= width) {
        return QVariant();
    }
    const Cell &cell
        = cells[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText ? cell.text : role == secretRole ? cell.secret : QVariant();
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.isValid() && index.model() != this) {
        foreignColumn = index.column();
        return false;
    }
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= width) {
        return false;
    }
    Cell &cell
        = cells[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    (role == secretRole ? cell.secret : cell.text) = value;
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool GridModel::insertRows(int row, int count, const QModelIndex &)
{
    const Change change(&changing);
    beginInsertRows(QModelIndex(), row, row + count - 1);
    cells.insert(cells.begin() + row, static_cast<std::size_t>(count),
                 Row(static_cast<std::size_t>(width)));
    endInsertRows();
    return true;
}

bool GridModel::removeRows(int row, int count, const QModelIndex &)
{
    const Change change(&changing);
    beginRemoveRows(QModelIndex(), row, row + count - 1);
    cells.erase(cells.begin() + row, cells.begin() + row + count);
    endRemoveRows();
    return true;
}

bool GridModel::insertColumns(int column, int count, const QModelIndex &)
{
    const Change change(&changing);
    beginInsertColumns(QModelIndex(), column, column + count - 1);
    for (Row &row : cells) {
        row.insert(row.begin() + column, static_cast<std::size_t>(count), Cell());
    }
    width += count;
    endInsertColumns();
    return true;
}

bool GridModel::removeColumns(int column, int count, const QModelIndex &)
{
    const Change change(&changing);
    beginRemoveColumns(QModelIndex(), column, column + count - 1);
    for (Row &row : cells) {
        row.erase(row.begin() + column, row.begin() + column + count);
    }
    width -= count;
    endRemoveColumns();
    return true;
}

void GridModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= width) {
        return;
    }
    const Change change(&changing);
    emit layoutAboutToBeChanged();
    std::vector<int> origins; // of the rows in their new order
    for (int row = 0; row < rowCount(); ++row) {
        origins.push_back(row);
    }
    const std::vector<Row> unsorted = cells;
    const auto textAt = [&unsorted, column](int row) {
        return unsorted[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]
            .text.toString();
    };
    std::stable_sort(origins.begin(), origins.end(), [&textAt, order](int left, int right) {
        return order == Qt::AscendingOrder ? textAt(left) < textAt(right)
                                           : textAt(right) < textAt(left);
    });
    const QModelIndexList followed = persistentIndexList();
    QModelIndexList moved = followed;
    for (int row = 0; row < rowCount(); ++row) {
        const int origin = origins[static_cast<std::size_t>(row)];
        cells[static_cast<std::size_t>(row)] = unsorted[static_cast<std::size_t>(origin)];
        for (int i = 0; i < followed.size(); ++i) {
            if (followed.at(i).row() == origin) {
                moved[i] = index(row, followed.at(i).column());
            }
        }
    }
    changePersistentIndexList(followed, moved);
    emit layoutChanged();
}

void GridModel::shiftRow(int from, int to)
{
    const Change change(&changing);
    if (beginMoveRows(QModelIndex(), from, from, QModelIndex(), to)) {
        shift(&cells, from, to);
        endMoveRows();
    }
}

void GridModel::shiftColumn(int from, int to)
{
    const Change change(&changing);
    if (beginMoveColumns(QModelIndex(), from, from, QModelIndex(), to)) {
        for (Row &row : cells) {
            shift(&row, from, to);
        }
        endMoveColumns();
    }
}

void GridModel::mirrorColumns()
{
    const Change change(&changing);
    emit layoutAboutToBeChanged();
    for (Row &row : cells) {
        std::reverse(row.begin(), row.end());
    }
    const QModelIndexList followed = persistentIndexList();
    for (const QModelIndex &cell : followed) {
        changePersistentIndex(cell, index(cell.row(), width - 1 - cell.column()));
    }
    emit layoutChanged();
}

void GridModel::startAnew(int rows, int columns)
{
    const Change change(&changing);
    beginResetModel();
    cells.assign(static_cast<std::size_t>(rows), Row(static_cast<std::size_t>(columns)));
    width = columns;
    endResetModel();
}

bool GridModel::isChanging() const
{
    return changing;
}

int GridModel::takeForeignColumn()
{
    const int column = foreignColumn;
    foreignColumn = -1;
    return column;
}
