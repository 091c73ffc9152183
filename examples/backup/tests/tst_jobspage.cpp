// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "JobModel.h"
#include "JobsPage.h"
#include "MainWindow.h"

#include <EditableTableView.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

namespace {

/// The program's window with one job, whose source holds two files.
class Window
{
public:
    Window()
        : m_storePath(m_scratch.filePath(QStringLiteral("jobs.ini")))
    {
        folders.job.name = QStringLiteral("Letters");
        folders.write("a", "first");
        folders.write("b/c", "second");
        JobStore(m_storePath).save({folders.job});
        m_window.reset(new MainWindow(JobStore(m_storePath)));
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    MainWindow *window() const
    {
        return m_window.get();
    }

    JobsPage *page() const
    {
        return m_window->jobsPage();
    }

    EditableTableView *table() const
    {
        return page()->table();
    }

    /// Opens the editor of a cell with the edit key.
    QWidget *edit(int row, int column) const
    {
        const QModelIndex cell = page()->jobs()->index(row, column);
        table()->setFocus();
        table()->setCurrentIndex(cell);
        QTest::keyClick(table(), Qt::Key_F2);
        return table()->indexWidget(cell);
    }

    void click(int row, int column) const
    {
        QTest::mouseClick(table()->button(row, column), Qt::LeftButton);
    }

    bool shows(const QString &text) const
    {
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            if (label->text().contains(text)) {
                return true;
            }
        }
        return false;
    }

    QByteArray storedBytes() const
    {
        return readFile(QFile::encodeName(m_storePath));
    }

    QList<BackupJob> stored() const
    {
        return JobStore(m_storePath).load();
    }

    BackupFolders folders;

private:
    QTemporaryDir m_scratch;
    QString m_storePath;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

class tst_JobsPage : public QObject
{
    Q_OBJECT

private slots:
    void showsTheStoredJobs();
    void runsAJobFromItsButton();
    void saysWhyAJobIsRefused();
    void refusesASecondJobWhileOneRuns();
    void keepsAnEditedNameInTheStore();
    void offersTheJobsSourceAndAddedFolders();
    void offersUsedTargets();
    void signsWithATypedPassphraseAndNeverStoresIt();
    void listsProblems();
    void removesAJobAndLeavesItsCopies();
    void addsAJobAndOpensItsName();
    void cancelsARunBeforeItCloses();
};

void tst_JobsPage::showsTheStoredJobs()
{
    const Window window;

    QCOMPARE(window.page()->jobs()->rowCount(), 1);
    QCOMPARE(window.page()->jobs()->job(0).name, QStringLiteral("Letters"));
    QVERIFY(window.table()->button(0, JobModel::Run));
    QVERIFY(window.table()->button(0, JobModel::Remove));
}

void tst_JobsPage::runsAJobFromItsButton()
{
    const Window window;

    window.click(0, JobModel::Run);

    QTRY_VERIFY(window.shows(QStringLiteral("\"Letters\" is complete.")));
    QCOMPARE(readFile(window.folders.copy("b/c")), QByteArray("second"));
    QVERIFY(exists(window.folders.target("manifest.sha256")));
}

void tst_JobsPage::saysWhyAJobIsRefused()
{
    const Window window;
    window.page()->jobs()->item(0, JobModel::Source)->setText(QStringLiteral("/does/not/exist"));

    window.click(0, JobModel::Run);

    QVERIFY(!window.page()->engine()->isRunning());
    QVERIFY(window.shows(QStringLiteral("/does/not/exist")));
}

void tst_JobsPage::refusesASecondJobWhileOneRuns()
{
    const Window window;
    window.click(0, JobModel::Run);

    window.click(0, JobModel::Run);

    QVERIFY(window.shows(QStringLiteral("running already")));
    QTRY_VERIFY(!window.page()->engine()->isRunning());
}

void tst_JobsPage::keepsAnEditedNameInTheStore()
{
    const Window window;
    QWidget *field = window.edit(0, JobModel::Name);
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("Mail"));

    QTest::keyClick(field, Qt::Key_Return);

    QTRY_COMPARE(window.stored().at(0).name, QStringLiteral("Mail"));
}

void tst_JobsPage::offersTheJobsSourceAndAddedFolders()
{
    const Window window;
    const QString added = QStringLiteral("/somewhere/else");

    window.page()->addSource(added);

    QComboBox *box = qobject_cast<QComboBox *>(window.edit(0, JobModel::Source));
    QVERIFY(box);
    QVERIFY(box->findText(QDir::homePath()) >= 0);
    QVERIFY(box->findText(added) >= 0);
    QCOMPARE(box->currentText(), window.folders.job.sourceFolder);
}

void tst_JobsPage::offersUsedTargets()
{
    const Window window;
    QWidget *editor = window.edit(0, JobModel::Target);
    QVERIFY(editor);
    const QString first = window.folders.job.targetFolder;
    qobject_cast<QComboBox *>(editor)->setEditText(first + QStringLiteral("2"));

    QTest::keyClick(editor, Qt::Key_Return);

    QTRY_COMPARE(window.page()->jobs()->job(0).targetFolder, first + QStringLiteral("2"));
    QComboBox *box = qobject_cast<QComboBox *>(window.edit(0, JobModel::Target));
    QVERIFY(box);
    QVERIFY(box->findText(first) >= 0);
    QVERIFY(box->findText(first + QStringLiteral("2")) >= 0);
}

void tst_JobsPage::signsWithATypedPassphraseAndNeverStoresIt()
{
    const Window window;
    QWidget *field = window.edit(0, JobModel::Passphrase);
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("swordfish"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(window.page()->jobs()->job(0).passphrase, QStringLiteral("swordfish"));

    window.click(0, JobModel::Run);

    QTRY_VERIFY(exists(window.folders.target("manifest.sha256.hmac")));
    QTRY_VERIFY(!window.page()->engine()->isRunning());
    window.window()->close();
    QVERIFY(window.storedBytes().contains("Letters"));
    QVERIFY(!window.storedBytes().contains("swordfish"));
}

void tst_JobsPage::listsProblems()
{
    const Window window;
    QCOMPARE(::mkfifo(window.folders.source("pipe").constData(), 0600), 0);

    window.click(0, JobModel::Run);

    QTRY_VERIFY(window.shows(QStringLiteral("is complete.")));
    QTreeWidget *problems = window.window()->findChild<QTreeWidget *>();
    QVERIFY(problems->isVisible());
    QCOMPARE(problems->topLevelItemCount(), 1);
    QCOMPARE(problems->topLevelItem(0)->text(0), QStringLiteral("pipe"));
}

void tst_JobsPage::removesAJobAndLeavesItsCopies()
{
    const Window window;
    window.click(0, JobModel::Run);
    QTRY_VERIFY(window.shows(QStringLiteral("is complete.")));

    window.click(0, JobModel::Remove);

    QCOMPARE(window.page()->jobs()->rowCount(), 0);
    QTRY_COMPARE(window.stored().size(), 0);
    QVERIFY(exists(window.folders.copy("a")));
}

void tst_JobsPage::addsAJobAndOpensItsName()
{
    const Window window;

    window.page()->addJob();

    QCOMPARE(window.page()->jobs()->rowCount(), 2);
    QVERIFY(qobject_cast<QLineEdit *>(window.table()->button(1, JobModel::Name)));
    QTRY_VERIFY(window.table()->button(1, JobModel::Run)->isVisible());
    QTRY_COMPARE(window.stored().size(), 2);
}

void tst_JobsPage::cancelsARunBeforeItCloses()
{
    const Window window;
    window.folders.write("large", QByteArray(50 * 1024 * 1024, 'x'));
    bool isAsked = false;
    bool stayedOpen = false;
    connect(window.page()->engine(), &BackupEngine::progressChanged, this,
            [&](const BackupProgress &progress) {
                if (!isAsked && progress.phase == BackupPhase::Copying) {
                    isAsked = true;
                    window.window()->close();
                    stayedOpen = window.window()->isVisible();
                }
            });

    window.click(0, JobModel::Run);

    QTRY_VERIFY(isAsked && !window.window()->isVisible());
    QVERIFY(stayedOpen);
    QVERIFY(!window.page()->engine()->isRunning());
    QVERIFY(window.shows(QStringLiteral("was cancelled")));
}

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    tst_JobsPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_jobspage.moc"
