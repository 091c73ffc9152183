// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"
#include "Console.h"

#include <QTest>

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void understandsWhatToDo_data();
    void understandsWhatToDo();
    void readsTheValues();
    void refusesWhatMakesNoSense_data();
    void refusesWhatMakesNoSense();
    void theWindowAloneNeedsADisplay_data();
    void theWindowAloneNeedsADisplay();
    void theHelpNamesOptionsAndExitStatus();
};

namespace {

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

} // namespace

void tst_CommandLine::understandsWhatToDo_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("task");
    QTest::newRow("nothing") << "backup" << int(CommandLine::OpenWindow);
    QTest::newRow("pictures") << "backup --pictures p" << int(CommandLine::TakePictures);
    QTest::newRow("help") << "backup --help" << int(CommandLine::ShowHelp);
    QTest::newRow("short help") << "backup -h" << int(CommandLine::ShowHelp);
    QTest::newRow("version") << "backup --version" << int(CommandLine::ShowVersion);
    QTest::newRow("run") << "backup --source s --target t --run" << int(CommandLine::BackUp);
    QTest::newRow("run, verify") << "backup --source s --target t --run --verify"
                                 << int(CommandLine::BackUp);
    QTest::newRow("verify") << "backup --target t --verify" << int(CommandLine::Verify);
    QTest::newRow("restore") << "backup --target t --restore id f" << int(CommandLine::Restore);
    QTest::newRow("snapshots") << "backup --target t --snapshots" << int(CommandLine::Snapshots);
}

void tst_CommandLine::understandsWhatToDo()
{
    QFETCH(QString, line);
    QFETCH(int, task);
    const CommandLine result = CommandLine::parse(line.split(QLatin1Char(' ')));
    QCOMPARE(result.error, QString());
    QCOMPARE(int(result.task), task);
}

void tst_CommandLine::readsTheValues()
{
    CommandLine line
        = CommandLine::parse(words("backup --source s --target=sftp:h:/t --run --verify --init "
                                   "--unlock --quiet --limit-upload 7"));
    QCOMPARE(line.job.source, QStringLiteral("s"));
    QCOMPARE(line.job.repository, QStringLiteral("sftp:h:/t"));
    QVERIFY(line.job.verify);
    QVERIFY(line.createsRepository);
    QVERIFY(line.removesStaleLock);
    QVERIFY(line.isQuiet);
    QCOMPARE(line.uploadLimit, 7);
    line = CommandLine::parse(words("backup --target t --restore abc f"));
    QCOMPARE(line.snapshot, QStringLiteral("abc"));
    QCOMPARE(line.folder, QStringLiteral("f"));
    QVERIFY(!line.job.verify);
    QVERIFY(!line.createsRepository);
    QVERIFY(!line.removesStaleLock);
    QCOMPARE(CommandLine::parse(words("backup --pictures p")).folder, QStringLiteral("p"));
}

void tst_CommandLine::refusesWhatMakesNoSense_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"backup --frobnicate",
                             "backup stray",
                             "backup --source",
                             "backup --run",
                             "backup --run --source s",
                             "backup --run --target t",
                             "backup --verify",
                             "backup --snapshots",
                             "backup --restore id f",
                             "backup --target t --restore id",
                             "backup --target t --restore id f stray",
                             "backup --target t --snapshots stray",
                             "backup --source s --target t",
                             "backup --init",
                             "backup --quiet",
                             "backup --source s --target t --run --limit-upload fast",
                             "backup --source s --target t --run --limit-upload 0",
                             "backup --source s --target t --run --limit-upload -5",
                             "backup --source= --target t --run",
                             "backup --source s --target= --run"}) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

void tst_CommandLine::refusesWhatMakesNoSense()
{
    QFETCH(QString, line);
    const CommandLine result = CommandLine::parse(line.split(QLatin1Char(' ')));
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(Console::run(result), 2);
}

void tst_CommandLine::theWindowAloneNeedsADisplay_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("needs");
    QTest::newRow("window") << "backup" << true;
    QTest::newRow("Qt's own option") << "backup -style fusion" << true;
    QTest::newRow("pictures") << "backup --pictures p" << true;
    QTest::newRow("pictures=") << "backup --pictures=p" << true;
    QTest::newRow("run") << "backup --run" << false;
    QTest::newRow("source first") << "backup --source s --target t --run" << false;
    QTest::newRow("help") << "backup -h" << false;
    QTest::newRow("version") << "backup --version" << false;
    QTest::newRow("nonsense") << "backup stray" << false;
}

void tst_CommandLine::theWindowAloneNeedsADisplay()
{
    QFETCH(QString, line);
    QFETCH(bool, needs);
    QList<QByteArray> arguments = line.toLatin1().split(' ');
    QVector<char *> pointers;
    for (QByteArray &argument : arguments) {
        pointers.append(argument.data());
    }
    QCOMPARE(CommandLine::needsDisplay(int(pointers.size()), pointers.constData()), needs);
}

void tst_CommandLine::theHelpNamesOptionsAndExitStatus()
{
    const QString help = CommandLine::helpText();
    for (const char *option :
         {"--source", "--target", "--run", "--verify", "--restore", "--snapshots", "--init",
          "--unlock", "--limit-upload", "--quiet", "--pictures", "--version", "--help",
          "Exit status", "standard input"}) {
        QVERIFY2(help.contains(QLatin1String(option)), option);
    }
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
