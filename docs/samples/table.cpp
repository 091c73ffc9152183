// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <EditableTableView.h>

#include <QAbstractItemModel>
#include <QHeaderView>

namespace samples {

enum Column { Name, Source, Passphrase, Check, Run, Remove };

void declare(EditableTableView *view, QAbstractItemModel *jobs)
{
    //! [declare]
    view->setColumns(QStringList() << "editbox" // Name
                                   << "combobox" // Source
                                   << "passwordbox" // Passphrase
                                   << "checkbox:Verify" // Check
                                   << "button:Run" // Run
                                   << "button:Remove"); // Remove
    view->setModel(jobs);
    //! [declare]
}

void bind(EditableTableView *view, QAbstractItemModel *folders)
{
    //! [bind]
    view->bindModel(Source, folders); // lists column 0 of folders
    view->bindModel(Source, folders, 1); // or column 1
    //! [bind]
}

void declareAgain(EditableTableView *view, const QStringList &columns, QAbstractItemModel *folders)
{
    //! [bind again]
    view->setColumns(columns);
    view->bindModel(Source, folders); // setColumns() has deleted what was bound
    //! [bind again]
}

void setSizes(EditableTableView *view)
{
    //! [sizes]
    view->setStretchSection(Source); // takes up what is left over or missing
    view->resizeSection(Name, 160);
    view->resizeSection(Check, 90);
    view->horizontalHeader()->setSectionResizeMode(Check, QHeaderView::Fixed);
    //! [sizes]
}

void editAtOneClick(EditableTableView *view)
{
    //! [one click]
    view->setEditTriggers(QAbstractItemView::AllEditTriggers);
    //! [one click]
}

//! [secret]
QString secretOf(const QModelIndex &cell)
{
    return cell.data(Qt::UserRole + 1).toString();
}

void setSecret(QAbstractItemModel *jobs, const QModelIndex &cell, const QString &secret)
{
    jobs->setData(cell, secret, Qt::UserRole + 1);
    jobs->setData(cell, QString(8, QChar(0x25CF)), Qt::DisplayRole); // a mask of any length
}
//! [secret]

//! [clicks]
JobsWindow::JobsWindow(EditableTableView *table, QAbstractItemModel *jobsModel)
    : jobs(jobsModel)
{
    connect(table,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(act(QWidget*,int,int,QStringList)));
}

void JobsWindow::act(QWidget *, int row, int column, const QStringList &rowData)
{
    if (column == Run) {
        run(rowData.at(0)); // the cell of the first editor column: the name
    } else {
        jobs->removeRow(row);
    }
}
//! [clicks]

void JobsWindow::run(const QString &name)
{
    lastRun = name;
}

void connectByPointer(EditableTableView *table, JobsWindow *window)
{
    //! [pointer]
    void (EditableTableView::*clicked)(QWidget *, int, int, QStringList)
        = &EditableTableView::buttonClicked;
    QObject::connect(table, clicked, window, &JobsWindow::act);
    //! [pointer]
}

} // namespace samples
