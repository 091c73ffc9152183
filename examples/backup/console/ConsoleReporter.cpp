// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ConsoleReporter.h"

#include "BackupEngine.h"
#include "ReportText.h"

#include <cstdio>

#include <unistd.h>

namespace {

const qint64 progressMilliseconds = 100;
// Fits the narrowest usual terminal: a line that wraps could not be rewritten.
const int progressWidth = 78;

} // namespace

ConsoleReporter::ConsoleReporter(BackupEngine *engine, QObject *parent)
    : QObject(parent)
    , m_isTerminal(::isatty(STDERR_FILENO) == 1)
{
    connect(engine, &BackupEngine::progressChanged, this, &ConsoleReporter::showProgress);
    connect(engine, &BackupEngine::problemFound, this, &ConsoleReporter::showProblem);
    connect(engine, &BackupEngine::finished, this, &ConsoleReporter::showSummary);
}

void ConsoleReporter::showProgress(const BackupProgress &progress)
{
    const bool isTooSoon
        = m_sinceProgress.isValid() && m_sinceProgress.elapsed() < progressMilliseconds;
    if (!m_isTerminal || isTooSoon) {
        return;
    }
    clearProgress();
    std::fputs(qPrintable(ReportText::progress(progress).left(progressWidth)), stderr);
    std::fflush(stderr);
    m_showsProgress = true;
    m_sinceProgress.start();
}

void ConsoleReporter::showProblem(const BackupProblem &problem)
{
    clearProgress();
    std::fprintf(stderr, "%s: %s\n", qPrintable(problem.path), qPrintable(problem.text));
}

void ConsoleReporter::showSummary(const BackupSummary &summary)
{
    clearProgress();
    std::printf("%s\n", qPrintable(ReportText::summary(summary)));
    std::fflush(stdout);
    m_exitStatus = summary.isComplete() ? 0 : 1;
}

void ConsoleReporter::clearProgress()
{
    if (m_showsProgress) {
        std::fprintf(stderr, "\r%*s\r", progressWidth, "");
        m_showsProgress = false;
    }
}
