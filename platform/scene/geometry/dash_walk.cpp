#include "geometry/dash_walk.h"

#include <algorithm>
#include <cmath>

void WalkDashes(const std::vector<double>& dashes, const LinePart& part, const std::function<bool()>& spend,
                const std::function<void(const LinePart&)>& draw) {
    double repeat = 0;
    for (const double dash : dashes) repeat += std::abs(dash);
    const double start = repeat > 0 ? std::floor(part.from / repeat) * repeat : 0;
    // A pattern that repeats so often can't be seen.
    constexpr double kMostRepeats = 20000;
    if (!(repeat > 0) || !((part.to - part.from) / repeat < kMostRepeats) || !(start + repeat > start)) {
        if (spend()) draw(part);
        return;
    }
    for (double at = start; at < part.to;) {
        for (const double dash : dashes) {
            if (!spend()) return;
            const double end = at + std::abs(dash);
            const LinePart shown{std::max(at, part.from), std::min(end, part.to)};
            const bool isDot = dash == 0 && at >= part.from && at <= part.to;
            if (isDot || (dash > 0 && shown.to > shown.from)) draw(isDot ? LinePart{at, at} : shown);
            at = end;
        }
    }
}
