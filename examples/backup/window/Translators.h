// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TRANSLATORS_H
#define TRANSLATORS_H

#include <QTranslator>

class QLocale;

/// Makes the program, the library and Qt speak a language as long as this lives. The library has
/// texts of its own, and loads no translation of them by itself.
class Translators
{
public:
    explicit Translators(const QLocale &locale);

    /// From now on another language; English where there is no translation.
    void speak(const QLocale &locale);

private:
    QTranslator m_program;
    QTranslator m_library;
    QTranslator m_qt;
};

#endif
