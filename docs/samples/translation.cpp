// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace samples {

//! [mark]
// lupdate finds the texts by these marks; nobody reads the list.
const char *const captions[] = {
    QT_TRANSLATE_NOOP("EditableTableView", "Run"), // captions of buttons
    QT_TRANSLATE_NOOP("EditableTableView", "Remove"),
    QT_TRANSLATE_NOOP("CheckItemDelegate", "Verify"), // labels of check boxes
};

QStringList translatedColumns()
{
    return QStringList() << "editbox" << QString("checkbox:%1").arg(captions[2])
                         << QString("button:%1").arg(captions[0])
                         << QString("button:%1").arg(captions[1]);
}
//! [mark]

//! [load]
bool installTranslators(QTranslator *library, QTranslator *application, const QString &language)
{
    const bool found = library->load("tessaline_" + language, TESSALINE_TRANSLATIONS)
        && application->load("sample_" + language, SAMPLE_TRANSLATIONS);
    QCoreApplication::installTranslator(library);
    QCoreApplication::installTranslator(application);
    return found;
}
//! [load]

} // namespace samples
