// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FilesModel.h" // docs/samples/FilesModel.h and .cpp

#include <FileListTableView.h>

#include <QApplication>
#include <QDir>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    FilesModel files(QDir::homePath());
    FileListTableView list;
    list.setModel(&files);
    list.StartLoadingData();
    list.resize(640, 400);
    list.show();
    return application.exec();
}
