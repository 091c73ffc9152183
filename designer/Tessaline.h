// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TESSALINE_H
#define TESSALINE_TESSALINE_H

#include "PluginCompat.h"

#include <QDesignerCustomWidgetCollectionInterface>
#include <QList>
#include <QObject>

/// The plug-in that Qt Designer and QUiLoader find in the library: the widgets that forms can hold,
/// in the order in which the widget box lists them.
class Tessaline : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid FILE "tessaline.json")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit Tessaline(QObject *parent = nullptr);
    ~Tessaline() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface *> widgets; ///< Owned as children, as QObjects.
};

#endif
