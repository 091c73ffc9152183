// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_BUTTONTABLE_H
#define TESSALINE_BUTTONTABLE_H

#include "CellButton.h"
#include "EditableTableView.h"

#include <QStandardItemModel>

/// Lets a test announce a row, and notes the rows that are announced and how often all are laid
/// out.
class OpenTableView : public EditableTableView
{
public:
    void doItemsLayout() override
    {
        ++layouts;
        EditableTableView::doItemsLayout();
    }

    QStringList announced;
    int layouts = 0;

protected:
    void rowsInserted(const QModelIndex &parent, int start, int end) override
    {
        announced.append(QString("%1-%2").arg(start).arg(end));
        EditableTableView::rowsInserted(parent, start, end);
    }

public:
    void announce(int row)
    {
        rowsInserted(QModelIndex(), row, row);
    }
};

/// An "editbox" and a "button:Delete" column over the rows "a", "b", "c".
struct ButtonTable
{
    explicit ButtonTable(const QStringList &columns = QStringList() << "editbox"
                                                                    << "button:Delete",
                         int columnCount = 2)
        : model(3, columnCount)
    {
        for (int row = 0; row < 3; ++row) {
            model.setData(model.index(row, 0), QString(QChar('a' + row)));
        }
        view.setColumns(columns);
        view.setModel(&model);
    }

    CellButton *button(int row, int column = 1)
    {
        return dynamic_cast<CellButton *>(view.button(row, column));
    }

    /// The rows that the buttons of column 1 believe to stand in, read from the top.
    QString buttonRows()
    {
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            CellButton *cell = button(row);
            rows.append(cell ? QString::number(cell->index.row()) : QString("-"));
        }
        return rows.join(",");
    }

    QStandardItemModel model;
    OpenTableView view;
};

#endif
