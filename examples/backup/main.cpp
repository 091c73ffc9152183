// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"
#include "JobStore.h"
#include "MainWindow.h"
#include "Pictures.h"

#include <QApplication>

namespace {

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
        return runFromCommandLine(CommandLine::parse(QCoreApplication::arguments()));
    }
    QApplication application(argc, argv);
    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    return commandLine.opensWindow() ? openWindow(commandLine) : runFromCommandLine(commandLine);
}
