// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Tessaline.h"

#include "EditableTableViewPlugin.h"
#include "SpinBoxPlugin.h"
#ifdef TESSALINE_HAS_PLOT
#include "UpdatablePlotPlugin.h"
#endif

Tessaline::Tessaline(QObject *parent)
    : QObject(parent)
{
    widgets << new EditableTableViewPlugin(this);
#ifdef TESSALINE_HAS_PLOT
    widgets << new UpdatablePlotPlugin(this);
#endif
    widgets << new SpinBoxPlugin(this);
}

Tessaline::~Tessaline() = default;

QList<QDesignerCustomWidgetInterface *> Tessaline::customWidgets() const
{
    return widgets;
}

TESSALINE_EXPORT_PLUGIN(Tessaline)
