// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_GRIDMODEL_H
#define TESSALINE_GRIDMODEL_H

#include <QAbstractTableModel>
#include <QVariant>

#include <vector>

/// A small table of texts and secrets that can do everything to its rows and columns that a model
/// can. It announces each write, even of what a cell holds already.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    GridModel(int rows, int columns, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    bool insertColumns(int column, int count, const QModelIndex &parent = QModelIndex()) override;
    bool removeColumns(int column, int count, const QModelIndex &parent = QModelIndex()) override;
    void sort(int column, Qt::SortOrder order) override;

    /// Moves a row before the one that is at `to`.
    void shiftRow(int from, int to);

    /// Moves a column before the one that is at `to`. For use without a view: the headers of Qt 5
    /// lose indexes of the first row then.
    void shiftColumn(int from, int to);

    /// Turns the order of the columns round, by a change of the layout.
    void mirrorColumns();

    /// Starts anew with empty cells.
    void startAnew(int rows, int columns);

    /// The column of the last write to a cell of another model, -1 if there was none. Asking
    /// forgets it.
    int takeForeignColumn();

    /// Whether views are just being told of a change. Until that is over nobody may make another.
    bool isChanging() const;

private:
    struct Cell
    {
        QVariant text; ///< For the display and edit roles.
        QVariant secret; ///< For the role after Qt::UserRole.
    };
    typedef std::vector<Cell> Row;

    std::vector<Row> cells;
    int width;
    bool changing;
    int foreignColumn;
};

#endif
