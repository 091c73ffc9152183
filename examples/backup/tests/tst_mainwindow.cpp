// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "FileListModel.h"
#include "FilesPage.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "MainWindow.h"

#include <EditableTableView.h>
#include <FileListTableView.h>
#include <SpinBox.h>

#include <QApplication>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

/// The program's window with two jobs of one file each.
class Window
{
public:
    Window()
    {
        first.job.name = QStringLiteral("First");
        first.write("one", "1");
        second.job.name = QStringLiteral("Second");
        second.write("two", "22");
        const JobStore store(m_scratch.filePath(QStringLiteral("jobs.ini")));
        store.save({first.job, second.job});
        m_window.reset(new MainWindow(store));
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    MainWindow *operator->() const
    {
        return m_window.get();
    }

    QStringList listedNames() const
    {
        const FileListModel *model = m_window->filesPage()->model();
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row) {
            names.append(model->index(row, 0).data().toString());
        }
        return names;
    }

    void showFiles() const
    {
        m_window->pages()->setCurrentWidget(m_window->filesPage());
    }

    BackupFolders first;
    BackupFolders second;

private:
    QTemporaryDir m_scratch;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void listsTheFirstJobsFiles();
    void listsTheFilesOfTheSelectedJob();
    void listsAnewWhenTheJobsSourceIsEdited();
    void followsABackupInTheList();
    void hintsAtThePageSizeWhenItGetsTheFocus();
    void hintsAtTheBandwidthLimitWhenItGetsTheFocus();
    void takesThePageSizeFromItsBox();
    void reachesEverythingByKeyboard();
    void speaksGerman();
};

void tst_MainWindow::listsTheFirstJobsFiles()
{
    const Window window;

    window.showFiles();

    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("one")));
}

void tst_MainWindow::listsTheFilesOfTheSelectedJob()
{
    const Window window;
    window.showFiles();
    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("one")));
    JobsPage *jobs = window->jobsPage();

    jobs->table()->setCurrentIndex(jobs->jobs()->index(1, JobModel::Name));

    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("two")));
}

void tst_MainWindow::listsAnewWhenTheJobsSourceIsEdited()
{
    const Window window;
    window.showFiles();
    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("one")));

    window->jobsPage()->jobs()->item(0, JobModel::Source)->setText(window.second.job.sourceFolder);

    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("two")));
}

void tst_MainWindow::followsABackupInTheList()
{
    const Window window;
    window.showFiles();
    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("one")));
    const QModelIndex state = window->filesPage()->model()->index(0, FileListModel::State);
    QCOMPARE(state.data().toString(), QStringLiteral("new"));

    window->jobsPage()->runJob(0);

    QTRY_COMPARE(state.data().toString(), QStringLiteral("saved"));
    QTRY_VERIFY(!window->jobsPage()->engine()->isRunning());
}

void tst_MainWindow::hintsAtThePageSizeWhenItGetsTheFocus()
{
    const Window window;
    window.showFiles();
    window->filesPage()->list()->setFocus();

    QTest::mouseClick(window->filesPage()->pageSize(), Qt::LeftButton);

    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("10000")));
}

void tst_MainWindow::hintsAtTheBandwidthLimitWhenItGetsTheFocus()
{
    const Window window;
    window->jobsPage()->table()->setFocus();

    QTest::mouseClick(window->jobsPage()->bandwidthLimit(), Qt::LeftButton);

    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("no limit")));
}

void tst_MainWindow::takesThePageSizeFromItsBox()
{
    const Window window;
    for (int number = 0; number < 25; ++number) {
        window.first.write("f" + QByteArray::number(number), "x");
    }

    window->filesPage()->pageSize()->setValue(10);
    window.showFiles();

    QTRY_COMPARE(window->filesPage()->model()->rowCount(), 11); // with the row of the button
}

void tst_MainWindow::reachesEverythingByKeyboard()
{
    const Window window;
    JobsPage *jobs = window->jobsPage();
    jobs->table()->setFocus();
    QStringList reached;

    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget *widget = QApplication::focusWidget();
        reached.append(widget->accessibleDescription());
        reached.append(QString::fromLatin1(widget->metaObject()->className()));
    }

    QVERIFY(reached.contains(QStringLiteral("EditableTableViewButton column5")));
    QVERIFY(reached.contains(QStringLiteral("EditableTableViewButton column6")));
    QVERIFY(reached.contains(QStringLiteral("SpinBox")));
    QVERIFY(reached.contains(QStringLiteral("QTabBar")));
}

void tst_MainWindow::speaksGerman()
{
    QTranslator translator;
    QTranslator libraryTranslator;
    if (!translator.load(QStringLiteral("backup_de"), QStringLiteral(TRANSLATIONS_FOLDER))
        || !libraryTranslator.load(QStringLiteral("tessaline_de"),
                                   QStringLiteral(TESSALINE_TRANSLATIONS))) {
        QSKIP("Built without translations.");
    }
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::installTranslator(&libraryTranslator);
    const Window window;
    window.showFiles();
    QTRY_COMPARE(window.listedNames(), QStringList(QStringLiteral("one")));
    EditableTableView *table = window->jobsPage()->table();

    const QPushButton *run = qobject_cast<QPushButton *>(table->button(0, JobModel::Run));
    FileListModel *files = window->filesPage()->model();
    files->setPageSize(1);
    window.first.write("more", "1");
    window.first.write("most", "1");
    files->setJob(window.first.job);
    QTRY_COMPARE(files->rowCount(), 2);
    const QPushButton *next
        = qobject_cast<QPushButton *>(window->filesPage()->list()->indexWidget(files->index(1, 0)));

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::removeTranslator(&libraryTranslator);
    QCOMPARE(run->text(), QStringLiteral("Starten"));
    QVERIFY(next);
    QTRY_COMPARE(next->text(), QStringLiteral("Weiter >>"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Sicherung"));
}

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    tst_MainWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mainwindow.moc"
