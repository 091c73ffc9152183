// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TestCase.h"

compat::MessageHandler TestCase::previousHandler = nullptr;
QStringList TestCase::expected;
QStringList TestCase::refused;
QStringList TestCase::toleratedPrefixes;
QStringList TestCase::unexpected;

namespace {

bool startsWithOneOf(const QString &message, const QStringList &prefixes)
{
    for (const QString &prefix : prefixes) {
        if (message.startsWith(prefix)) {
            return true;
        }
    }
    return false;
}

} // namespace

QString TestCase::complaint()
{
    if (!unexpected.isEmpty()) {
        return QLatin1String("Warned: ") + unexpected.join(QLatin1String("; "));
    }
    return expected.isEmpty() ? QString()
                              : QLatin1String("Did not say: ") + expected.join(QLatin1String("; "));
}

void TestCase::expectDebugMessage(const QString &message)
{
    expected.append(message);
}

void TestCase::refuseMessage(const QString &message)
{
    refused.append(message);
}

void TestCase::tolerateWarnings(const QString &prefix)
{
    toleratedPrefixes.append(prefix);
}

void TestCase::init()
{
    // What a platform plug-in says about itself is not about the code under test.
    toleratedPrefixes = QStringList(QLatin1String("This plugin does not support"));
    expected.clear();
    refused.clear();
    unexpected.clear();
    previousHandler = compat::installMessageReceiver(receive);
}

void TestCase::cleanup()
{
    compat::restoreMessageHandler(previousHandler);
    const QString wrong = complaint();
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void TestCase::receive(QtMsgType type, const QString &message)
{
    if (type == QtDebugMsg && expected.removeOne(message)) {
        refused.append(message); // once is enough
        return;
    }
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && startsWithOneOf(message, toleratedPrefixes)) {
        return; // thousands of them would fill the log
    }
    if (isWarning || refused.contains(message)) {
        unexpected.append(message);
    }
    compat::passMessage(previousHandler, type, message);
}

void choosePlatform()
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}
