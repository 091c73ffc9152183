// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Samples.h"

#include <SpinBox.h>

namespace samples {

void showHint(SpinBox *limit, QObject *hint)
{
    //! [focused]
    QObject::connect(limit, SIGNAL(focused()), hint, SLOT(show()));
    //! [focused]
}

} // namespace samples
