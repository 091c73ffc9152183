// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WindowTools.h"

#include <FileListTableView.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QStatusBar>
#include <QtTest>

namespace {

const int filesPage = 1;

QComboBox *snapshots(const Window &window)
{
    return window.find<QTabWidget>()->widget(filesPage)->findChild<QComboBox *>();
}

QPushButton *pushButton(const Window &window, const QString &text)
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

/// The content of the one file of that name below a folder.
QByteArray contentBelow(const QString &folder, const QString &name)
{
    QDirIterator files(folder, {name}, QDir::Files, QDirIterator::Subdirectories);
    QFile file(files.hasNext() ? files.next() : QString());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Backs the first job up twice, a file of which changes meanwhile, and chooses the older snapshot.
void chooseTheFirst(const Window &window)
{
    window.backUp(0);
    window.write(QStringLiteral("letters/a"), "changed");
    window.backUp(0);
    window.showPage(filesPage);
    QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 2, 60000);
    QTest::keyClick(snapshots(window), Qt::Key_Down);
}

} // namespace

class tst_FilesPage : public QObject
{
    Q_OBJECT

private slots:
    void listsTheFilesOfTheNewestSnapshot();
    void listsTheFilesOfTheChosenSnapshot();
    void offersTheSnapshotsOfTheJobOnly();
    void offersTheSnapshotsOfALostSourceBehindALink();
    void offersTheSnapshotsOfTheJobOnlyWhenItsSourceIsLost();
    void looksAgainAfterABackup();
    void keepsTheChosenSnapshotWhenAnotherJobIsBackedUp();
    void asksForAMissingPassword();
    void tellsAWrongPassword();
    void asksAgainAfterAWrongPassword();
    void listsNothingForAJobWithoutRepository();
    void restoresTheChosenSnapshot();
    void restoresTheSnapshotChosenBeforeAskingForAFolder();
    void namesTheRepositoryAsItIs();
    void restoresNothingIntoAFolderInUse();
    void takesThePageSizeFromItsBox();
    void hintsAtThePageSize();
    void showsWholeSizesInALargeFont();
};

void tst_FilesPage::listsTheFilesOfTheNewestSnapshot()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);

    window.showPage(filesPage);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("c")), 60000);
    QCOMPARE(snapshots(window)->count(), 1);
    QVERIFY(window.listedNames().contains(QStringLiteral("a")));
}

void tst_FilesPage::listsTheFilesOfTheChosenSnapshot()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.write(QStringLiteral("letters/new"), "third");
    window.backUp(0);
    window.showPage(filesPage);
    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("new")), 60000);

    QTest::keyClick(snapshots(window), Qt::Key_Down);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("a")), 60000);
    QVERIFY(!window.listedNames().contains(QStringLiteral("new")));
}

void tst_FilesPage::offersTheSnapshotsOfTheJobOnly()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(1);
    window.backUp(0);

    window.showPage(filesPage);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("c")), 60000);
    QCOMPARE(snapshots(window)->count(), 1);
    QVERIFY(snapshots(window)->currentText().endsWith(QStringLiteral("letters")));
}

void tst_FilesPage::offersTheSnapshotsOfALostSourceBehindALink()
{
    NEEDS_RESTIC()
    const Window window;
    const QString link = window.path(QStringLiteral("link"));
    QVERIFY(QFile::link(window.path(QStringLiteral("letters")), link));
    window.jobs()->item(0, JobModel::Source)->setText(link);
    window.backUp(0);
    QVERIFY(QDir(window.path(QStringLiteral("letters"))).removeRecursively());

    window.showPage(filesPage);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("c")), 60000);
}

void tst_FilesPage::offersTheSnapshotsOfTheJobOnlyWhenItsSourceIsLost()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.backUp(1);
    QVERIFY(QDir(window.path(QStringLiteral("letters"))).removeRecursively());
    window.table()->setCurrentIndex(window.jobs()->index(0, JobModel::Name));

    window.showPage(filesPage);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("c")), 60000);
    QCOMPARE(snapshots(window)->count(), 1);
}

void tst_FilesPage::looksAgainAfterABackup()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.showPage(filesPage);
    QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 1, 60000);

    window.run()->backUp(window.jobs()->job(0));

    QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 2, 60000);
}

void tst_FilesPage::keepsTheChosenSnapshotWhenAnotherJobIsBackedUp()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.backUp(0);
    window.showPage(filesPage);
    QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 2, 60000);
    QTest::keyClick(snapshots(window), Qt::Key_Down);
    QSignalSpy finished(window.run(), &BackupRun::finished);
    BackupJob other = window.jobs()->job(1);
    other.password = QStringLiteral("secret");

    window.run()->backUp(other);

    QTRY_COMPARE_WITH_TIMEOUT(int(finished.count()), 1, 60000);
    QCOMPARE(snapshots(window)->count(), 2);
    QCOMPARE(snapshots(window)->currentIndex(), 1);
}

void tst_FilesPage::asksForAMissingPassword()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(1); // which makes the repository
    BackupJob job = window.jobs()->job(0);
    job.password = QStringLiteral("secret");
    window.run()->backUp(job);
    QTRY_VERIFY_WITH_TIMEOUT(!window.run()->isRunning(), 60000);
    window.table()->setCurrentIndex(window.jobs()->index(0, JobModel::Name));
    window.showPage(filesPage);
    QVERIFY(window.shows(QStringLiteral("asks for the password")));
    typeInNextDialog(QStringLiteral("secret"));

    QTest::mouseClick(pushButton(window, QStringLiteral("&Show snapshots")), Qt::LeftButton);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("c")), 60000);
}

void tst_FilesPage::tellsAWrongPassword()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.typePassword(0, QStringLiteral("wrong"));

    window.showPage(filesPage);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("not the repository's password")), 60000);
    QTRY_COMPARE(window.listedNames(), QStringList());
    QVERIFY(!pushButton(window, QStringLiteral("&Restore..."))->isEnabled());
}

void tst_FilesPage::asksAgainAfterAWrongPassword()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.typePassword(0, QStringLiteral("wrong"));
    window.showPage(filesPage);
    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("not the repository's password")), 60000);
    typeInNextDialog(QStringLiteral("secret"));

    QTest::mouseClick(pushButton(window, QStringLiteral("&Show snapshots")), Qt::LeftButton);

    QTRY_VERIFY_WITH_TIMEOUT(window.listedNames().contains(QStringLiteral("a")), 60000);
}

void tst_FilesPage::listsNothingForAJobWithoutRepository()
{
    const Window window;
    window.jobs()->item(0, JobModel::Repository)->setText(QString());

    window.showPage(filesPage);

    QVERIFY(window.shows(QStringLiteral("no repository")));
    QTRY_COMPARE(window.listedNames(), QStringList());
}

void tst_FilesPage::restoresTheChosenSnapshot()
{
    NEEDS_RESTIC()
    const Window window;
    chooseTheFirst(window);
    const QString folder = window.path(QStringLiteral("restored"));
    QDir().mkpath(folder);
    chooseInNextDialog(folder);

    QTest::mouseClick(pushButton(window, QStringLiteral("&Restore...")), Qt::LeftButton);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("Restored below ") + folder), 60000);
    QCOMPARE(contentBelow(folder, QStringLiteral("a")), QByteArray("first"));
    QCOMPARE(contentBelow(folder, QStringLiteral("c")), QByteArray("second"));
}

// The list starts over when a backup ends, and that may be while the dialog is open.
void tst_FilesPage::restoresTheSnapshotChosenBeforeAskingForAFolder()
{
    NEEDS_RESTIC()
    const Window window;
    chooseTheFirst(window);
    const QString folder = window.path(QStringLiteral("restored"));
    QDir().mkpath(folder);
    inNext<QFileDialog>([&window, folder](QFileDialog *) {
        window.run()->backUp(window.jobs()->job(0));
        QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 3, 60000);
        chooseInNextDialog(folder);
    });

    QTest::mouseClick(pushButton(window, QStringLiteral("&Restore...")), Qt::LeftButton);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("Restored below ") + folder), 60000);
    QCOMPARE(contentBelow(folder, QStringLiteral("a")), QByteArray("first"));
}

void tst_FilesPage::namesTheRepositoryAsItIs()
{
    const Window window;
    window.jobs()->item(0, JobModel::Repository)->setText(QStringLiteral("/media/R&D"));
    window.showPage(filesPage);
    QString label;
    inNext<QInputDialog>([&label](QInputDialog *dialog) {
        label = dialog->labelText();
        dialog->reject();
    });

    QTest::mouseClick(pushButton(window, QStringLiteral("&Show snapshots")), Qt::LeftButton);

    // One ampersand would be the mark of a shortcut.
    QVERIFY2(label.contains(QStringLiteral("/media/R&&D:")), qPrintable(label));
}

void tst_FilesPage::restoresNothingIntoAFolderInUse()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.showPage(filesPage);
    QTRY_COMPARE_WITH_TIMEOUT(snapshots(window)->count(), 1, 60000);
    chooseInNextDialog(window.path(QStringLiteral("numbers")));

    QTest::mouseClick(pushButton(window, QStringLiteral("&Restore...")), Qt::LeftButton);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("nothing was restored")), 60000);
    QCOMPARE(QDir(window.path(QStringLiteral("numbers")))
                 .entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("noise")));
}

void tst_FilesPage::takesThePageSizeFromItsBox()
{
    NEEDS_RESTIC()
    const Window window;
    for (int number = 0; number < 25; ++number) {
        window.write(QStringLiteral("letters/f%1").arg(number), "x");
    }
    window.backUp(0);
    window.find<QTabWidget>()->widget(filesPage)->findChild<SpinBox *>()->setValue(10);

    window.showPage(filesPage);

    // With the row of the button.
    QTRY_COMPARE_WITH_TIMEOUT(window.find<FileListModel>()->rowCount(), 11, 60000);
}

void tst_FilesPage::hintsAtThePageSize()
{
    const Window window;
    window.showPage(filesPage);
    window.find<FileListTableView>()->setFocus();

    QTest::mouseClick(window.spinBox(), Qt::LeftButton);

    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("10000")));
}

void tst_FilesPage::showsWholeSizesInALargeFont()
{
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 18));

    const Window window;
    window.showPage(filesPage);

    QApplication::setFont(usual);
    const FileListTableView *list = window.find<FileListTableView>();
    QVERIFY(list->fontMetrics().horizontalAdvance(QStringLiteral("1023 MB"))
            < list->columnWidth(FileListModel::Size));
}

int main(int argc, char **argv)
{
    tst_FilesPage test;
    return runTests(&test, argc, argv);
}

#include "tst_filespage.moc"
