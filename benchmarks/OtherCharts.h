// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_OTHERCHARTS_H
#define TESSALINE_OTHERCHARTS_H

#include "Charts.h"

#ifdef BENCH_QCUSTOMPLOT
#include <qcustomplot.h>
#endif
#ifdef BENCH_QTCHARTS
#include <QtCharts/QAreaSeries>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

// Qt 5 has the classes in there, Qt 6 has no such namespace.
namespace QtCharts {
} // namespace QtCharts
using namespace QtCharts;
#endif

/// The charts of other libraries, where they are installed.
namespace Charts {

#ifdef BENCH_QCUSTOMPLOT

class Custom : public QCustomPlot
{
public:
    Custom()
        : times(new QCPAxisTickerTime)
        , sizes(new QCPAxisTickerFixed)
    {
        setNotAntialiasedElements(QCP::aeAll);
        times->setTimeFormat(QStringLiteral("%h:%m"));
        xAxis->setTicker(times);
        xAxis->grid()->setVisible(false);
        xAxis->setTickLabelFont(smallPrint());
        yAxis->setTicker(sizes);
        yAxis->grid()->setPen(gridPen());
        yAxis->setTickLabelFont(smallPrint());
        addGraph();
        graph()->setPen(curvePen());
        graph()->setBrush(curveColor());
    }

    void add(int second)
    {
        window.add(second);
        QVector<QCPGraphData> points;
        points.reserve(window.all().size());
        for (auto sample = window.all().begin(); sample != window.all().end(); ++sample) {
            points.append(QCPGraphData(sample.key(), static_cast<double>(sample.value())));
        }
        graph()->data()->set(points, true);
        xAxis->setRange(window.left(), window.right());
        yAxis->setRange(0.0, window.top());
        sizes->setTickStep(window.step());
        if (isVisible()) { // it would draw all the same, and take seconds to be filled
            replot(rpImmediateRefresh);
        }
    }

private:
    QSharedPointer<QCPAxisTickerTime> times;
    QSharedPointer<QCPAxisTickerFixed> sizes;
    Window window;
};

#endif

#ifdef BENCH_QTCHARTS

class QtChartsView : public QChartView
{
public:
    QtChartsView()
        : line(new QLineSeries(this))
        , times(new QValueAxis)
        , sizes(new QValueAxis)
    {
        QAreaSeries *area = new QAreaSeries(line);
        area->setPen(curvePen());
        area->setBrush(curveColor());
        chart()->addSeries(area);
        chart()->legend()->hide();
        chart()->setMargins(QMargins());
        chart()->addAxis(times, Qt::AlignBottom);
        chart()->addAxis(sizes, Qt::AlignLeft);
        area->attachAxis(times);
        area->attachAxis(sizes);
        for (QValueAxis *axis : {times, sizes}) {
            axis->setTickType(QValueAxis::TicksDynamic);
            axis->setLabelsFont(smallPrint());
            axis->setLabelFormat(QStringLiteral("%.0f"));
        }
        times->setGridLineVisible(false);
        times->setTickInterval(PlotSamples::timeStep);
        sizes->setGridLinePen(gridPen());
    }

    void add(int second)
    {
        window.add(second);
        line->replace(window.points<QVector<QPointF>>());
        times->setRange(window.left(), window.right());
        sizes->setTickInterval(window.step());
        sizes->setRange(0.0, window.top());
    }

private:
    QLineSeries *line;
    QValueAxis *times; ///< Owned by the chart, as is the other.
    QValueAxis *sizes;
    Window window;
};

#endif

} // namespace Charts

#endif
