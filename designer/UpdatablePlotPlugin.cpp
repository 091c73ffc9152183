// SPDX-License-Identifier: LGPL-3.0-or-later
#include "UpdatablePlotPlugin.h"

#include "DomXml.h"
#include "UpdatablePlot.h"

#include <QIcon>

UpdatablePlotPlugin::UpdatablePlotPlugin(QObject *parent)
    : QObject(parent)
    , initialized(false)
{
}

UpdatablePlotPlugin::~UpdatablePlotPlugin() = default;

QString UpdatablePlotPlugin::name() const
{
    return QLatin1String("UpdatablePlot");
}

QString UpdatablePlotPlugin::group() const
{
    return QLatin1String("Vantrel Extra");
}

QString UpdatablePlotPlugin::toolTip() const
{
    return QLatin1String("Data Plot");
}

QString UpdatablePlotPlugin::whatsThis() const
{
    return toolTip();
}

QString UpdatablePlotPlugin::includeFile() const
{
    return QLatin1String("UpdatablePlot.h");
}

QIcon UpdatablePlotPlugin::icon() const
{
    return QIcon();
}

bool UpdatablePlotPlugin::isContainer() const
{
    return false;
}

QWidget *UpdatablePlotPlugin::createWidget(QWidget *parent)
{
    return new UpdatablePlot(parent);
}

bool UpdatablePlotPlugin::isInitialized() const
{
    return initialized;
}

void UpdatablePlotPlugin::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString UpdatablePlotPlugin::domXml() const
{
    return widgetDomXml("UpdatablePlot", "dataPlot", 180, 140);
}
