// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

/// Makes the program, the library and Qt speak a language as long as this lives; English where
/// there is no translation. The library has texts of its own, and loads no translation of them by
/// itself. The program's own are below its folder.
class Translators
{
public:
    Translators(const QString &programFolder, const QLocale &locale)
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

private:
    QTranslator m_translators[3];
};

#endif
