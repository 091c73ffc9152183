// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"
#include "JobStore.h"
#include "MainWindow.h"
#include "Pictures.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

namespace {

/// Speaks the user's language where there is a translation: of the library's few texts too, which
/// loads none by itself.
void translate(QTranslator *translator)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    if (translator->load(QLocale(), QStringLiteral("backup"), QStringLiteral("_"),
                         folder.filePath(QStringLiteral("translations")))) {
        QCoreApplication::installTranslator(translator);
    }
}

int openWindow(const CommandLine &commandLine)
{
    if (!commandLine.picturesFolder.isEmpty()) {
        return takePictures(commandLine);
    }
    MainWindow window((JobStore()));
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QTranslator translator;
    // Without a window there need not be a display.
    if (CommandLine::needsNoWindow(argc, argv)) {
        QCoreApplication application(argc, argv);
        translate(&translator);
        return runFromCommandLine(CommandLine::parse(QCoreApplication::arguments()));
    }
    QApplication application(argc, argv);
    translate(&translator);
    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    return commandLine.opensWindow() ? openWindow(commandLine) : runFromCommandLine(commandLine);
}
