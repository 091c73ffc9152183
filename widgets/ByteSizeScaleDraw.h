// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_BYTESIZESCALEDRAW_H
#define TESSALINE_BYTESIZESCALEDRAW_H

#include <qwt_scale_draw.h>

#include <QMap>

/// Labels an axis with sizes in bytes, such as "1.50 KB": units of 1024, three digits or so, in any
/// locale.
class ByteSizeScaleDraw : public QwtScaleDraw
{
public:
    ByteSizeScaleDraw();
    ~ByteSizeScaleDraw() override;

    /// Empty from 1024 YB on. A negative size stays in bytes.
    QwtText label(double value) const override;

private:
    QMap<int, QString> units; ///< By the exponent of 1024; all of two characters.
};

#endif
