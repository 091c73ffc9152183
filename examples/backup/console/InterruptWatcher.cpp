// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InterruptWatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t pipeEnd = -1;

// Nothing else is safe in a signal handler than to pass the number on.
void passOn(int number)
{
    const int savedError = errno;
    const unsigned char byte = static_cast<unsigned char>(number);
    if (::write(pipeEnd, &byte, 1) != 1) {
        // The pipe is full of earlier signals, so the watcher will wake up anyway.
    }
    errno = savedError;
}

void install(int number)
{
    struct sigaction action = {};
    action.sa_handler = passOn;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    ::sigaction(number, &action, nullptr);
}

} // namespace

InterruptWatcher::InterruptWatcher(QObject *parent)
    : QObject(parent)
    , m_pipe{-1, -1}
{
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_notifier.reset(new QSocketNotifier(m_pipe[0], QSocketNotifier::Read));
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        readPipe();
    });
    pipeEnd = m_pipe[1];
    install(SIGINT);
    install(SIGTERM);
}

InterruptWatcher::~InterruptWatcher()
{
    if (!m_notifier) {
        return;
    }
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    pipeEnd = -1;
    m_notifier.reset();
    ::close(m_pipe[0]);
    ::close(m_pipe[1]);
}

void InterruptWatcher::readPipe()
{
    unsigned char byte = 0;
    if (::read(m_pipe[0], &byte, 1) == 1) {
        m_signalNumber = byte;
        emit interrupted();
    }
}
