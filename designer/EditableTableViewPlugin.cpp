// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableViewPlugin.h"

#include "DomXml.h"
#include "EditableTableView.h"

EditableTableViewPlugin::EditableTableViewPlugin(QObject *parent)
    : WidgetDescriptor(parent)
{
}

EditableTableViewPlugin::~EditableTableViewPlugin() = default;

QString EditableTableViewPlugin::name() const
{
    return QLatin1String("EditableTableView");
}

QString EditableTableViewPlugin::toolTip() const
{
    return QLatin1String("Editable Table View");
}

QWidget *EditableTableViewPlugin::createWidget(QWidget *parent)
{
    return new EditableTableView(parent);
}

QString EditableTableViewPlugin::domXml() const
{
    return widgetDomXml("EditableTableView", "editableTableView", 136, 136);
}
