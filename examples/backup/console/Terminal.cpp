// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Terminal.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

// Fits the narrowest usual terminal: a line that wraps could not be rewritten.
const int width = 78;
bool showsProgress = false;

bool isTerminal(std::FILE *stream)
{
#ifdef _WIN32
    return ::_isatty(::_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

/// Whether the terminal is to show what is typed. False where that cannot be told to it.
bool setEcho(bool on)
{
    QProcess stty;
    stty.setInputChannelMode(QProcess::ForwardedInputChannel);
    stty.start("stty", {on ? "echo" : "-echo"});
    return stty.waitForFinished() && stty.exitCode() == 0;
}

QString readLine()
{
    std::string line;
    std::getline(std::cin, line);
    return QString::fromStdString(line.substr(0, line.find('\r')));
}

} // namespace

QString Terminal::readPassword()
{
    if (!isTerminal(stdin)) {
        return readLine();
    }
    const bool isHidden = setEcho(false);
    const QString prompt = isHidden
        ? QCoreApplication::translate("Terminal", "Password of the repository: ")
        : QCoreApplication::translate("Terminal", "Password of the repository (can be seen): ");
    std::fputs(qPrintable(prompt), stderr);
    QString password = readLine();
    if (isHidden) {
        setEcho(true);
        std::fputs("\n", stderr);
    }
    return password;
}

void Terminal::showProgress(const QString &text)
{
    if (!isTerminal(stderr)) {
        return;
    }
    clearProgress();
    QString line = text.left(width);
    for (QChar &character : line) {
        character = character.isPrint() ? character : QLatin1Char('?');
    }
    std::fputs(qPrintable(line), stderr);
    showsProgress = true;
}

void Terminal::clearProgress()
{
    if (showsProgress) {
        std::fprintf(stderr, "\r%*s\r", width, "");
    }
    showsProgress = false;
}
