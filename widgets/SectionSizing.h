// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SECTIONSIZING_H
#define TESSALINE_SECTIONSIZING_H

class QHeaderView;

/// How the sections of a header fill it: one of them, the absorber, takes up each difference
/// between their widths and that of the header. Only asks the header, whose first `count` sections
/// are those of the model's columns; sections are named by their logical indexes.
namespace SectionSizing {

/// Which section makes up for a resize of the section `index`; -1 if none does.
int absorberOf(const QHeaderView &header, int index, int count);

/// The width with which `section` makes all together as wide as the header, if that leaves it wide
/// enough to be seen.
int absorbingWidth(const QHeaderView &header, int section, int count);

} // namespace SectionSizing

#endif
