// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CHARTACCESSIBILITY_H
#define TESSALINE_CHARTACCESSIBILITY_H

#include <QtGlobal>

class UpdatablePlot;

/// What screen readers are told of a chart besides its accessible name and description, which are
/// the application's: that it is a chart, and its value, which is the latest sample, between 0 and
/// the upper end of the size axis. Nothing in Qt 4, nor in a Qt without accessibility.
namespace ChartAccessibility {

/// Makes Qt ask here about charts, from the first call until this code is unloaded.
void install();

/// Tells readers, if there are any, that a chart has a new value.
void announceValue(UpdatablePlot *plot, qint64 value);

} // namespace ChartAccessibility

#endif
