// SPDX-License-Identifier: LGPL-3.0-or-later
// Writes pictures of the chart for the documentation, on a clock of its own:
//   plotpictures DIR
#include "PlotClock.h"
#include "TestCase.h"
#include "UpdatablePlot.h"

#include <QColor>
#include <QDir>
#include <QPalette>

#include <cmath>

namespace {

int second = 0;

QDateTime pictureTime()
{
    return PlotClock::startTime.addSecs(second);
}

/// Something like the bytes that a backup copies in a second.
qint64 copiedBytes(int atSecond)
{
    const double wave = 1.0 + std::sin(atSecond / 97.0) * std::cos(atSecond / 31.0);
    return atSecond % 700 < 60 ? 0 : static_cast<qint64>(wave * 9e6);
}

void runUntil(UpdatablePlot *plot, int end)
{
    for (; second < end; ++second) {
        plot->updateData(copiedBytes(second));
    }
}

bool take(QWidget *plot, const QString &path)
{
    QCoreApplication::processEvents();
    return compat::grab(plot).save(path);
}

} // namespace

int main(int argc, char **argv)
{
    choosePlatform();
    QApplication application(argc, argv);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath());
    PlotClock::currentDateTime = pictureTime;
    UpdatablePlot plot;
    plot.setCurveColor("steelblue");
    plot.setXTitle("Time");
    plot.setYTitle("Copied in a second");
    plot.resize(640, 280);
    plot.show();

    bool done = take(&plot, folder.filePath("plot-empty.png"));
    runUntil(&plot, 120);
    done = take(&plot, folder.filePath("plot-two-minutes.png")) && done;
    runUntil(&plot, 31 * 60);
    done = take(&plot, folder.filePath("plot-full.png")) && done;
    QApplication::setPalette(QPalette(QColor(53, 53, 53)));
    done = take(&plot, folder.filePath("plot-dark.png")) && done;
    return done ? 0 : 1;
}
