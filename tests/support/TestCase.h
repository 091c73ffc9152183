// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TESTCASE_H
#define TESSALINE_TESTCASE_H

#include "TestCompat.h"

#include <QApplication>
#include <QObject>
#include <QStringList>

/// Base of all test classes. Fails a test in which Qt warned of something that the test did not
/// announce, failed connects above all, and one in which an announced warning did not come.
class TestCase : public QObject
{
    Q_OBJECT

public:
    /// What would fail the running test if it ended now; empty if nothing would.
    static QString complaint();

    /// Announces a debug message, word for word.
    static void expectDebugMessage(const QString &message);

protected:
    /// Fails the test if this is said, whatever its kind; warnings fail one anyway.
    void refuseMessage(const QString &message);

    /// For what Qt itself says, in some versions, when it is misused on purpose.
    void tolerateWarnings(const QString &prefix);

private Q_SLOTS:
    void init();
    void cleanup();

private:
    static void receive(QtMsgType type, const QString &message);

    static compat::MessageHandler previousHandler;
    static QStringList expected;
    static QStringList refused;
    static QStringList toleratedPrefixes;
    static QStringList unexpected;
};

/// Runs without a display where none is asked for by QT_QPA_PLATFORM.
void choosePlatform();

template <class Test> int runTest(int argc, char **argv)
{
    choosePlatform();
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#define TESSALINE_TEST_MAIN(Test)         \
    int main(int argc, char **argv)       \
    {                                     \
        return runTest<Test>(argc, argv); \
    }

#endif
