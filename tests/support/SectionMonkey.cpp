// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SectionMonkey.h"

#include "QtCompat.h"
#include "ViewHelpers.h"

#include <QHeaderView>

SectionMonkey::SectionMonkey(quint32 seed)
    : GridMonkey(seed)
{
}

void SectionMonkey::canResizeSections()
{
    can(10, "setStretchSection", &SectionMonkey::setStretchSection);
    can(15, "resizeAndLook", &SectionMonkey::resizeAndLook);
    can(20, "resizeSectionAndLook", &SectionMonkey::resizeSectionAndLook);
    can(40, "dragSectionAndLook", &SectionMonkey::dragSectionAndLook);
}

QTableView *SectionMonkey::table() const
{
    return view;
}

void SectionMonkey::setStretchSection()
{
    view->setStretchSection(dice.between(-1, 7));
}

void SectionMonkey::resizeAndLook()
{
    const int width = dice.between(1, 700);
    view->resize(width + 50, 150);
    goThroughEvents();
    view->resize(width, 150);
    goThroughEvents();
    goThroughEvents();
    const int section = view->getStretchSection();
    if (!view->model() || section < 0 || section >= columnCount()
        || header()->isSectionHidden(section)) {
        return;
    }
    int total = 0;
    for (const int size : sizes()) {
        total += size;
    }
    const bool isFloored = header()->sectionSize(section) == 20 && total > header()->width();
    // Qt 6 may count a hidden section in the header's length, and then scroll bars come and go.
    const bool isConsistent = header()->hiddenSectionCount() == 0 || header()->length() == total;
    expect(!isConsistent || isFloored || total == header()->width(),
           "the sections do not fill the view");
}

void SectionMonkey::resizeSectionAndLook()
{
    const QList<int> before = sizes();
    const int minimum = header()->minimumSectionSize();
    const int section = dice.below(header()->count() + 1);
    const int size = dice.between(0, 150);
    view->resizeSection(section, size);
    for (int i = 0; i < before.size(); ++i) {
        const bool isResized = i == section && !header()->isSectionHidden(i);
        expectEqual(header()->sectionSize(i), isResized ? size : before.at(i), "resized section");
    }
    expectEqual(header()->minimumSectionSize(), minimum, "minimum of the user's mouse");
}

// Alternately as an application does it and as a user does.
void SectionMonkey::dragSectionAndLook()
{
    const QList<int> before = sizes();
    const int section = dice.below(header()->count());
    if (before.isEmpty() || !view->model() || header()->isSectionHidden(section)) {
        return;
    }
    header()->resizeSection(section, dice.between(0, 200));
    lookAtNeighbours(section, before);
}

void SectionMonkey::lookAtNeighbours(int resized, const QList<int> &before)
{
    const QList<int> after = sizes();
    const int absorber = absorberOf(resized);
    if (after == before || header()->isSectionHidden(absorber)) {
        return;
    }
    int others = 0;
    for (int i = 0; i < after.size(); ++i) {
        others += i == absorber ? 0 : after.at(i);
        if (i != resized && i != absorber) {
            expectEqual(after.at(i), before.at(i), "uninvolved section");
        }
    }
    if (absorber >= 0) {
        expectEqual(after.at(absorber), qMax(20, header()->width() - others), "neighbour");
    }
}

QList<int> SectionMonkey::sizes() const
{
    QList<int> result;
    for (int section = 0; section < header()->count(); ++section) {
        result.append(header()->sectionSize(section));
    }
    return result;
}

// The neighbour is a logical index that is then taken for a place.
int SectionMonkey::absorberOf(int section) const
{
    if (section >= columnCount() - 1) {
        return -1;
    }
    const bool isFixed = compat::sectionResizeMode(header(), section + 1) == QHeaderView::Fixed;
    return header()->logicalIndex(qMax(0, isFixed ? section - 1 : section + 1));
}
