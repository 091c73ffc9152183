// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LabelEngine.h"

#include <QFontMetricsF>

namespace {

const int mostFonts = 4;
const int mostSizes = 100; // five times the labels of two axes

int turns = 0;

// The last value that the type of formats is sure to hold. Engines are asked from the first format
// on, and an application that registers one of its own begins at QwtText::OtherFormat.
const int lastFormat = 127;

/// Qwt's registration of the engine. It ends with the code: a plug-in may be unloaded.
class Registration
{
public:
    Registration()
        : format(lastFormat)
    {
        while (QwtText::textEngine(QwtText::TextFormat(format))) {
            --format;
        }
        QwtText::setTextEngine(QwtText::TextFormat(format), new LabelEngine);
    }

    ~Registration()
    {
        QwtText::setTextEngine(QwtText::TextFormat(format), nullptr); // deletes it
    }

private:
    Registration(const Registration &) = delete;
    Registration &operator=(const Registration &) = delete;

    int format;
};

} // namespace

LabelEngine::Turn::Turn()
{
    static const Registration registration;
    ++turns;
}

LabelEngine::Turn::~Turn()
{
    --turns;
}

bool LabelEngine::mightRender(const QString &) const
{
    return turns > 0;
}

compat::TextSize LabelEngine::textSize(const QFont &font, int flags, const QString &text) const
{
    if (flags != 0) { // not a label of an axis
        return QwtPlainTextEngine::textSize(font, flags, text);
    }
    QHash<QString, compat::TextSize> &sizes = memoryOf(font).sizes;
    auto size = sizes.find(text);
    if (size == sizes.end()) {
        if (sizes.size() == mostSizes) {
            sizes.clear();
        }
        size = sizes.insert(text, QwtPlainTextEngine::textSize(font, flags, text));
    }
    return size.value();
}

void LabelEngine::textMargins(const QFont &font, const QString &, compat::TextMargin &left,
                              compat::TextMargin &right, compat::TextMargin &top,
                              compat::TextMargin &bottom) const
{
    const Memory &memory = memoryOf(font);
    left = memory.left;
    right = memory.right;
    top = memory.top;
    bottom = memory.bottom;
}

// Equal fonts measure differently after one was added to the application, or on another screen.
bool LabelEngine::Memory::isOf(const QFont &other) const
{
    const QFontMetricsF metrics(other);
    return font == other && metrics.ascent() == ascent && metrics.descent() == descent;
}

LabelEngine::Memory &LabelEngine::memoryOf(const QFont &font) const
{
    for (Memory &memory : memories) {
        if (memory.isOf(font)) {
            return memory;
        }
    }
    if (memories.size() == mostFonts) {
        memories.removeFirst();
    }
    Memory memory;
    const QFontMetricsF metrics(font);
    memory.font = font;
    memory.ascent = metrics.ascent();
    memory.descent = metrics.descent();
    QwtPlainTextEngine::textMargins(font, QString(), memory.left, memory.right, memory.top,
                                    memory.bottom);
    memories.append(memory);
    return memories.last();
}
