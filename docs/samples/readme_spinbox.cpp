// SPDX-License-Identifier: LGPL-3.0-or-later
#include <SpinBox.h>

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    QFormLayout *form = new QFormLayout(&window);
    SpinBox *limit = new SpinBox;
    QLabel *hint = new QLabel;
    form->addRow("Backup", new QLineEdit);
    form->addRow("Limit in MiB a second", limit);
    form->addRow(hint);
    QObject::connect(limit, &SpinBox::focused, [hint] {
        hint->setText("0 sets no limit");
    });
    window.show();
    return application.exec();
}
