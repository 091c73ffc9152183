// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBoxPlugin.h"

#include "DomXml.h"
#include "SpinBox.h"

SpinBoxPlugin::SpinBoxPlugin(QObject *parent)
    : WidgetDescriptor(parent)
{
}

SpinBoxPlugin::~SpinBoxPlugin() = default;

QString SpinBoxPlugin::name() const
{
    return QLatin1String("SpinBox");
}

QString SpinBoxPlugin::toolTip() const
{
    return QLatin1String("Spin Box");
}

QWidget *SpinBoxPlugin::createWidget(QWidget *parent)
{
    return new SpinBox(parent);
}

QString SpinBoxPlugin::domXml() const
{
    return widgetDomXml("SpinBox", "spinBox", 100, 25);
}
