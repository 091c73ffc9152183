// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableViewPlugin.h"

#include "DomXml.h"
#include "EditableTableView.h"

#include <QIcon>

EditableTableViewPlugin::EditableTableViewPlugin(QObject *parent)
    : QObject(parent)
    , initialized(false)
{
}

EditableTableViewPlugin::~EditableTableViewPlugin() = default;

QString EditableTableViewPlugin::name() const
{
    return QLatin1String("EditableTableView");
}

QString EditableTableViewPlugin::group() const
{
    return QLatin1String("Vantrel Extra");
}

QString EditableTableViewPlugin::toolTip() const
{
    return QLatin1String("Editable Table View");
}

QString EditableTableViewPlugin::whatsThis() const
{
    return toolTip();
}

QString EditableTableViewPlugin::includeFile() const
{
    return QLatin1String("EditableTableView.h");
}

QIcon EditableTableViewPlugin::icon() const
{
    return QIcon();
}

bool EditableTableViewPlugin::isContainer() const
{
    return false;
}

QWidget *EditableTableViewPlugin::createWidget(QWidget *parent)
{
    return new EditableTableView(parent);
}

bool EditableTableViewPlugin::isInitialized() const
{
    return initialized;
}

void EditableTableViewPlugin::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString EditableTableViewPlugin::domXml() const
{
    return widgetDomXml("EditableTableView", "editableTableView", 136, 136);
}
