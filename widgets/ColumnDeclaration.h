// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_COLUMNDECLARATION_H
#define TESSALINE_COLUMNDECLARATION_H

#include <QString>

/// One column of an EditableTableView as its declaration string says it: "button: Remove" is of
/// type Button with the text "Remove".
struct ColumnDeclaration
{
    enum Type { Plain, Combo, EditCombo, Edit, Password, Check, Button };

    /// Reads a declaration. The keyword stands before the first ":" and is compared without regard
    /// to case; everything behind that ":" is the text. Both are trimmed. An unknown keyword, the
    /// empty one included, makes a Plain column.
    explicit ColumnDeclaration(const QString &declaration);

    Type type;
    QString text; ///< Untranslated caption or label; only Button and Check use it.
};

#endif
