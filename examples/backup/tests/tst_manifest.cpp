// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Manifest.h"

#include <QTest>

namespace {

QByteArray someDigest()
{
    return QByteArray(32, '\xab');
}

} // namespace

class tst_Manifest : public QObject
{
    Q_OBJECT

private slots:
    void aLineIsWhatSha256sumWrites_data();
    void aLineIsWhatSha256sumWrites();
    void aLineReadsBackAsItWasWritten_data();
    void aLineReadsBackAsItWasWritten();
    void anUpperCaseBinaryModeLineIsUnderstood();
    void aLineThatIsNoChecksumIsRejected_data();
    void aLineThatIsNoChecksumIsRejected();
    void linesAreSortedByTheBytesOfThePaths();
};

void tst_Manifest::aLineIsWhatSha256sumWrites_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("line");
    const QByteArray digits = someDigest().toHex();
    QTest::newRow("plain") << QByteArray("a b") << digits + "  data/a b\n";
    QTest::newRow("backslash") << QByteArray("a\\b") << '\\' + digits + "  data/a\\\\b\n";
    QTest::newRow("newline") << QByteArray("a\nb") << '\\' + digits + "  data/a\\nb\n";
    QTest::newRow("carriage return") << QByteArray("a\rb") << '\\' + digits + "  data/a\\rb\n";
}

void tst_Manifest::aLineIsWhatSha256sumWrites()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, line);
    QCOMPARE(Manifest::line(path, someDigest()), line);
}

void tst_Manifest::aLineReadsBackAsItWasWritten_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("plain") << QByteArray("folder/file");
    QTest::newRow("leading spaces") << QByteArray("  file");
    QTest::newRow("asterisk") << QByteArray("*file");
    QTest::newRow("all that is escaped") << QByteArray("\\n\n\r\\\\r");
    QTest::newRow("trailing newline") << QByteArray("file\n");
    QTest::newRow("not UTF-8") << QByteArray("\xff\xfe");
}

void tst_Manifest::aLineReadsBackAsItWasWritten()
{
    QFETCH(QByteArray, path);
    QByteArray readPath;
    QByteArray readDigest;
    QVERIFY(Manifest::parseLine(Manifest::line(path, someDigest()), &readPath, &readDigest));
    QCOMPARE(readPath, path);
    QCOMPARE(readDigest, someDigest());
}

void tst_Manifest::anUpperCaseBinaryModeLineIsUnderstood()
{
    QByteArray path;
    QByteArray digest;
    const QByteArray line = someDigest().toHex().toUpper() + " *data/file";
    QVERIFY(Manifest::parseLine(line, &path, &digest));
    QCOMPARE(path, QByteArray("file"));
    QCOMPARE(digest, someDigest());
}

void tst_Manifest::aLineThatIsNoChecksumIsRejected_data()
{
    QTest::addColumn<QByteArray>("line");
    const QByteArray digits = someDigest().toHex();
    QTest::newRow("empty") << QByteArray("\n");
    QTest::newRow("text") << QByteArray("hello\n");
    QTest::newRow("no path") << digits + "  data/\n";
    QTest::newRow("other folder") << digits + "  etc/passwd\n";
    QTest::newRow("one space") << digits + " data/file\n";
    QTest::newRow("short digest") << digits.left(62) + "  data/file\n";
    QTest::newRow("no digits") << QByteArray(64, 'x') + "  data/file\n";
    QTest::newRow("unknown escape") << '\\' + digits + "  data/a\\tb\n";
    QTest::newRow("unfinished escape") << '\\' + digits + "  data/a\\\n";
}

void tst_Manifest::aLineThatIsNoChecksumIsRejected()
{
    QFETCH(QByteArray, line);
    QByteArray path;
    QByteArray digest;
    QVERIFY(!Manifest::parseLine(line, &path, &digest));
}

void tst_Manifest::linesAreSortedByTheBytesOfThePaths()
{
    Manifest manifest;
    for (const char *path : {"b", "a/b", "\xc3\xa4", "a.b", "B"}) {
        manifest.insert(path, someDigest());
    }
    const QList<QByteArray> sorted{"B", "a.b", "a/b", "b", "\xc3\xa4"};
    QCOMPARE(manifest.digests().keys(), sorted);
}

QTEST_GUILESS_MAIN(tst_Manifest)
#include "tst_manifest.moc"
