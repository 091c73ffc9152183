// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_JOINEDTHREAD_H
#define TESSALINE_JOINEDTHREAD_H

#include <QThread>

#include <atomic>

/// A thread whose end ThreadSanitizer sees. It does not see into Qt, whose wait() for a thread that
/// has ended already goes by a lock of its own; what the thread did would look like a race with all
/// that comes after.
class JoinedThread : public QThread
{
public:
    JoinedThread()
        : hasEnded(false)
    {
    }

    /// Waits for the end of a thread that was started.
    bool join()
    {
        return wait() && hasEnded.load();
    }

protected:
    /// What the thread does; by default it handles events until quit().
    virtual void work()
    {
        exec();
    }

private:
    void run() override
    {
        work();
        hasEnded.store(true);
    }

    std::atomic<bool> hasEnded;
};

#endif
