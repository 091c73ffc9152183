// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "Translators.h"

#include <QApplication>
#include <QLocale>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Translators translators((QLocale()));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--pictures")) {
        return takePictures(arguments.value(2), &translators);
    }
    MainWindow window((JobStore()));
    window.show();
    return QApplication::exec();
}
