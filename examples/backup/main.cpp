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

/// Speaks the user's language where there is a translation.
void translate(QTranslator *translator, const QString &name, const QString &folder)
{
    if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(translator);
    }
}

/// The library has a few texts of its own; it loads no translation of them by itself.
struct Translators
{
    Translators()
    {
        const QDir folder(QCoreApplication::applicationDirPath());
        translate(&program, QStringLiteral("backup"),
                  folder.filePath(QStringLiteral("translations")));
        translate(&library, QStringLiteral("tessaline"), QStringLiteral(TESSALINE_TRANSLATIONS));
    }

    QTranslator program;
    QTranslator library;
};

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
    // Without a window there need not be a display.
    if (CommandLine::needsNoWindow(argc, argv)) {
        QCoreApplication application(argc, argv);
        const Translators translators;
        return runFromCommandLine(CommandLine::parse(QCoreApplication::arguments()));
    }
    QApplication application(argc, argv);
    const Translators translators;
    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    return commandLine.opensWindow() ? openWindow(commandLine) : runFromCommandLine(commandLine);
}
