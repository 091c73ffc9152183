// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLAINOBJECT_H
#define TESSALINE_PLAINOBJECT_H

#include <QMetaObject>
#include <QMetaProperty>
#include <QObject>
#include <QStringList>
#include <QVariant>

/// Whether a property is a setting, and not a place or size that comes of others.
inline bool isSetting(const QMetaProperty &property)
{
    const QStringList others = QStringList() << "QRect"
                                             << "QSize"
                                             << "QCursor" // these two do not compare
                                             << "QIcon";
    return property.isWritable() && !others.contains(QString::fromLatin1(property.typeName()));
}

/// The names of the settings that an object has otherwise than a plain one of the toolkit's, such
/// as "frame,text".
inline QString differences(const QObject &object, const QObject &plain)
{
    QStringList names;
    const QMetaObject *type = plain.metaObject();
    for (int i = 0; i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (isSetting(property) && property.read(&object) != property.read(&plain)) {
            names.append(QString::fromLatin1(property.name()));
        }
    }
    return names.join(QLatin1String(","));
}

#endif
