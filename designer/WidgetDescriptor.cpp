// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WidgetDescriptor.h"

#include <QIcon>

WidgetDescriptor::WidgetDescriptor(QObject *parent)
    : QObject(parent)
    , initialized(false)
{
}

void *WidgetDescriptor::qt_metacast(const char *className)
{
    if (qstrcmp(className, "QDesignerCustomWidgetInterface") == 0) {
        return static_cast<QDesignerCustomWidgetInterface *>(this);
    }
    return QObject::qt_metacast(className);
}

QString WidgetDescriptor::group() const
{
    return QLatin1String("Vantrel Extra");
}

QString WidgetDescriptor::whatsThis() const
{
    return toolTip();
}

QString WidgetDescriptor::includeFile() const
{
    return name() + QLatin1String(".h");
}

QIcon WidgetDescriptor::icon() const
{
    return QIcon();
}

bool WidgetDescriptor::isContainer() const
{
    return false;
}

bool WidgetDescriptor::isInitialized() const
{
    return initialized;
}

void WidgetDescriptor::initialize(QDesignerFormEditorInterface *)
{
    initialized = true;
}
