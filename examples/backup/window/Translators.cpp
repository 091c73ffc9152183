// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Translators.h"

#include <QCoreApplication>

Translators::Translators(const QString &programFolder, const QLocale &locale)
{
    QLocale::setDefault(locale);
    // Without a translation they are empty, and the texts stay English.
    (void)m_translators[0].load(locale, "qtbase", "_", QT_TRANSLATIONS);
    (void)m_translators[1].load(locale, "tessaline", "_", TESSALINE_TRANSLATIONS);
    (void)m_translators[2].load(locale, "backup", "_", programFolder + "/translations");
    for (QTranslator &translator : m_translators) {
        QCoreApplication::installTranslator(&translator);
    }
}
