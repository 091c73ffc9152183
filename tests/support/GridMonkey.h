// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_GRIDMONKEY_H
#define TESSALINE_GRIDMONKEY_H

#include "GridModel.h"
#include "TableMonkey.h"

#include <QPointer>

/// Does to a GridModel what an application does to its model.
class GridMonkey : public TableMonkey
{
public:
    explicit GridMonkey(quint32 seed);
    ~GridMonkey() override;

protected:
    void canChangeTheGrid();

    void insertRows();
    void removeRows();
    void moveRow();
    void sortRows();
    void startAnew();
    void insertColumn();
    void removeColumn();
    void writeCell();

    /// The model that is worked on; null while there is none.
    QPointer<GridModel> grid;

    /// A grid of any size, which the caller owns.
    GridModel *createGrid();

    /// What may stand in a cell: all but secrets.
    QString anyText();
};

#endif
