#ifndef CONVERT_NEAREST_H
#define CONVERT_NEAREST_H

#include "host/media/ratio.h"

#include <QVector>

#include <cmath>

[[nodiscard]] inline double amount(double value)
{
    return value;
}
[[nodiscard]] inline double amount(const Ratio &ratio)
{
    return ratio.value();
}

/*! The value of \a allowed, which ascends, that is closest to the wanted one, the higher of two;
 *  the wanted one where the list is empty. */
template <typename Value>
[[nodiscard]] Value nearestAllowed(const Value &wanted, const QVector<Value> &allowed)
{
    const auto distance = [&wanted](const Value &value) {
        return std::abs(amount(value) - amount(wanted));
    };
    Value nearest = allowed.value(0, wanted);
    for (const Value &value : allowed) {
        if (distance(value) <= distance(nearest)) {
            nearest = value;
        }
    }
    return nearest;
}

#endif
