// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SPINBOX_H
#define TESSALINE_SPINBOX_H

#include "Export.h"

#include <QSpinBox>

/// A spin box that tells when the user moves the keyboard focus into it, with the mouse or the Tab
/// keys. All else is QSpinBox's, defaults included.
///
/// Focus that comes by another way, by a call of setFocus(), a shortcut or the window's activation,
/// is not announced; on purpose the base class does not learn of it either, so that the text is not
/// selected anew and what was typed goes on.
///
/// \code
/// connect(pageSize, SIGNAL(focused()), SLOT(showHint()));
/// \endcode
class TESSALINE_EXPORT SpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /// Makes a spin box with the range, step and value of a QSpinBox.
    explicit SpinBox(QWidget *parent = nullptr);

    ~SpinBox() override;

Q_SIGNALS:
    /// The user brought the focus here. Emitted each time, before the spin box itself reacts.
    void focused();

protected:
    /// Announces focused() and reacts as QSpinBox does; for other reasons it does neither.
    void focusInEvent(QFocusEvent *event) override;
};

#endif
