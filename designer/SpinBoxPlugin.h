// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SPINBOXPLUGIN_H
#define TESSALINE_SPINBOXPLUGIN_H

#include "WidgetDescriptor.h"

/// Describes SpinBox to Qt Designer.
class SpinBoxPlugin : public WidgetDescriptor
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit SpinBoxPlugin(QObject *parent = nullptr);
    ~SpinBoxPlugin() override;

    QString name() const override;
    QString toolTip() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
};

#endif
