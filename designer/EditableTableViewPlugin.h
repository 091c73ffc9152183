// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITABLETABLEVIEWPLUGIN_H
#define TESSALINE_EDITABLETABLEVIEWPLUGIN_H

#include "WidgetDescriptor.h"

/// Describes EditableTableView to Qt Designer.
class EditableTableViewPlugin : public WidgetDescriptor
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit EditableTableViewPlugin(QObject *parent = nullptr);
    ~EditableTableViewPlugin() override;

    QString name() const override;
    QString toolTip() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
};

#endif
