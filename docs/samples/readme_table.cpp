// SPDX-License-Identifier: LGPL-3.0-or-later
#include <EditableTableView.h>

#include <QApplication>
#include <QStandardItemModel>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStandardItemModel jobs(3, 3);
    jobs.setHorizontalHeaderLabels({"Backup", "Check", ""});
    EditableTableView view;
    view.setColumns({"editbox", "checkbox:Verify", "button:Run"});
    view.setModel(&jobs);
    view.show();
    return application.exec();
}
