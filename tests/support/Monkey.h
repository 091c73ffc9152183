// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_MONKEY_H
#define TESSALINE_MONKEY_H

#include "Dice.h"

#include <QObject>
#include <QStringList>
#include <QtTest>

#include <functional>
#include <vector>

/// Does random things to a widget and looks after each of them whether all is well.
///
/// A derived class says in its constructor what it can do, and in look() what always holds. What it
/// does depends on the seed only, so a round that went wrong can be played again.
///
/// Environment variables, to be read with addMonkeyRounds():
///  - TESSALINE_MONKEY_STEPS  how many steps are taken in all; 100,000 by default
///  - TESSALINE_MONKEY_SEED   the seed of the first round, 1 by default; each has the next one
///  - TESSALINE_MONKEY_TRACE  if set, each action is named before it is done
class Monkey : public QObject
{
public:
    explicit Monkey(quint32 seed);

    /// Takes so many steps, or fewer if one leaves something wrong. Returns what that is, how it
    /// came and how to see it again; an empty text if all went well.
    QString play(int steps);

protected:
    /// Adds an action. The greater its weight, the more often it is done.
    template <class Player> void can(int weight, const char *name, void (Player::*action)())
    {
        Player *self = static_cast<Player *>(this);
        learn(weight, name, [self, action]() {
            (self->*action)();
        });
    }

    /// Checks what holds at any time; called after each step.
    virtual void look() = 0;

    /// Complains unless the condition holds.
    void expect(bool condition, const char *rule);

    template <class Value>
    void expectEqual(const Value &actual, const Value &expected, const char *rule)
    {
        if (!(actual == expected)) {
            complain(QString::fromLatin1("%1: %2 instead of %3")
                         .arg(QLatin1String(rule), textOf(actual), textOf(expected)));
        }
    }

    Dice dice;

private:
    struct Trick
    {
        int weight;
        const char *name;
        std::function<void()> action;
    };

    static QString textOf(int value);
    static QString textOf(double value);
    static QString textOf(const QString &value);
    static QString textOf(const QStringList &value);

    void learn(int weight, const char *name, const std::function<void()> &action);
    const Trick &chooseTrick();
    void take(const Trick &trick);
    void complain(const QString &text);
    QString report(int step) const;

    const quint32 initialSeed;
    std::vector<Trick> tricks;
    int totalWeight;
    QStringList lastActions;
    QString complaint;
};

/// The data rows of a test that lets a monkey play: a column of seeds and one of steps, cut into
/// rounds that are short enough to be looked at.
void addMonkeyRounds();

/// Tells which round begins, at once: what crashes or hangs in it can't tell any more.
void announceMonkeyRound(int seed, int steps);

/// Lets a monkey play the round of the current data row.
template <class Player> void playMonkeyRound()
{
    QFETCH(int, seed);
    QFETCH(int, steps);
    announceMonkeyRound(seed, steps);
    Player monkey(static_cast<quint32>(seed));
    const QString wrong = monkey.play(steps);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

#endif
