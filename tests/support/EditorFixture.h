// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITORFIXTURE_H
#define TESSALINE_EDITORFIXTURE_H

#include "EditableTableView.h"
#include "RecordingModel.h"

/// A shown table of two rows and four columns, all declared alike, to edit cells in by key.
class EditorFixture
{
public:
    explicit EditorFixture(const QString &declaration);

    /// Puts `stored` into the cell and opens its editor; the recorded writes start empty.
    QWidget *open(int row, int column, const QVariant &stored = QVariant());

    QVariant cell(int row, int column, int role = Qt::EditRole) const;

    RecordingModel model;
    EditableTableView view;
};

/// What holds for the editors of all kinds: a new one covers its cell, paints its own background
/// and is described by this text, to assistive technology too.
void verifyDressed(EditorFixture *fixture, QWidget *editor, int row, int column,
                   const QString &description);

/// What a delegate makes of an editor that another delegate created: nothing.
void verifyLeavesForeignEditorAlone(const QString &declaration);

#endif
