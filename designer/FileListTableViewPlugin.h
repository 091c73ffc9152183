// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_FILELISTTABLEVIEWPLUGIN_H
#define TESSALINE_FILELISTTABLEVIEWPLUGIN_H

#include "WidgetDescriptor.h"

/// Describes FileListTableView to Qt Designer, which is never told of it: the list needs its model
/// before it is first shown, and a form cannot give it one. Programs create it themselves.
class FileListTableViewPlugin : public WidgetDescriptor
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit FileListTableViewPlugin(QObject *parent = nullptr);
    ~FileListTableViewPlugin() override;

    QString name() const override;
    QString toolTip() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
};

#endif
