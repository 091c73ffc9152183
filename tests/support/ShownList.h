// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SHOWNLIST_H
#define TESSALINE_SHOWNLIST_H

#include "CellButton.h"
#include "FileListTableView.h"
#include "PagedModel.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

/// Counts how often all rows are laid out.
class NotingView : public FileListTableView
{
public:
    void doItemsLayout() override
    {
        ++layouts;
        FileListTableView::doItemsLayout();
    }

    int layouts = 0;
};

/// A shown list of 600 x 400 pixels.
struct List
{
    List()
    {
        view.setModel(&model);
        showWindow(&view, 600, 400);
    }

    CellButton *button() const
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (QWidget *widget = view.indexWidget(model.index(row, 0))) {
                return dynamic_cast<CellButton *>(widget);
            }
        }
        return nullptr;
    }

    /// The row and label of the button, such as "2 Next >>"; "none" without one.
    QString paging() const
    {
        const CellButton *next = button();
        return next ? QString("%1 %2").arg(next->index.row()).arg(next->text()) : QString("none");
    }

    void click() const
    {
        QTest::mouseClick(button(), Qt::LeftButton);
    }

    void clickHeader(int column)
    {
        QHeaderView *header = view.horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column)
                               + header->sectionSize(column) / 2,
                           header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), place);
    }

    /// Has so many rows and more to come.
    void fill(int rows)
    {
        view.StartLoadingData();
        model.deliver(rows, false);
        QCoreApplication::processEvents();
    }

    PagedModel model;
    NotingView view;
};

#endif
