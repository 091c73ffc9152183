// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SECTIONMONKEY_H
#define TESSALINE_SECTIONMONKEY_H

#include "EditableTableView.h"
#include "GridMonkey.h"
#include "OpenView.h"

/// Resizes an editable table and its sections, and looks at which of them make up for it.
class SectionMonkey : public GridMonkey
{
public:
    explicit SectionMonkey(quint32 seed);

protected:
    typedef OpenView<EditableTableView> OpenTable;

    void canResizeSections();

    QTableView *table() const override;

    QPointer<OpenTable> view; ///< Deleted by the last class: what it says till then is answered.

private:
    void setStretchSection();
    void resizeAndLook();
    void resizeSectionAndLook();
    void dragSectionAndLook();

    void lookAtNeighbours(int resized, const QList<int> &before);
    QList<int> sizes() const;
    int absorberOf(int section) const;
};

#endif
