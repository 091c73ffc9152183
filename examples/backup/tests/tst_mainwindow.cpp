// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Translators.h"
#include "WindowTools.h"

#include <FileListTableView.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void closesAtOnceWhenNothingRuns();
    void goesOnRunningWhenClosingIsDeclined();
    void cancelsTheRunAndClosesIfTheUserAgrees();
    void leavesItToTheUserWhetherALockIsStale();
    void storesAnEditedName();
    void hintsAtTheBandwidthLimit();
    void showsTheThroughput();
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void reachesEverythingByKeyboard();
    void saysThatResticIsMissing();
    void speaksALanguage_data();
    void speaksALanguage();
    void isTranslatedCompletely_data();
    void isTranslatedCompletely();
};

void tst_MainWindow::closesAtOnceWhenNothingRuns()
{
    const Window window;

    window->close();

    QVERIFY(!window->isVisible());
}

void tst_MainWindow::goesOnRunningWhenClosingIsDeclined()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();
    QSignalSpy finished(window.run(), &BackupRun::finished);
    answerNextQuestion(QMessageBox::No);

    window->close();

    QVERIFY(!finished.wait(3000));
    QVERIFY(window->isVisible());
    QVERIFY(window.run()->isRunning());
    QVERIFY(window.shows(QStringLiteral("Backing up \"Numbers\"")));
}

void tst_MainWindow::cancelsTheRunAndClosesIfTheUserAgrees()
{
    NEEDS_RESTIC()
    const Window window;
    window.startLongRun();
    answerNextQuestion(QMessageBox::Yes);

    window->close();

    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 60000);
    QVERIFY(!window.run()->isRunning());
}

void tst_MainWindow::leavesItToTheUserWhetherALockIsStale()
{
    const Window window;
    QString question;
    inNext<QMessageBox>([&question](QMessageBox *box) {
        question = box->text();
        box->reject();
    });

    emit window.run()->asked(BackupRun::RemoveStaleLock);

    QTRY_VERIFY(!question.isEmpty());
    QVERIFY2(question.contains(QStringLiteral(" if ")), qPrintable(question));
}

void tst_MainWindow::storesAnEditedName()
{
    const Window window;
    QWidget *field = window.edit(0, JobModel::Name);
    QTest::keyClicks(field, QStringLiteral("Mail"));

    QTest::keyClick(field, Qt::Key_Return);

    QTRY_VERIFY(window.storedBytes().contains("Mail"));
}

void tst_MainWindow::hintsAtTheBandwidthLimit()
{
    const Window window;
    window.table()->setFocus();

    QTest::mouseClick(window.spinBox(), Qt::LeftButton);

    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("next run")));
}

void tst_MainWindow::showsTheThroughput()
{
#ifdef TESSALINE_HAS_PLOT
    NEEDS_RESTIC()
    const Window window;
    window.showPage(2);
    QLabel *now = window.find<QTabWidget>()->widget(2)->findChild<QLabel *>();
    answerNextQuestion(QMessageBox::No);

    window.run()->backUp(window.jobs()->job(1));

    QTRY_COMPARE_WITH_TIMEOUT(now->text(), QStringLiteral("In the last second: 0 B"), 60000);
#else
    QSKIP("Built without the chart.");
#endif
}

void tst_MainWindow::fitsASmallScreen_data()
{
    QTest::addColumn<QLocale>("locale");

    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("German") << QLocale(QLocale::German);
    QTest::newRow("Spanish") << QLocale(QLocale::Spanish);
}

void tst_MainWindow::fitsASmallScreen()
{
    QFETCH(QLocale, locale);
    const Translators translators(QFileInfo(QStringLiteral(BACKUP_PROGRAM)).path(), locale);
    const Window window;

    const QSize smallest = window->minimumSizeHint();

    // 1366 x 768 pixels, doubled, without a panel and the window's frame.
    QVERIFY2(smallest.width() <= 675, qPrintable(QString::number(smallest.width())));
    QVERIFY2(smallest.height() <= 330, qPrintable(QString::number(smallest.height())));
}

void tst_MainWindow::reachesEverythingByKeyboard()
{
    const Window window;
    window.table()->setFocus();
    QStringList reached;

    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget *widget = QApplication::focusWidget();
        reached.append(widget->accessibleName());
        reached.append(QString::fromLatin1(widget->metaObject()->className()));
    }

    QVERIFY(reached.contains(QStringLiteral("Run Letters")));
    QVERIFY(reached.contains(QStringLiteral("Remove Numbers")));
    QVERIFY(reached.contains(QStringLiteral("SpinBox")));
    QVERIFY(reached.contains(QStringLiteral("QTabBar")));
}

void tst_MainWindow::saysThatResticIsMissing()
{
    const Window window;
    window.typePassword(0, QStringLiteral("secret"));
    window.sandbox.useProgram(QStringLiteral("/no/such/program"));

    window.click(0, JobModel::Run);

    QTRY_VERIFY(window.shows(QStringLiteral("Install the package \"restic\"")));
}

void tst_MainWindow::speaksALanguage_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("run");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("yes");

    QTest::newRow("German") << QLocale(QLocale::German) << "Starten"
                            << "Weiter"
                            << "&Ja";
    QTest::newRow("Spanish") << QLocale(QLocale::Spanish) << "Iniciar"
                             << "Siguiente" << QString::fromUtf8("&Sí");
}

// The program's own texts, the library's and Qt's.
void tst_MainWindow::speaksALanguage()
{
    QFETCH(QLocale, locale);
    const Translators translators(QFileInfo(QStringLiteral(BACKUP_PROGRAM)).path(), locale);
    if (QCoreApplication::translate("EditableTableView", "Run") == QLatin1String("Run")) {
        QSKIP("Built without translations.");
    }
    const Window window;
    QString yes;
    inNext<QMessageBox>([&yes](QMessageBox *box) {
        yes = box->button(QMessageBox::Yes)->text();
        box->reject();
    });

    window.click(0, JobModel::Remove);

    QTEST(window.runButton(0)->text(), "run");
    QTEST(FileListTableView::tr("Common::Next"), "next");
    QTEST(yes, "yes");
}

void tst_MainWindow::isTranslatedCompletely_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("German") << "backup_de.ts";
    QTest::newRow("Spanish") << "backup_es.ts";
}

void tst_MainWindow::isTranslatedCompletely()
{
    QFETCH(QString, file);
    const QString lupdate
        = QStandardPaths::findExecutable(QStringLiteral("lupdate"), {QStringLiteral(QT_PROGRAMS)});
    if (lupdate.isEmpty()) {
        QSKIP("There is no lupdate.");
    }
    const QTemporaryDir folder;
    const QString copy = folder.filePath(file);
    QFile::copy(QStringLiteral(BACKUP_SOURCES "/translations/") + file, copy);

    QCOMPARE(
        QProcess::execute(lupdate,
                          {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                           QStringLiteral(BACKUP_SOURCES "/restic"),
                           QStringLiteral(BACKUP_SOURCES "/console"),
                           QStringLiteral(BACKUP_SOURCES "/window"), QStringLiteral("-ts"), copy}),
        0);

    const QByteArray texts = readFile(QFile::encodeName(copy));
    QVERIFY(texts.contains("<translation>"));
    const int unfinished = int(texts.indexOf("type=\"unfinished\""));
    QVERIFY2(unfinished < 0, texts.mid(qMax(0, unfinished - 300), 400).constData());
}

int main(int argc, char **argv)
{
    tst_MainWindow test;
    return runTests(&test, argc, argv);
}

#include "tst_mainwindow.moc"
