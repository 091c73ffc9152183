// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Question.h"

#include <QInputDialog>
#include <QMessageBox>

void Question::ask(QWidget *parent, const QString &text, const std::function<void(bool)> &answer)
{
    QMessageBox *box = new QMessageBox(QMessageBox::Question, parent->window()->windowTitle(), text,
                                       QMessageBox::Yes | QMessageBox::No, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    QObject::connect(box, &QMessageBox::finished, parent, [answer](int button) {
        answer(button == QMessageBox::Yes);
    });
    box->open();
}

void Question::askPassword(QWidget *parent, const QString &text,
                           const std::function<void(const QString &)> &answer)
{
    QInputDialog *dialog = new QInputDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(parent->window()->windowTitle());
    dialog->setLabelText(text);
    dialog->setTextEchoMode(QLineEdit::Password);
    QObject::connect(dialog, &QInputDialog::textValueSelected, parent, answer);
    dialog->open();
}
