// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Console.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "Translators.h"

#include <QApplication>
#include <QLocale>

#include <clocale>
#include <memory>

int main(int argc, char **argv)
{
    // Without a locale, as in cron, Qt 5 takes no file's name for one that is not ASCII.
    if (QByteArray(std::setlocale(LC_CTYPE, "")) == "C") {
        qputenv("LC_ALL", "C.UTF-8");
    }
    QCoreApplication::setApplicationVersion(QStringLiteral(BACKUP_VERSION));
    const bool takesPictures = argc == 3 && QByteArray(argv[1]) == "--pictures";
    const bool needsDisplay = argc == 1 || takesPictures;
    const std::unique_ptr<QCoreApplication> application(
        needsDisplay ? new QApplication(argc, argv) : new QCoreApplication(argc, argv));
    const Translators translators(QCoreApplication::applicationDirPath(), QLocale());
    if (takesPictures) {
        return takePictures(QCoreApplication::arguments().constLast());
    }
    if (!needsDisplay) {
        return Console::run(QCoreApplication::arguments());
    }
    MainWindow window((JobStore()));
    window.show();
    return QApplication::exec();
}
