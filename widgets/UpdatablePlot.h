// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_UPDATABLEPLOT_H
#define TESSALINE_UPDATABLEPLOT_H

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <QMap>
#include <QPolygonF>

class ByteSizeScaleDraw;
class TimeScaleDraw;

/// A strip chart of a quantity of bytes over the last 30 minutes.
///
/// Push one value at a time, at most one a second counts; the chart stamps it with the current
/// time, forgets what is too old, fits its axes and redraws. Times are labelled "hh:mm", sizes from
/// " B" to "YB" in steps of 1024.
///
/// \code
/// UpdatablePlot plot(this);
/// plot.setCurveColor("steelblue");
/// connect(&meter, SIGNAL(measured(QVariant)), &plot, SLOT(updateData(QVariant)));
/// \endcode
class UpdatablePlot : public QwtPlot
{
    Q_OBJECT
    // The properties are for forms; nothing but a form changes them.
    // clazy:excludeall=qproperty-without-notify

    /// The canvas colour: a name such as "white", or "#" and 3, 6, 9 or 12 hexadecimal digits.
    /// Reads as "#rrggbb"; "#ffffff" by default. An unknown name makes an invalid colour.
    Q_PROPERTY(QString bgColor READ bgColor WRITE setBgColor)

    /// The colour of the curve and of the area below it, in the same form. It is drawn translucent.
    /// Until it is set, the curve is a thin line without an area and this reads "#000000".
    Q_PROPERTY(QString curveColor READ curveColor WRITE setCurveColor)

    /// The title of the time axis: plain text, empty by default.
    Q_PROPERTY(QString xTitle READ xTitle WRITE setXTitle)

    /// The title of the size axis: plain text, empty by default.
    Q_PROPERTY(QString yTitle READ yTitle WRITE setYTitle)

public:
    /// Makes a chart without samples, over the half hour from the full five minutes before the
    /// chart's code was loaded.
    explicit UpdatablePlot(QWidget *parent = nullptr);

    ~UpdatablePlot() override;

    /// The canvas colour as "#rrggbb".
    QString bgColor() const;

    /// Colours the canvas.
    void setBgColor(const QString &text);

    /// The colour of the curve as "#rrggbb", without its translucence.
    QString curveColor() const;

    /// Colours the curve and fills the area below it.
    void setCurveColor(const QString &text);

    /// The title of the time axis.
    QString xTitle() const;

    /// Writes a title below the time axis. Markup is shown as it is.
    void setXTitle(const QString &text);

    /// The title of the size axis.
    QString yTitle() const;

    /// Writes a title beside the size axis. Markup is shown as it is.
    void setYTitle(const QString &text);

public Q_SLOTS:
    /// Adds a sample, in bytes: anything whose text is a decimal integer of 64 bits. For other
    /// values "Invalid value." goes to the debug output and nothing changes. A second sample within
    /// a second takes the place of the first. Beyond 2^53 the low digits are lost.
    void updateData(const QVariant &val);

private:
    /// A curve that fills the area below it faster than Qwt does, with the same picture.
    class Curve : public QwtPlotCurve
    {
        // Without "override", because Qwt 5 has no such function to override and draws by itself.
        // NOLINTNEXTLINE(modernize-use-override)
        void drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                       const QRectF &canvasRect, int from, int to) const;
    };

    friend class UpdatablePlotInterface; ///< Tells screen readers the samples.

    void drawAnew();
    void setUpTimeAxis();
    void setUpSizeAxis();
    void installScaleDraw(int axis, QwtScaleDraw *scaleDraw);
    void setUpGrid();

    ByteSizeScaleDraw *sizeScaleDraw; ///< Owned by the axis.
    TimeScaleDraw *timeScaleDraw; ///< Owned by the axis.
    Curve curve;
    QMap<int, qint64> samples; ///< By seconds since PlotClock::startTime.
    qint64 latest; ///< The last sample that came, whatever the clock did since.
    QPolygonF points; ///< The samples, side by side in memory, as the curve takes them.
};

#endif
