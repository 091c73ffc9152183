// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_LABELENGINE_H
#define TESSALINE_LABELENGINE_H

#include "QwtCompat.h"

#include <qwt_text.h>
#include <qwt_text_engine.h>

#include <QFont>
#include <QHash>
#include <QList>

/// Measures texts as Qwt does, and remembers what it has measured.
///
/// A time axis moves with each sample. Its labels are made and measured anew then, a dozen times
/// each, and at each time Qwt prints the whole font to look its margins up.
class LabelEngine : public QwtPlainTextEngine
{
public:
    /// As long as one lives, texts of automatic format are given the engine. No others are: the
    /// texts of other plots stay with Qwt.
    class Turn
    {
    public:
        Turn();
        ~Turn();

    private:
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;
    };

    bool mightRender(const QString &text) const override;
    compat::TextSize textSize(const QFont &font, int flags, const QString &text) const override;
    void textMargins(const QFont &font, const QString &text, compat::TextMargin &left,
                     compat::TextMargin &right, compat::TextMargin &top,
                     compat::TextMargin &bottom) const override;

private:
    /// What is known of a font.
    struct Memory
    {
        bool isOf(const QFont &other) const;

        QFont font;
        double ascent;
        double descent;
        compat::TextMargin left;
        compat::TextMargin right;
        compat::TextMargin top;
        compat::TextMargin bottom;
        QHash<QString, compat::TextSize> sizes;
    };

    Memory &memoryOf(const QFont &font) const;

    mutable QList<Memory> memories;
};

#endif
