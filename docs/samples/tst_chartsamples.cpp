// SPDX-License-Identifier: LGPL-3.0-or-later
// What the manual says of the chart's samples.
#include "Samples.h"
#include "TestCase.h"

#include <UpdatablePlot.h>

#include <qwt_scale_div.h>

#include <QFile>
#include <QUiLoader>

#include <memory>

class ChartSamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFormsOfASample();
    void readsTheFormsOfASample_data();
    void feedsAChart();
    void feedsTheChartOfAForm();
};

void ChartSamplesTest::readsTheFormsOfASample()
{
    QFETCH(QVariant, payload);
    QFETCH(bool, accepted);
    UpdatablePlot chart;
    chart.replot();
    const double before = chart.axisScaleDiv(QwtPlot::xBottom).upperBound();
    if (!accepted) {
        expectDebugMessage("Invalid value.");
    }

    chart.updateData(payload);

    const double after = chart.axisScaleDiv(QwtPlot::xBottom).upperBound();
    QCOMPARE(after != before, accepted);
}

void ChartSamplesTest::readsTheFormsOfASample_data()
{
    QTest::addColumn<QVariant>("payload");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("int") << QVariant(2048) << true;
    QTest::newRow("qint64") << QVariant(qint64(5) << 40) << true;
    QTest::newRow("negative") << QVariant(-1) << true;
    QTest::newRow("text") << QVariant("2048") << true;
    QTest::newRow("text with blanks and sign") << QVariant(" +2048 ") << true;
    QTest::newRow("bytes") << QVariant(QByteArray("2048")) << true;
    QTest::newRow("whole double") << QVariant(1000000.0) << true;
    QTest::newRow("double of 15 digits") << QVariant(123456789012345.0) << true;
    QTest::newRow("double of 16 digits") << QVariant(1e15) << false;
    QTest::newRow("fraction") << QVariant(2048.5) << false;
    QTest::newRow("fraction as text") << QVariant("2048.0") << false;
    QTest::newRow("grouped") << QVariant("2,048") << false;
    QTest::newRow("hexadecimal") << QVariant("0x800") << false;
    QTest::newRow("with a unit") << QVariant("2 KB") << false;
    QTest::newRow("too large") << QVariant("9223372036854775808") << false;
    QTest::newRow("bool") << QVariant(true) << false;
    QTest::newRow("empty") << QVariant("") << false;
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("list") << QVariant(QVariantList() << 2048) << false;
}

void ChartSamplesTest::feedsAChart()
{
    UpdatablePlot chart;

    samples::feed(&chart);

    QCOMPARE(chart.bgColor(), QString("#ffffff"));
    QCOMPARE(chart.curveColor(), QString("#4682b4"));
    QVERIFY(chart.axisScaleDiv(QwtPlot::yLeft).upperBound() >= 1024);
}

void ChartSamplesTest::feedsTheChartOfAForm()
{
    QUiLoader loader;
    loader.addPluginPath(TESSALINE_PLUGIN_FOLDER);
    QFile file(SAMPLE_FORM);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));

    samples::feedThroughForm(form.get());

    const QWidget *chart = form->findChild<QWidget *>("throughput");
    QCOMPARE(chart->metaObject()->className(), "UpdatablePlot");
    QCOMPARE(chart->property("curveColor").toString(), QString("#4682b4"));
}

TESSALINE_TEST_MAIN(ChartSamplesTest)
#include "tst_chartsamples.moc"
