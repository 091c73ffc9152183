// SPDX-License-Identifier: LGPL-3.0-or-later
// Shows a form with the library's widgets, uses it as a user does, and returns what went wrong.
#ifdef TESSALINE_HAS_PLOT
#include "ui_BackupForm.h"
typedef Ui::BackupForm Form;
#else
#include "ui_TableForm.h"
typedef Ui::TableForm Form;
#endif

#include <QApplication>
#include <QPushButton>
#include <QStandardItemModel>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Form form;
    form.setupUi(&window);
    QStandardItemModel jobs(3, 4);
    form.jobs->setModel(&jobs);
    window.show();
    QApplication::processEvents();

    int clickedRow = -1;
    QObject::connect(form.jobs,
                     static_cast<void (EditableTableView::*)(QWidget *, int, int, QStringList)>(
                         &EditableTableView::buttonClicked),
                     [&](QWidget *, int row, int, const QStringList &) {
                         clickedRow = row;
                     });
    QPushButton *button = qobject_cast<QPushButton *>(form.jobs->button(1, 3));
    if (button == nullptr) {
        return 1;
    }
    button->click();
#ifdef TESSALINE_HAS_PLOT
    form.throughput->updateData(4096);
    if (form.throughput->curveColor() != QLatin1String("#4682b4")) {
        return 2;
    }
#endif
    return clickedRow == 1 && form.limit->value() == 20 ? 0 : 3;
}
