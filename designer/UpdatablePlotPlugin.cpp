// SPDX-License-Identifier: LGPL-3.0-or-later
#include "UpdatablePlotPlugin.h"

#include "DomXml.h"
#include "UpdatablePlot.h"

UpdatablePlotPlugin::UpdatablePlotPlugin(QObject *parent)
    : WidgetDescriptor(parent)
{
}

UpdatablePlotPlugin::~UpdatablePlotPlugin() = default;

QString UpdatablePlotPlugin::name() const
{
    return QLatin1String("UpdatablePlot");
}

QString UpdatablePlotPlugin::toolTip() const
{
    return QLatin1String("Data Plot");
}

QWidget *UpdatablePlotPlugin::createWidget(QWidget *parent)
{
    return new UpdatablePlot(parent);
}

QString UpdatablePlotPlugin::domXml() const
{
    return widgetDomXml("UpdatablePlot", "dataPlot", 180, 140);
}
