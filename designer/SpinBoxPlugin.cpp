// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBoxPlugin.h"

#include "DomXml.h"
#include "SpinBox.h"

#include <QIcon>

SpinBoxPlugin::SpinBoxPlugin(QObject *parent)
    : QObject(parent)
    , initialized(false)
{
}

SpinBoxPlugin::~SpinBoxPlugin() = default;

QString SpinBoxPlugin::name() const
{
    return QLatin1String("SpinBox");
}

QString SpinBoxPlugin::group() const
{
    return QLatin1String("Vantrel Extra");
}

QString SpinBoxPlugin::toolTip() const
{
    return QLatin1String("Spin Box");
}

QString SpinBoxPlugin::whatsThis() const
{
    return toolTip();
}

QString SpinBoxPlugin::includeFile() const
{
    return QLatin1String("SpinBox.h");
}

QIcon SpinBoxPlugin::icon() const
{
    return QIcon();
}

bool SpinBoxPlugin::isContainer() const
{
    return false;
}

QWidget *SpinBoxPlugin::createWidget(QWidget *parent)
{
    return new SpinBox(parent);
}

bool SpinBoxPlugin::isInitialized() const
{
    return initialized;
}

void SpinBoxPlugin::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString SpinBoxPlugin::domXml() const
{
    return widgetDomXml("SpinBox", "spinBox", 100, 25);
}
