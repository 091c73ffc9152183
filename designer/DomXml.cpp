// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DomXml.h"

QString widgetDomXml(const char *className, const char *objectName, int width, int height)
{
    return QString::fromLatin1("<widget class=\"%1\" name=\"%2\">\n"
                               " <property name=\"geometry\">\n"
                               "  <rect>\n"
                               "   <x>0</x>\n"
                               "   <y>0</y>\n"
                               "   <width>%3</width>\n"
                               "   <height>%4</height>\n"
                               "  </rect>\n"
                               " </property>\n"
                               "</widget>\n")
        .arg(QString::fromLatin1(className), QString::fromLatin1(objectName),
             QString::number(width), QString::number(height));
}
