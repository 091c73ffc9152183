// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef PICTURES_H
#define PICTURES_H

#include <QString>

/// Leads the window through a backup and writes a picture of each state into the folder, for the
/// documentation: a real backup, in a scratch folder. The user's own jobs are neither shown nor
/// changed. Returns the program's exit status: 1 if a picture could not be written or something did
/// not end as it should.
///
/// Language and scale are those that the program is run with; in the environment stand
/// TESSALINE_PICTURES_SIZE for the window's, as "800x600", and TESSALINE_PICTURES_DARK for dark
/// colours.
int takePictures(const QString &folder);

#endif
