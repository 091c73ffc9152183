// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_OPENVIEW_H
#define TESSALINE_OPENVIEW_H

/// A view that tells what only derived classes may know.
template <class View> class OpenView : public View
{
public:
    /// Whether it puts its layout off, as it may within a call only.
    bool isHeldBack() const
    {
        return this->state() == View::CollapsingState;
    }
};

#endif
