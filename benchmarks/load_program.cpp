// SPDX-License-Identifier: LGPL-3.0-or-later
// The least program that needs the libraries it is linked with; bench_load starts it.
#if defined(LOAD_LIBRARY)
#include <EditableTableView.h>
#include <FileListTableView.h>
#include <SpinBox.h>
#endif
#if defined(LOAD_CHART)
#include <UpdatablePlot.h>
#elif defined(LOAD_QWT)
#include <qwt_plot.h>
#endif

#include <QWidget>

int main(int argc, char **)
{
    // Asked in a way that the compiler can't answer, so that the linker has to keep the library.
    const QMetaObject *classes[]
        = { &QWidget::staticMetaObject,
#if defined(LOAD_LIBRARY)
            &EditableTableView::staticMetaObject,
            &FileListTableView::staticMetaObject,
            &SpinBox::staticMetaObject,
#endif
#if defined(LOAD_CHART)
            &UpdatablePlot::staticMetaObject,
#elif defined(LOAD_QWT)
            &QwtPlot::staticMetaObject,
#endif
            nullptr };
    return classes[argc - 1] ? 0 : 1;
}
