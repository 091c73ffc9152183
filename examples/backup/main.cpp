// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"
#include "Console.h"
#include "JobStore.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "Translators.h"

#include <QApplication>
#include <QLocale>

namespace {

// Without a locale, as in cron, Qt 5 takes no file's name for one that is not ASCII.
void expectUtf8()
{
    QByteArray locale;
    for (const char *name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        locale = locale.isEmpty() ? qgetenv(name) : locale;
    }
    if (locale.isEmpty() || locale == "C" || locale == "POSIX") {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

int runInWindow(int argc, char **argv)
{
    QApplication application(argc, argv);
    Translators translators(QCoreApplication::applicationDirPath(), QLocale());
    const CommandLine line = CommandLine::parse(QCoreApplication::arguments());
    if (!line.error.isEmpty()) {
        return Console::run(line);
    }
    if (line.task == CommandLine::TakePictures) {
        return takePictures(line.folder);
    }
    MainWindow window((JobStore()));
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    expectUtf8();
    QCoreApplication::setApplicationVersion(QStringLiteral(BACKUP_VERSION));
    if (CommandLine::needsDisplay(argc, argv)) {
        return runInWindow(argc, argv);
    }
    QCoreApplication application(argc, argv);
    const Translators translators(QCoreApplication::applicationDirPath(), QLocale());
    return Console::run(CommandLine::parse(QCoreApplication::arguments()));
}
