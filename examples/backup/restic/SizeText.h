// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef SIZETEXT_H
#define SIZETEXT_H

#include <QString>

/// Bytes in the units of the chart, "1.50 MB" of 1024 KB, with the user's decimal point.
QString sizeText(qint64 bytes);

#endif
