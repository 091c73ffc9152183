// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ui_BackupForm.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTimer>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::BackupForm form;
    form.setupUi(&window);

    QStandardItemModel jobs(3, 4);
    QStandardItemModel schedules;
    schedules.appendColumn({new QStandardItem("daily"), new QStandardItem("weekly")});
    form.jobs->setModel(&jobs);
    form.jobs->bindModel(1, &schedules);

    QTimer second;
    QObject::connect(&second, &QTimer::timeout, [&] {
        form.throughput->updateData(form.limit->value() * 1024 * 1024);
    });
    second.start(1000);

    window.show();
    return application.exec();
}
