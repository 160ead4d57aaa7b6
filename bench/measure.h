// Times our work against a peer's that does the same, in one run.
//
// Both are run in turn, round for round and in changing order, so that a machine that grows slower or faster
// meanwhile does it to both. Each round gives one ratio; the middle one of all rounds is what is reported.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {

/// Seconds that `work` takes.
template <class Work>
double seconds_of(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double middle(std::vector<double> values) {
    const auto half = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), half, values.end());
    return *half;
}

/// What came of a comparison; times in seconds for one unit of work.
struct Comparison {
    double ours;
    double peer;
    double ratio;
};

/// Compares `ours` with `peer`, functions that time one round of `units` units of work and answer seconds.
template <class Ours, class Peer>
Comparison compare(int rounds, int units, Ours&& ours, Peer&& peer) {
    constexpr int kWarmUps = 3;
    for (int i = 0; i < kWarmUps; ++i) {
        ours();
        peer();
    }
    std::vector<double> oursTimes, peerTimes, ratios;
    for (int round = 0; round < rounds; ++round) {
        double mine = 0, theirs = 0;
        if (round % 2 == 0) {
            mine = ours();
            theirs = peer();
        } else {
            theirs = peer();
            mine = ours();
        }
        oursTimes.push_back(mine / units);
        peerTimes.push_back(theirs / units);
        ratios.push_back(mine / theirs);
    }
    return {middle(oursTimes), middle(peerTimes), middle(ratios)};
}

/// Prints one row for bench/run: fields separated by tabs, times in microseconds. A goal of 0 is none.
inline void report(const char* what, const Comparison& result, double goal) {
    constexpr double kMicro = 1e6;
    char limit[32] = "-";
    if (goal > 0) std::snprintf(limit, sizeof limit, "<= %.2f", goal);
    std::printf("row\t%s\t%.3f us\t%.3f us\t%.3f\t%s\n", what, result.ours * kMicro, result.peer * kMicro,
                result.ratio, limit);
    std::fflush(stdout);
}

}  // namespace bench
