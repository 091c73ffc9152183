// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EXPORT_H
#define TESSALINE_EXPORT_H

#include <QtGlobal>

/// Marks what the shared library offers; all else stays hidden in it. Empty in a static one.
#if defined(TESSALINE_STATIC)
#define TESSALINE_EXPORT
#elif defined(TESSALINE_BUILD)
#define TESSALINE_EXPORT Q_DECL_EXPORT
#else
#define TESSALINE_EXPORT Q_DECL_IMPORT
#endif

#endif
