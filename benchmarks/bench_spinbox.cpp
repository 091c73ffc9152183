// SPDX-License-Identifier: LGPL-3.0-or-later
// What a SpinBox costs beside the QSpinBox that it is.
#include "RatioReporter.h"
#include "measure.h"

#include <SpinBox.h>

#include <QApplication>
#include <QFocusEvent>

namespace {

/// A spin box on the screen, which the keyboard reaches and leaves again.
template <class Box> void focusByTab(benchmark::State &state)
{
    Box box;
    box.show();
    settle();
    for (auto _ : state) {
        QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&box, &in);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&box, &out);
    }
}

template <class Box> void step(benchmark::State &state)
{
    Box box;
    box.show();
    settle();
    for (auto _ : state) {
        box.stepBy(box.value() == box.minimum() ? 1 : -1);
        settle();
    }
}

template <class Box> void measureBox(const std::string &name)
{
    measureConstruction<Box>(name + "/construction");
    measure(name + "/focusByTab", focusByTab<Box>, {}, 1000);
    measure(name + "/step", step<Box>, {}, 200);
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    QApplication application(argc, argv);

    measureBox<SpinBox>("spinBox");
    measureBox<QSpinBox>("plain");

    return runBenchmarks(
        argc, argv,
        {{"construction / QSpinBox", "spinBox/construction", "plain/construction", 1.05},
         {"focus by Tab and away / QSpinBox", "spinBox/focusByTab", "plain/focusByTab", 0},
         {"a step, until painted / QSpinBox", "spinBox/step", "plain/step", 0}});
}
