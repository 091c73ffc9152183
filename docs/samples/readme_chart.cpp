// SPDX-License-Identifier: LGPL-3.0-or-later
#include <UpdatablePlot.h>

#include <QApplication>
#include <QTimer>

#include <cstdlib>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    UpdatablePlot chart;
    chart.setCurveColor("steelblue");
    QTimer second;
    QObject::connect(&second, &QTimer::timeout, [&chart] {
        chart.updateData(std::rand() % 1000000);
    });
    second.start(1000);
    chart.show();
    return application.exec();
}
