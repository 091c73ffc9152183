// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef WINDOWTOOLS_H
#define WINDOWTOOLS_H

#include "FileListModel.h"
#include "JobModel.h"
#include "MainWindow.h"
#include "ResticTestTools.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include <functional>
#include <memory>

/// The program's window over two jobs in a temporary folder. "Letters" has two files, "Numbers" so
/// much that its backup lasts when it is slowed down. There is no repository yet.
class Window
{
public:
    Window();

    MainWindow *operator->() const
    {
        return m_window.get();
    }

    template <class Widget> Widget *find() const
    {
        return m_window->findChild<Widget *>();
    }

    EditableTableView *table() const;
    JobModel *jobs() const;
    BackupRun *run() const;
    QPushButton *runButton(int row) const;
    /// Of the page that is shown.
    SpinBox *spinBox() const;
    QStringList listedNames() const;

    QString path(const QString &relative) const;
    QString repository() const;
    void write(const QString &relative, const QByteArray &content) const;
    QByteArray storedBytes() const;

    void showPage(int page) const;
    /// Opens the editor of a cell with the edit key.
    QWidget *edit(int row, int column) const;
    void typePassword(int row, const QString &password) const;
    void click(int row, int column) const;
    /// Whether a label says so.
    bool shows(const QString &text) const;

    /// A backup of the job from its button, the making of the repository included.
    void backUp(int row) const;
    /// Starts the backup of "Numbers", which takes minutes.
    void startLongRun() const;

    Sandbox sandbox;

private:
    std::unique_ptr<MainWindow> m_window;
};

/// What is done in the next dialog of a kind, which the program waits for.
template <class Dialog> void inNext(const std::function<void(Dialog *)> &act)
{
    QTimer *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        if (Dialog *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            act(dialog);
        }
    });
    timer->start(10);
}

void answerNextQuestion(QMessageBox::StandardButton button);
void typeInNextDialog(const QString &password);
void chooseInNextDialog(const QString &folder);

/// Runs the tests without a display.
int runTests(QObject *tests, int argc, char **argv);

#endif
