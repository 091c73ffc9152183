// SPDX-License-Identifier: LGPL-3.0-or-later
// The chart has its curve drawn in ways of its own. What comes of it is what a bare plot draws that
// is told the same, pixel by pixel.
#include "TestCase.h"
#include "TwoPlots.h"

#include <qwt_scale_map.h>

#include <QPicture>

namespace {

/// A recording as large as a screen, as a printer is: the chart can't tell by its size that it has
/// no pixels.
class LargePicture : public QPicture
{
protected:
    int metric(PaintDeviceMetric which) const override
    {
        return which == PdmWidth || which == PdmHeight ? 2000 : QPicture::metric(which);
    }
};

template <class Plot> QByteArray recordedCanvas(Plot *plot)
{
    LargePicture picture;
    QPainter painter(&picture);
    plot->drawCanvas(&painter);
    painter.end();
    return QByteArray(picture.data(), static_cast<int>(picture.size()));
}

} // namespace

class PlotPictureTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void paintsWhatABarePlotPaints_data();
    void paintsWhatABarePlotPaints();
    void paintsTheSameBeforeItHasAColor();
    void paintsTheSameOnADarkPalette();
    void paintsTheSameAtEachPixelRatio_data();
    void paintsTheSameAtEachPixelRatio();
    void paintsTheSamePartOfItsCurve();
    void recordsWhatABarePlotRecords();
};

void PlotPictureTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void PlotPictureTest::paintsWhatABarePlotPaints_data()
{
    QTest::addColumn<Samples>("samples");

    QTest::newRow("no sample") << Samples();
    QTest::newRow("one") << samplesOf(flat, 1);
    QTest::newRow("two") << samplesOf(ramp, 2);
    QTest::newRow("two, half an hour apart") << samplesOf(storm, 2, 1801);
    QTest::newRow("ten") << samplesOf(noise, 10);
    QTest::newRow("ten, over the half hour") << samplesOf(storm, 10, 200);
    QTest::newRow("a hundred, over the half hour") << samplesOf(storm, 100, 18);
    QTest::newRow("half a chart") << samplesOf(noise, 900);
    QTest::newRow("with gaps") << withGaps();
    QTest::newRow("flat") << samplesOf(flat, 1802);
    QTest::newRow("nothing but 0") << samplesOf(
        [](int) {
            return qint64(0);
        },
        1802);
    QTest::newRow("ramp") << samplesOf(ramp, 1802);
    QTest::newRow("gentle") << samplesOf(gentle, 1802);
    QTest::newRow("noise") << samplesOf(noise, 1802);
    QTest::newRow("storm") << samplesOf(storm, 1802);
    QTest::newRow("a spike a second") << samplesOf(spikes, 1802);
    QTest::newRow("below 0") << samplesOf(aroundZero, 1802);
    QTest::newRow("the ends of 64 bits") << samplesOf(extremes, 1802);
}

void PlotPictureTest::paintsWhatABarePlotPaints()
{
    QFETCH(Samples, samples);
    TwoPlots plots(samples);

    QCOMPARE(differencesBySize(&plots, sizes()), noDifferences(sizes()));
}

void PlotPictureTest::paintsTheSameBeforeItHasAColor()
{
    TwoPlots plots(samplesOf(noise, 1802), QString());

    QCOMPARE(differencesBySize(&plots, someSizes()), noDifferences(someSizes()));
}

void PlotPictureTest::paintsTheSameOnADarkPalette()
{
    TwoPlots plots(samplesOf(noise, 1802));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53)));

    const QString differences = differencesBySize(&plots, someSizes());

    QApplication::setPalette(before);
    QCOMPARE(differences, noDifferences(someSizes()));
}

void PlotPictureTest::paintsTheSameAtEachPixelRatio_data()
{
    QTest::addColumn<double>("pixelRatio");
    QTest::addColumn<Samples>("samples");

    QTest::newRow("1, noise") << 1.0 << samplesOf(noise, 1802);
    QTest::newRow("1.5, noise") << 1.5 << samplesOf(noise, 1802);
    QTest::newRow("1.5, storm") << 1.5 << samplesOf(storm, 1802);
    QTest::newRow("1.5, a hundred") << 1.5 << samplesOf(storm, 100, 18);
    QTest::newRow("2, noise") << 2.0 << samplesOf(noise, 1802);
    QTest::newRow("2, storm") << 2.0 << samplesOf(storm, 1802);
    QTest::newRow("2, a hundred") << 2.0 << samplesOf(storm, 100, 18);
}

void PlotPictureTest::paintsTheSameAtEachPixelRatio()
{
    QFETCH(double, pixelRatio);
    QFETCH(Samples, samples);
    TwoPlots plots(samples);

    QStringList found;
    const QStringList all = someSizes();
    for (const QString &size : all) {
        plots.resize(sizeOf(size));
        found.append(QString("%1:%2").arg(size).arg(differences(
            canvasPicture(&plots.chart, pixelRatio), canvasPicture(&plots.bare, pixelRatio))));
    }

    QCOMPARE(found.join(" "), noDifferences(all));
}

void PlotPictureTest::paintsTheSamePartOfItsCurve()
{
    TwoPlots plots(samplesOf(noise, 10, 200));
    plots.resize(QSize(333, 217));

    QList<QImage> images;
    for (QwtPlot *plot : plots.both()) {
        QImage image(plot->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        curveOf(plot)->drawSeries(&painter, plot->canvasMap(QwtPlot::xBottom),
                                  plot->canvasMap(QwtPlot::yLeft), plot->canvas()->contentsRect(),
                                  5, 9);
        painter.end();
        images.append(image);
    }

    QCOMPARE(differences(images.first(), images.last()), 0);
    const QPoint beforeIt(20, plots.chart.canvas()->contentsRect().bottom() - 5);
    QCOMPARE(images.first().pixel(beforeIt), QColor(Qt::white).rgb());
}

void PlotPictureTest::recordsWhatABarePlotRecords()
{
    TwoPlots plots(samplesOf(noise, 1802));

    const QByteArray recorded = recordedCanvas(&plots.chart);

    QVERIFY(recorded == recordedCanvas(&plots.bare));
}

TESSALINE_TEST_MAIN(PlotPictureTest)
#include "tst_plotpicture.moc"
