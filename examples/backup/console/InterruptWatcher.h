// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef INTERRUPTWATCHER_H
#define INTERRUPTWATCHER_H

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns the first interrupt (Ctrl+C) or termination signal into a Qt signal. A second one of the
/// same kind ends the program at once, as usual. Only one watcher may exist at a time.
class InterruptWatcher : public QObject
{
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject *parent = nullptr);
    ~InterruptWatcher() override;

    /// 0 as long as there was none.
    int signalNumber() const
    {
        return m_signalNumber;
    }

signals:
    void interrupted();

private:
    void readPipe();

    int m_pipe[2];
    int m_signalNumber = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

#endif
