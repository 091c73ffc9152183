// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_UPDATABLEPLOTPLUGIN_H
#define TESSALINE_UPDATABLEPLOTPLUGIN_H

#include "WidgetDescriptor.h"

/// Describes UpdatablePlot to Qt Designer.
class UpdatablePlotPlugin : public WidgetDescriptor
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit UpdatablePlotPlugin(QObject *parent = nullptr);
    ~UpdatablePlotPlugin() override;

    QString name() const override;
    QString toolTip() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
};

#endif
