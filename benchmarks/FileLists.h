// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_FILELISTS_H
#define TESSALINE_FILELISTS_H

#include "FileModel.h"

#include <FileListTableView.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QTableWidgetItem>
#include <QTreeWidget>

/// Lists of files, made in five ways. Each is filled once, then a page of rows comes to its end.
namespace FileLists {

const int fixedWidths[] = {120, 70, 55, 65};

/// Ours: it asks the model for a page.
class Paged : public FileListTableView
{
public:
    void fill(int rowCount)
    {
        setModel(&model);
        model.insertFiles(rowCount);
    }

    void insertPage(Insertion insertion)
    {
        model.insertion = insertion;
        StartLoadingData();
    }

    void removePage()
    {
        model.removePage();
    }

private:
    FileModel model;
};

/// Sets a toolkit's table up the way that ours is, once and for all.
inline void setUp(QTableView *view)
{
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    view->horizontalHeader()->setHighlightSections(false);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionMode(QAbstractItemView::NoSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->verticalHeader()->hide();
    view->verticalHeader()->setMinimumSectionSize(18);
    view->verticalHeader()->setDefaultSectionSize(18);
    view->setWordWrap(false);
    view->setShowGrid(false);
}

inline void setWidths(QHeaderView *header, int width)
{
    header->resizeSection(0, width - 315);
    int column = 0;
    for (int sectionWidth : fixedWidths) {
        header->resizeSection(++column, sectionWidth);
    }
}

/// A table view, without a button, whose model gets the same rows.
class Plain : public QTableView
{
public:
    void fill(int rowCount)
    {
        setUp(this);
        setSortingEnabled(true);
        setModel(&model);
        horizontalHeader()->setSortIndicatorShown(false);
        setWidths(horizontalHeader(), width() - verticalScrollBar()->width());
        model.appendEmptyRow();
        model.insertFiles(rowCount);
    }

    void insertPage(Insertion insertion)
    {
        model.insertion = insertion;
        model.LoadItems();
    }

    void removePage()
    {
        model.removePage();
    }

private:
    FileModel model;
};

/// A table view on the least that a model can be.
class OfVector : public QTableView
{
public:
    void fill(int rowCount)
    {
        setUp(this);
        setModel(&model);
        setWidths(horizontalHeader(), width() - verticalScrollBar()->width());
        model.insertFiles(rowCount);
    }

    void insertPage(Insertion)
    {
        model.insertFiles(pageRows);
    }

    void removePage()
    {
        model.removePage();
    }

private:
    VectorModel model;
};

/// The toolkit's table with an item in each cell.
class OfTableItems : public QTableWidget
{
public:
    void fill(int rows)
    {
        setUp(this);
        setColumnCount(fileColumns);
        setWidths(horizontalHeader(), width() - verticalScrollBar()->width());
        append(rows);
    }

    void insertPage(Insertion)
    {
        append(pageRows);
    }

    void removePage()
    {
        setRowCount(rowCount() - pageRows);
    }

private:
    void append(int count)
    {
        const int first = rowCount();
        setRowCount(first + count);
        for (int row = first; row < first + count; ++row) {
            for (int column = 0; column < fileColumns; ++column) {
                setItem(row, column, new QTableWidgetItem(fileText(row, column)));
            }
        }
    }
};

/// The toolkit's tree with an item for each row.
class OfTreeItems : public QTreeWidget
{
public:
    void fill(int rows)
    {
        setColumnCount(fileColumns);
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setSelectionMode(QAbstractItemView::NoSelection);
        setWidths(header(), width() - verticalScrollBar()->width());
        append(rows);
    }

    void insertPage(Insertion)
    {
        append(pageRows);
    }

    void removePage()
    {
        for (int i = 0; i < pageRows; ++i) {
            delete takeTopLevelItem(topLevelItemCount() - 1);
        }
    }

private:
    void append(int count)
    {
        QList<QTreeWidgetItem *> items;
        for (int row = 0; row < count; ++row) {
            QTreeWidgetItem *item = new QTreeWidgetItem;
            for (int column = 0; column < fileColumns; ++column) {
                item->setText(column, fileText(row, column));
            }
            items.append(item);
        }
        addTopLevelItems(items);
    }
};

} // namespace FileLists

#endif
