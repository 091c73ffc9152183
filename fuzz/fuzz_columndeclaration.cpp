// SPDX-License-Identifier: LGPL-3.0-or-later
// The input is one declaration, read as UTF-8 and once more as UTF-16, where it may hold any half
// of a surrogate pair.
#include "ColumnDeclaration.h"
#include "Require.h"

#include <cstring>

namespace {

const char *const words[]
    = {"", "combobox", "editcombobox", "editbox", "passwordbox", "checkbox", "button"};

bool same(const ColumnDeclaration &one, const ColumnDeclaration &other)
{
    return one.type == other.type && one.text == other.text;
}

QString canonical(const ColumnDeclaration &declared)
{
    return QLatin1String(words[declared.type]) + QLatin1Char(':') + declared.text;
}

// Says again, from the other end, what a declaration means.
ColumnDeclaration::Type expectedType(const QString &declaration)
{
    const int colon = declaration.indexOf(QLatin1Char(':'));
    const QString word = (colon < 0 ? declaration : declaration.left(colon)).trimmed();
    for (int type = ColumnDeclaration::Combo; type <= ColumnDeclaration::Button; ++type) {
        if (word.toCaseFolded() == QLatin1String(words[type])) {
            return static_cast<ColumnDeclaration::Type>(type);
        }
    }
    return ColumnDeclaration::Plain;
}

QString expectedText(const QString &declaration)
{
    const int colon = declaration.indexOf(QLatin1Char(':'));
    return colon < 0 ? QString() : declaration.mid(colon + 1).trimmed();
}

void check(const QString &declaration)
{
    const ColumnDeclaration declared(declaration);
    require(declared.type >= ColumnDeclaration::Plain && declared.type <= ColumnDeclaration::Button,
            "the type is one of the known", declaration);
    require(declared.type == expectedType(declaration), "the keyword decides", declaration);
    require(declared.text == expectedText(declaration), "the rest is the text", declaration);
    require(declared.text == declared.text.trimmed(), "the text is trimmed", declaration);
    require(same(declared, ColumnDeclaration(canonical(declared))),
            "the canonical form means the same", declaration);
    require(same(declared,
                 ColumnDeclaration(QLatin1String("\t ") + declaration + QLatin1String(" \n"))),
            "blanks around it change nothing", declaration);
    require(same(declared, ColumnDeclaration(declaration)), "it always means the same",
            declaration);
}

QString asUtf16(const unsigned char *data, size_t size)
{
    QString text(static_cast<int>(size / sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(text.data(), data, size / sizeof(QChar) * sizeof(QChar));
    return text;
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    check(QString::fromUtf8(bytesOf(data, size)));
    check(asUtf16(data, size));
    return 0;
}
