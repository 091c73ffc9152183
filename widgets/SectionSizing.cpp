// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SectionSizing.h"

#include "QtCompat.h"

#include <QHeaderView>

namespace {

const int narrowestAbsorber = 20; // pixels

int totalWidth(const QHeaderView &header, int count)
{
    int total = 0;
    for (int section = 0; section < count; ++section) {
        total += header.sectionSize(section);
    }
    return total;
}

} // namespace

namespace SectionSizing {

// The neighbour is found by its logical index and that is then taken for a visual position, on
// purpose: the two agree until sections are moved, and what happens then is part of the interface.
int absorberOf(const QHeaderView &header, int index, int count)
{
    if (index >= count - 1) {
        return -1;
    }
    const bool rightIsFixed = compat::sectionResizeMode(&header, index + 1) == QHeaderView::Fixed;
    const int neighbour = qMax(0, rightIsFixed ? index - 1 : index + 1);
    return header.logicalIndex(neighbour);
}

int absorbingWidth(const QHeaderView &header, int section, int count)
{
    const int size = header.sectionSize(section) + header.width() - totalWidth(header, count);
    return qMax(narrowestAbsorber, size);
}

} // namespace SectionSizing
