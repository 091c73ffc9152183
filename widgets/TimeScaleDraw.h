// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TIMESCALEDRAW_H
#define TESSALINE_TIMESCALEDRAW_H

#include <qwt_scale_draw.h>

#include <QTime>

/// Labels an axis of seconds with times of day, "hh:mm" on a 24-hour clock that goes round at
/// midnight.
class TimeScaleDraw : public QwtScaleDraw
{
public:
    /// `base` is the time of day that the value 0 stands for.
    explicit TimeScaleDraw(const QTime &base);

    QwtText label(double value) const override;

private:
    QTime baseTime;
};

#endif
