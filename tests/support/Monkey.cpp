// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Monkey.h"

#include "TestCase.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

const int defaultSteps = 100000;
const int stepsOfARound = 1000;
const int rememberedActions = 25;

int numberFromEnvironment(const char *name, int otherwise)
{
    bool isNumber = false;
    const int number = qgetenv(name).toInt(&isNumber);
    return isNumber && number > 0 ? number : otherwise;
}

bool isTraced()
{
    static const bool traced = !qgetenv("TESSALINE_MONKEY_TRACE").isEmpty();
    return traced;
}

void sayAtOnce(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::fflush(stderr);
}

/// What to type to see a round again.
QString command(quint32 seed, int steps)
{
    return QString::fromLatin1("TESSALINE_MONKEY_SEED=%1 TESSALINE_MONKEY_STEPS=%2 %3")
        .arg(seed)
        .arg(steps)
        .arg(QFileInfo(QCoreApplication::applicationFilePath()).fileName());
}

} // namespace

Monkey::Monkey(quint32 seed)
    : dice(seed)
    , initialSeed(seed)
    , totalWeight(0)
{
}

QString Monkey::play(int steps)
{
    for (int step = 1; step <= steps; ++step) {
        // However much chance a step takes, and that depends on the toolkit, the next has its own.
        dice = Dice(initialSeed * 1000003U + static_cast<quint32>(step));
        take(chooseTrick());
        if (complaint.isEmpty()) {
            look();
        }
        complain(TestCase::complaint());
        if (!complaint.isEmpty()) {
            return report(step);
        }
    }
    return QString();
}

void Monkey::expect(bool condition, const char *rule)
{
    if (!condition) {
        complain(QLatin1String(rule));
    }
}

QString Monkey::textOf(int value)
{
    return QString::number(value);
}

QString Monkey::textOf(double value)
{
    return QString::number(value, 'g', 19);
}

QString Monkey::textOf(const QString &value)
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString Monkey::textOf(const QStringList &value)
{
    return textOf(value.join(QLatin1String("|")));
}

void Monkey::learn(int weight, const char *name, const std::function<void()> &action)
{
    const Trick trick = {weight, name, action};
    tricks.push_back(trick);
    totalWeight += weight;
}

const Monkey::Trick &Monkey::chooseTrick()
{
    int drawn = dice.below(totalWeight);
    std::size_t i = 0;
    while (drawn >= tricks[i].weight) {
        drawn -= tricks[i].weight;
        ++i;
    }
    return tricks[i];
}

void Monkey::take(const Trick &trick)
{
    if (isTraced()) {
        sayAtOnce(QLatin1String(trick.name));
    }
    lastActions.append(QLatin1String(trick.name));
    if (lastActions.size() > rememberedActions) {
        lastActions.removeFirst();
    }
    trick.action();
}

// The first complaint counts: what follows is often only its consequence.
void Monkey::complain(const QString &text)
{
    if (complaint.isEmpty()) {
        complaint = text;
    }
}

QString Monkey::report(int step) const
{
    return QString::fromLatin1("step %1: %2\n   The last actions: %3\n   Again: %4")
        .arg(step)
        .arg(complaint, lastActions.join(QLatin1String(", ")), command(initialSeed, step));
}

void addMonkeyRounds()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("steps");

    int seed = numberFromEnvironment("TESSALINE_MONKEY_SEED", 1);
    int left = numberFromEnvironment("TESSALINE_MONKEY_STEPS", defaultSteps);
    for (; left > 0; left -= stepsOfARound) {
        const QString name = QString::fromLatin1("seed %1").arg(seed);
        QTest::newRow(qPrintable(name)) << seed << qMin(left, stepsOfARound);
        ++seed;
    }
}

void announceMonkeyRound(int seed, int steps)
{
    sayAtOnce(command(static_cast<quint32>(seed), steps));
}
