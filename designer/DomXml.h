// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_DOMXML_H
#define TESSALINE_DOMXML_H

#include <QString>

/// The text from which Designer makes a widget of a class that is dropped on a form: its object
/// name, and its first size in pixels.
QString widgetDomXml(const char *className, const char *objectName, int width, int height);

#endif
