// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Translators.h"

#include <QCoreApplication>
#include <QLocale>

Translators::Translators(const QString &programFolder, const QLocale &locale)
    : m_folder(programFolder + QStringLiteral("/translations"))
{
    for (QTranslator *translator : {&m_qt, &m_library, &m_program}) {
        QCoreApplication::installTranslator(translator);
    }
    speak(locale);
}

void Translators::speak(const QLocale &locale)
{
    const QString separator(QLatin1Char('_'));
    QLocale::setDefault(locale);
    // Without a translation they are empty, and the texts stay English.
    (void)m_qt.load(locale, QStringLiteral("qtbase"), separator, QStringLiteral(QT_TRANSLATIONS));
    (void)m_library.load(locale, QStringLiteral("tessaline"), separator,
                         QStringLiteral(TESSALINE_TRANSLATIONS));
    (void)m_program.load(locale, QStringLiteral("backup"), separator, m_folder);
}
