// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Translators.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace {

// Where there is no translation, the translator is empty and the texts stay English.
void load(QTranslator *translator, const QLocale &locale, const QString &name,
          const QString &folder)
{
    const bool isFound = translator->load(locale, name, QStringLiteral("_"), folder);
    Q_UNUSED(isFound)
}

} // namespace

Translators::Translators(const QLocale &locale)
{
    for (QTranslator *translator : {&m_qt, &m_library, &m_program}) {
        QCoreApplication::installTranslator(translator);
    }
    speak(locale);
}

void Translators::speak(const QLocale &locale)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    QLocale::setDefault(locale);
    load(&m_program, locale, QStringLiteral("backup"),
         folder.filePath(QStringLiteral("translations")));
    load(&m_library, locale, QStringLiteral("tessaline"), QStringLiteral(TESSALINE_TRANSLATIONS));
    load(&m_qt, locale, QStringLiteral("qtbase"), QStringLiteral(QT_TRANSLATIONS));
}
