// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableViewPlugin.h"

#include "DomXml.h"
#include "FileListTableView.h"

#include <QIcon>

FileListTableViewPlugin::FileListTableViewPlugin(QObject *parent)
    : QObject(parent)
    , initialized(false)
{
}

FileListTableViewPlugin::~FileListTableViewPlugin() = default;

QString FileListTableViewPlugin::name() const
{
    return QLatin1String("FileListTableView");
}

QString FileListTableViewPlugin::group() const
{
    return QLatin1String("Vantrel Extra");
}

QString FileListTableViewPlugin::toolTip() const
{
    return QLatin1String("File List Table View");
}

QString FileListTableViewPlugin::whatsThis() const
{
    return toolTip();
}

QString FileListTableViewPlugin::includeFile() const
{
    return QLatin1String("FileListTableView.h");
}

QIcon FileListTableViewPlugin::icon() const
{
    return QIcon();
}

bool FileListTableViewPlugin::isContainer() const
{
    return false;
}

QWidget *FileListTableViewPlugin::createWidget(QWidget *parent)
{
    return new FileListTableView(parent);
}

bool FileListTableViewPlugin::isInitialized() const
{
    return initialized;
}

void FileListTableViewPlugin::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}

QString FileListTableViewPlugin::domXml() const
{
    return widgetDomXml("FileListTableView", "fileListTableView", 320, 136);
}
