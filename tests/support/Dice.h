// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_DICE_H
#define TESSALINE_DICE_H

#include <QtGlobal>

#include <random>

/// Random numbers that are the same for a seed on every toolkit and with every compiler: the engine
/// is fixed by the standard, the distributions of the standard library are not and stay out.
class Dice
{
public:
    explicit Dice(quint32 seed)
        : engine(seed)
    {
    }

    /// From 0 up to, and without, `bound`; 0 if that is nothing to choose from.
    int below(int bound)
    {
        return bound > 0 ? static_cast<int>(engine() % static_cast<quint32>(bound)) : 0;
    }

    int between(int least, int most)
    {
        return least + below(most - least + 1);
    }

    bool oneIn(int chances)
    {
        return below(chances) == 0;
    }

    /// Any element of a list that has some.
    template <class List> typename List::value_type oneOf(const List &list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

private:
    std::mt19937 engine;
};

#endif
