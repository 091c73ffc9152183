// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLUGINCOMPAT_H
#define TESSALINE_PLUGINCOMPAT_H

#include <QtPlugin>

// How a class becomes the plug-in of a library. Qt 4 wants a macro in one source and makes both
// entry points of it, qt_plugin_instance() and qt_plugin_query_verification_data(). Since Qt 5 a
// macro in the class makes qt_plugin_instance() and metadata that the loader reads instead. The
// second entry point is then written here: it is documented, so every build has it.

#if QT_VERSION < 0x050000

// Read by the moc of Qt 5 and 6 only.
#define Q_PLUGIN_METADATA(metadata)

#define TESSALINE_EXPORT_PLUGIN(Class) Q_EXPORT_PLUGIN2(Class, Class)

#else

#ifdef QT_NO_DEBUG
#define TESSALINE_PLUGIN_DEBUG "false"
#else
#define TESSALINE_PLUGIN_DEBUG "true"
#endif

// In the form of Qt 4's own text. TESSALINE_BUILD_KEY comes from the build: since Qt 5 the
// toolkit's headers hold no build key.
#define TESSALINE_EXPORT_PLUGIN(Class)                                              \
    extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data();       \
    const char *qt_plugin_query_verification_data()                                 \
    {                                                                               \
        return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" QT_VERSION_STR       \
               "\ndebug=" TESSALINE_PLUGIN_DEBUG "\nbuildkey=" TESSALINE_BUILD_KEY; \
    }

#endif

#endif
