// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QString>
#include <QTranslator>

class QLocale;

/// Makes the program, the library and Qt speak a language as long as this lives; English where
/// there is no translation. The library has texts of its own, and loads no translation of them by
/// itself.
class Translators
{
public:
    /// The program's own translations are below its folder.
    Translators(const QString &programFolder, const QLocale &locale);

    /// From now on another language.
    void speak(const QLocale &locale);

private:
    QString m_folder;
    QTranslator m_program;
    QTranslator m_library;
    QTranslator m_qt;
};

#endif
