// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_BUTTONTABLES_H
#define TESSALINE_BUTTONTABLES_H

#include <EditableTableView.h>

#include <QApplication>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTableWidget>

/// Tables with a text and a button in each row, made in four ways. Each is first prepared for its
/// rows, then filled with them, which is what counts, then rows are appended.
namespace ButtonTables {

const int buttonColumn = 1;

inline QString caption()
{
    return QStringLiteral("Run");
}

/// Ours: declared once, it does the rest.
class Declared : public EditableTableView
{
public:
    void prepare(int rows)
    {
        setColumns(QStringList() << "editbox"
                                 << "button:Run");
        model.setColumnCount(2);
        model.setRowCount(rows);
    }

    void fill()
    {
        setModel(&model);
    }

    void append()
    {
        model.insertRow(model.rowCount());
    }

private:
    QStandardItemModel model;
};

/// A plain table view and a loop, the least that any application can do for real buttons.
class IndexWidgets : public QTableView
{
public:
    void prepare(int rows)
    {
        model.setColumnCount(2);
        model.setRowCount(rows);
    }

    void fill()
    {
        setModel(&model);
        for (int row = 0; row < model.rowCount(); ++row) {
            addButton(row);
        }
    }

    void append()
    {
        model.insertRow(model.rowCount());
        addButton(model.rowCount() - 1);
    }

private:
    void addButton(int row)
    {
        setIndexWidget(model.index(row, buttonColumn), new QPushButton(caption()));
    }

    QStandardItemModel model;
};

/// The toolkit's table with a model of its own.
class CellWidgets : public QTableWidget
{
public:
    void prepare(int rows)
    {
        setColumnCount(2);
        wantedRows = rows;
    }

    void fill()
    {
        setRowCount(wantedRows);
        for (int row = 0; row < wantedRows; ++row) {
            addButton(row);
        }
    }

    void append()
    {
        insertRow(rowCount());
        addButton(rowCount() - 1);
    }

private:
    void addButton(int row)
    {
        setCellWidget(row, buttonColumn, new QPushButton(caption()));
    }

    int wantedRows = 0;
};

/// Draws a push button, which nobody can reach with the keyboard or a screen reader.
class ButtonPainter : public QStyledItemDelegate
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &) const override
    {
        QStyleOptionButton button;
        button.rect = option.rect;
        button.text = caption();
        button.state = QStyle::State_Enabled | QStyle::State_Raised;
        QApplication::style()->drawControl(QStyle::CE_PushButton, &button, painter);
    }
};

/// A plain table view that only paints its buttons.
class Painted : public QTableView
{
public:
    void prepare(int rows)
    {
        setItemDelegateForColumn(buttonColumn, &painter);
        model.setColumnCount(2);
        model.setRowCount(rows);
    }

    void fill()
    {
        setModel(&model);
    }

    void append()
    {
        model.insertRow(model.rowCount());
    }

private:
    ButtonPainter painter;
    QStandardItemModel model;
};

} // namespace ButtonTables

#endif
