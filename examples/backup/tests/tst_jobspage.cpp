// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WindowTools.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTextDocumentFragment>
#include <QtTest>

class tst_JobsPage : public QObject
{
    Q_OBJECT

private slots:
    void makesTheRepositoryAndBacksUp();
    void makesNoRepositoryWithoutConsent();
    void tellsAWrongPassword();
    void asksForAMissingPassword();
    void startsNothingWithoutAPassword();
    void neverStoresAPassword();
    void asksForAMissingRepository();
    void cancelsFromTheButtonOfTheRow();
    void keepsTheHeadlineWhenAnotherRunIsRefused();
    void marksTheRunningRowWhenAnotherIsRemoved();
    void keepsAJobThatRuns();
    void removesAJobIfTheUserAgrees_data();
    void removesAJobIfTheUserAgrees();
    void asksForARemovalByTheNameAsItIs();
    void namesTheRepositoryAsItIs();
    void addsAJobAndOpensItsName();
    void saysHowToBegin();
    void takesAChoiceAtOnce();
    void choosesASourceInADialog();
    void offersRepositoriesThatWereTyped();
    void tellsReadersWhetherAJobIsVerified();
    void saysWhatAButtonIsFor_data();
    void saysWhatAButtonIsFor();
    void keepsAllColumnsInSight_data();
    void keepsAllColumnsInSight();
};

void tst_JobsPage::makesTheRepositoryAndBacksUp()
{
    NEEDS_RESTIC()
    const Window window;
    window.typePassword(0, QStringLiteral("secret"));
    answerNextQuestion(QMessageBox::Yes);

    window.click(0, JobModel::Run);

    QCOMPARE(window.runButton(0)->text(), QStringLiteral("Cancel"));
    QTRY_VERIFY_WITH_TIMEOUT(!window.run()->isRunning(), 60000);
    QVERIFY(window.shows(QStringLiteral("2 new")));
    QVERIFY(QFile::exists(window.path(QStringLiteral("repository/config"))));
    QCOMPARE(window.runButton(0)->text(), QStringLiteral("Run"));
}

void tst_JobsPage::makesNoRepositoryWithoutConsent()
{
    NEEDS_RESTIC()
    const Window window;
    window.typePassword(0, QStringLiteral("secret"));
    answerNextQuestion(QMessageBox::No);

    window.click(0, JobModel::Run);

    QTRY_VERIFY_WITH_TIMEOUT(!window.run()->isRunning(), 60000);
    QVERIFY(!QFile::exists(window.repository()));
    QVERIFY(window.shows(QStringLiteral("no repository")));
}

void tst_JobsPage::tellsAWrongPassword()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(0);
    window.typePassword(0, QStringLiteral("wrong"));

    window.click(0, JobModel::Run);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("not the repository's password")), 60000);
}

void tst_JobsPage::asksForAMissingPassword()
{
    NEEDS_RESTIC()
    const Window window;
    window.backUp(1);
    typeInNextDialog(QStringLiteral("secret"));

    window.click(0, JobModel::Run);

    QTRY_VERIFY_WITH_TIMEOUT(window.shows(QStringLiteral("2 new")), 60000);
    QCOMPARE(window.jobs()->job(0).password, QString());
}

void tst_JobsPage::startsNothingWithoutAPassword()
{
    const Window window;
    inNext<QInputDialog>([](QInputDialog *dialog) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    });

    window.click(0, JobModel::Run);

    QVERIFY(!window.run()->isRunning());
}

void tst_JobsPage::neverStoresAPassword()
{
    const Window window;

    window.typePassword(0, QStringLiteral("swordfish"));

    window->close();
    QVERIFY(window.storedBytes().contains("Letters"));
    QVERIFY(!window.storedBytes().contains("swordfish"));
}

void tst_JobsPage::asksForAMissingRepository()
{
    const Window window;
    window.jobs()->item(0, JobModel::Repository)->setText(QString());

    window.click(0, JobModel::Run);

    QVERIFY(!window.run()->isRunning());
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("Letters")));
    QVERIFY(window.table()->button(0, JobModel::Repository));
}

void tst_JobsPage::cancelsFromTheButtonOfTheRow()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();

    window.click(1, JobModel::Run);

    QTRY_VERIFY_WITH_TIMEOUT(!window.run()->isRunning(), 60000);
    QVERIFY(window.shows(QStringLiteral("Cancelled.")));
    QCOMPARE(window.runButton(1)->text(), QStringLiteral("Run"));
}

void tst_JobsPage::keepsTheHeadlineWhenAnotherRunIsRefused()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();

    window.click(0, JobModel::Run);

    QVERIFY(window.shows(QStringLiteral("Backing up \"Numbers\"")));
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("\"Letters\"")));
    QCOMPARE(window.runButton(0)->text(), QStringLiteral("Run"));
}

void tst_JobsPage::marksTheRunningRowWhenAnotherIsRemoved()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();
    answerNextQuestion(QMessageBox::Yes);

    window.click(0, JobModel::Remove);

    QCOMPARE(window.jobs()->rowCount(), 1);
    QCOMPARE(window.runButton(0)->text(), QStringLiteral("Cancel"));
    window.click(0, JobModel::Run);
    QTRY_COMPARE_WITH_TIMEOUT(window.runButton(0)->text(), QStringLiteral("Run"), 60000);
}

void tst_JobsPage::keepsAJobThatRuns()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();

    window.click(1, JobModel::Remove);

    QCOMPARE(window.jobs()->rowCount(), 2);
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("Cancel it")));
}

void tst_JobsPage::removesAJobIfTheUserAgrees_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("jobs");

    QTest::newRow("yes") << int(QMessageBox::Yes) << 1;
    QTest::newRow("no") << int(QMessageBox::No) << 2;
}

void tst_JobsPage::removesAJobIfTheUserAgrees()
{
    QFETCH(int, button);
    const Window window;
    answerNextQuestion(QMessageBox::StandardButton(button));

    window.click(0, JobModel::Remove);

    QTEST(window.jobs()->rowCount(), "jobs");
}

void tst_JobsPage::asksForARemovalByTheNameAsItIs()
{
    const Window window;
    window.jobs()->item(0, JobModel::Name)->setText(QStringLiteral("<b>a</b> & b"));
    QString question;
    inNext<QMessageBox>([&question](QMessageBox *box) {
        question = QTextDocumentFragment::fromHtml(box->text()).toPlainText();
        box->reject();
    });

    window.click(0, JobModel::Remove);

    QVERIFY2(question.contains(QStringLiteral("\"<b>a</b> & b\"")), qPrintable(question));
}

void tst_JobsPage::namesTheRepositoryAsItIs()
{
    const Window window;
    window.jobs()->item(0, JobModel::Repository)->setText(QStringLiteral("/media/R&D"));
    QString label;
    inNext<QInputDialog>([&label](QInputDialog *dialog) {
        label = dialog->labelText();
        dialog->reject();
    });

    window.click(0, JobModel::Run);

    // One ampersand would be the mark of a shortcut.
    QVERIFY2(label.contains(QStringLiteral("/media/R&&D:")), qPrintable(label));
}

void tst_JobsPage::addsAJobAndOpensItsName()
{
    const Window window;
    QPushButton *add = nullptr;
    for (QPushButton *button : window->findChildren<QPushButton *>()) {
        add = button->text() == QLatin1String("&New backup") ? button : add;
    }

    QTest::mouseClick(add, Qt::LeftButton);

    QCOMPARE(window.jobs()->rowCount(), 3);
    QVERIFY(qobject_cast<QLineEdit *>(window.table()->button(2, JobModel::Name)));
    QTRY_VERIFY(window.storedBytes().contains("New backup"));
}

void tst_JobsPage::saysHowToBegin()
{
    const Window window;
    QVERIFY(!window.shows(QStringLiteral("nothing to back up")));

    window.jobs()->removeRow(0);
    window.jobs()->removeRow(0);

    QVERIFY(window.shows(QStringLiteral("nothing to back up")));
}

void tst_JobsPage::takesAChoiceAtOnce()
{
    const Window window;
    QComboBox *box = qobject_cast<QComboBox *>(window.edit(0, JobModel::Source));
    QVERIFY(box);
    const QString home = QDir::homePath();
    QVERIFY(box->findText(home) >= 0);

    while (box->currentText() != home) {
        QTest::keyClick(box, Qt::Key_Up);
    }

    QTRY_COMPARE(window.jobs()->job(0).source, home);
}

void tst_JobsPage::choosesASourceInADialog()
{
    const Window window;
    const QString folder = window.path(QStringLiteral("numbers"));
    QComboBox *box = qobject_cast<QComboBox *>(window.edit(0, JobModel::Source));
    QVERIFY(box);
    chooseInNextDialog(folder);

    QTest::keyClick(box, Qt::Key_End);

    QTRY_COMPARE(window.jobs()->job(0).source, folder);
}

void tst_JobsPage::offersRepositoriesThatWereTyped()
{
    const Window window;
    const QString typed = QStringLiteral("sftp:host:/backups");
    QComboBox *editor = qobject_cast<QComboBox *>(window.edit(0, JobModel::Repository));
    QVERIFY(editor);
    editor->lineEdit()->selectAll();
    QTest::keyClicks(editor, typed);

    QTest::keyClick(editor, Qt::Key_Return);

    QTRY_COMPARE(window.jobs()->job(0).repository, typed);
    QComboBox *other = qobject_cast<QComboBox *>(window.edit(1, JobModel::Repository));
    QVERIFY(other);
    QVERIFY(other->findText(typed) >= 0);
    QVERIFY(other->findText(window.repository()) >= 0);
}

void tst_JobsPage::tellsReadersWhetherAJobIsVerified()
{
    const Window window;
    const QModelIndex cell = window.jobs()->index(0, JobModel::Verify);
    window.jobs()->setData(cell, QString());
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Verify: no"));

    window.jobs()->setData(cell, QStringLiteral("1"));

    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Verify: yes"));
}

void tst_JobsPage::saysWhatAButtonIsFor_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");

    QTest::newRow("run") << int(JobModel::Run) << "Run Letters";
    QTest::newRow("remove") << int(JobModel::Remove) << "Remove Letters";
}

void tst_JobsPage::saysWhatAButtonIsFor()
{
    QFETCH(int, column);
    const Window window;

    const QWidget *button = window.table()->button(0, column);

    QTEST(button->accessibleName(), "text");
}

void tst_JobsPage::keepsAllColumnsInSight_data()
{
    QTest::addColumn<int>("width");

    QTest::newRow("usual") << 960;
    QTest::newRow("small screen") << 800;
    QTest::newRow("1366 pixels, doubled") << 683;
}

void tst_JobsPage::keepsAllColumnsInSight()
{
    QFETCH(int, width);
    const Window window;
    window.jobs()->item(0, JobModel::Source)->setText(QString(300, QLatin1Char('x')));

    window->resize(width, 380);

    QTRY_COMPARE(window->width(), width);
    const QWidget *remove = window.table()->button(0, JobModel::Remove);
    QTRY_VERIFY(remove->geometry().right() <= window.table()->viewport()->width());
    QVERIFY(window.table()->columnWidth(JobModel::Source) > 50);
    QVERIFY(window.table()->columnWidth(JobModel::Repository) > 50);
}

int main(int argc, char **argv)
{
    tst_JobsPage test;
    return runTests(&test, argc, argv);
}

#include "tst_jobspage.moc"
