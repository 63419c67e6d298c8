// Stretches of time in order that don't touch, as hours from a start of their owner's.
#pragma once

#include <vector>

namespace tarvane {

struct Stretch {
    double from = 0, to = 0;
};
using Stretches = std::vector<Stretch>;

/// How much of `from` to `to` lies within the stretches, hours.
double sharedhours(const Stretches& stretches, double from, double to);

/// Adds a stretch behind the others, one with the last when they touch; an empty one is none.
void addstretch(Stretches& stretches, double from, double to);

}  // namespace tarvane
