// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChartAccessibility.h"

#include "QtCompat.h"

#ifdef TESSALINE_HAS_ACCESSIBLE_VALUES

#include "ByteSizeScaleDraw.h"
#include "PlotSamples.h"
#include "UpdatablePlot.h"

#include <qwt_text.h>

#include <QAccessible>
#include <QAccessibleValueChangeEvent>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QVariant>

/// Reads the samples of a chart. Its value can't be set.
class UpdatablePlotInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit UpdatablePlotInterface(UpdatablePlot *chart)
        : QAccessibleWidget(chart, QAccessible::Chart)
        , plot(chart)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value || plot->samples.isEmpty()) {
            return QAccessibleWidget::text(kind);
        }
        return ByteSizeScaleDraw().label(static_cast<double>(plot->latest)).text();
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override
    {
        return plot->latest;
    }

    void setCurrentValue(const QVariant &) override
    {
    }

    QVariant maximumValue() const override
    {
        return PlotSamples::maximum(plot->points);
    }

    QVariant minimumValue() const override
    {
        return 0;
    }

    QVariant minimumStepSize() const override
    {
        return 1;
    }

private:
    UpdatablePlot *const plot; // the interface goes with it
};

namespace {

// One program may hold this code twice, linked and in the plug-in: each answers for its own charts.
QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    // Qt asks for a derived class first, for which the application may have an interface.
    if (className != QLatin1String(UpdatablePlot::staticMetaObject.className())) {
        return nullptr;
    }
    UpdatablePlot *plot = qobject_cast<UpdatablePlot *>(object);
    return plot ? new UpdatablePlotInterface(plot) : nullptr;
}

/// Goes when the program ends or the plug-in is unloaded, before what Qt notes factories in.
struct Installation
{
    Installation()
    {
        QAccessible::installFactory(interfaceOf);
    }

    ~Installation()
    {
        QAccessible::removeFactory(interfaceOf);
    }
};

} // namespace

namespace ChartAccessibility {

void install()
{
    static const Installation installation;
}

void announceValue(UpdatablePlot *plot, qint64 value)
{
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(plot, value);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace ChartAccessibility

#else

namespace ChartAccessibility {

void install()
{
}

void announceValue(UpdatablePlot *, qint64)
{
}

} // namespace ChartAccessibility

#endif
