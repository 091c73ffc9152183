// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ColumnDeclaration.h"

namespace {

struct Keyword
{
    const char *word;
    ColumnDeclaration::Type type;
};

const Keyword keywords[] = {
    {"combobox", ColumnDeclaration::Combo}, {"editcombobox", ColumnDeclaration::EditCombo},
    {"editbox", ColumnDeclaration::Edit},   {"passwordbox", ColumnDeclaration::Password},
    {"checkbox", ColumnDeclaration::Check}, {"button", ColumnDeclaration::Button},
};

ColumnDeclaration::Type typeOf(const QString &word)
{
    for (const Keyword &keyword : keywords) {
        if (word.compare(QLatin1String(keyword.word), Qt::CaseInsensitive) == 0) {
            return keyword.type;
        }
    }
    return ColumnDeclaration::Plain;
}

} // namespace

ColumnDeclaration::ColumnDeclaration(const QString &declaration)
    : type(typeOf(declaration.section(QLatin1Char(':'), 0, 0).trimmed()))
    , text(declaration.section(QLatin1Char(':'), 1).trimmed())
{
}
