// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QLocale>
#include <QTranslator>

/// Makes the program, the library and Qt speak a language as long as this lives; English where
/// there is no translation. The library has texts of its own, and loads no translation of them by
/// itself. The program's own are below its folder.
class Translators
{
public:
    Translators(const QString &programFolder, const QLocale &locale);

private:
    QTranslator m_translators[3];
};

#endif
