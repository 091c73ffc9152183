// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableViewPlugin.h"

#include "DomXml.h"
#include "FileListTableView.h"

FileListTableViewPlugin::FileListTableViewPlugin(QObject *parent)
    : WidgetDescriptor(parent)
{
}

FileListTableViewPlugin::~FileListTableViewPlugin() = default;

QString FileListTableViewPlugin::name() const
{
    return QLatin1String("FileListTableView");
}

QString FileListTableViewPlugin::toolTip() const
{
    return QLatin1String("File List Table View");
}

QWidget *FileListTableViewPlugin::createWidget(QWidget *parent)
{
    return new FileListTableView(parent);
}

QString FileListTableViewPlugin::domXml() const
{
    return widgetDomXml("FileListTableView", "fileListTableView", 320, 136);
}
