// SPDX-License-Identifier: LGPL-3.0-or-later
// Measures how soon the window answers while a backup of many small files runs, each of its pages
// shown in turn: the longest time between two looks at the clock that should be 2 ms apart, and the
// longest time that the window worked in between; the rest was other programs'. No test.
#include "WindowTools.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

#include <time.h>

#include <algorithm>
#include <cstdio>

namespace {

double threadMilliseconds()
{
    struct timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1000000;
}

/// Looks at the clocks as often as the event loop lets it.
class Probe : public QObject
{
public:
    Probe()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            const double worked = threadMilliseconds();
            m_gaps.append(m_clock.restart());
            m_longestWork = qMax(m_longestWork, worked - m_workedBefore);
            m_workedBefore = worked;
        });
        m_clock.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(2);
    }

    void report(const char *name)
    {
        std::sort(m_gaps.begin(), m_gaps.end());
        const int last = int(m_gaps.size()) - 1;
        std::printf("%-10s %6d times, the longest %3lld ms, 99 of 100 within %2lld ms; "
                    "worked %.1f ms at most\n",
                    name, last + 1, m_gaps.at(last), m_gaps.at(last - last / 100), m_longestWork);
        m_gaps.clear();
        m_longestWork = 0;
        m_clock.restart();
    }

private:
    QElapsedTimer m_clock;
    QTimer m_timer;
    QVector<qint64> m_gaps;
    double m_workedBefore = threadMilliseconds();
    double m_longestWork = 0;
};

} // namespace

class WindowLatency : public QObject
{
    Q_OBJECT

private slots:
    void measure();
};

void WindowLatency::measure()
{
    NEEDS_RESTIC()
    const Window window;
    for (int number = 0; number < 100000; ++number) {
        window.write(QStringLiteral("letters/%1/%2").arg(number / 1000).arg(number),
                     QByteArray::number(number));
    }
    window.typePassword(0, QStringLiteral("secret"));
    window.spinBox()->setValue(0);
    answerNextQuestion(QMessageBox::Yes);
    window.click(0, JobModel::Run);
    QTRY_VERIFY_WITH_TIMEOUT(window.run()->bytesDone() > 0, 60000);

    Probe probe;
    QTabWidget *pages = window.find<QTabWidget>();
    while (window.run()->isRunning()) {
        QTest::qWait(1500);
        probe.report(qPrintable(pages->tabText(pages->currentIndex()).remove(QLatin1Char('&'))));
        pages->setCurrentIndex((pages->currentIndex() + 1) % pages->count());
    }
    QVERIFY(window.shows(QStringLiteral("Snapshot")));
}

int main(int argc, char **argv)
{
    WindowLatency measurement;
    return runTests(&measurement, argc, argv);
}

#include "windowlatency.moc"
