// Sides measured one after the other, round by round, so that whatever else the machine does falls
// on all of them.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace bench {

struct Side {
    std::string name;
    std::function<void()> work;
    std::vector<double> times = {}; ///< of each round, in seconds unless another unit is told
};

inline double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Runs every side once per round, `before` ahead of each; a first round is not counted.
inline void Run(
    std::vector<Side>& sides, int rounds, const std::function<void()>& before = [] {}) {
    using Clock = std::chrono::steady_clock;
    for (int round = 0; round <= rounds; ++round) {
        for (Side& side : sides) {
            before();
            const auto begin = Clock::now();
            side.work();
            const std::chrono::duration<double> passed = Clock::now() - begin;
            if (round > 0) {
                side.times.push_back(passed.count());
            }
        }
    }
}

/// How a median is told.
struct Unit {
    const char* name;
    double factor;
};
inline constexpr Unit kMilliseconds{"ms", 1e3};
inline constexpr Unit kMebibytes{"MiB", 1};

inline void PrintTime(const Side& side, Unit unit = kMilliseconds) {
    std::printf("  %-44s %10.3f %s\n", side.name.c_str(), Median(side.times) * unit.factor,
                unit.name);
}

/// The median of each side, and the first one's ratio to the fastest of the others but those
/// whose name begins with "(".
inline void Print(const std::string& title, const std::vector<Side>& sides, double mark,
                  Unit unit = kMilliseconds) {
    double fastest = 0;
    for (std::size_t i = 1; i < sides.size(); ++i) {
        const double median = Median(sides[i].times);
        if (!sides[i].name.starts_with('(') && (fastest == 0 || median < fastest)) {
            fastest = median;
        }
    }
    std::printf("%s: %.2f of the fastest peer, mark %.2f\n", title.c_str(),
                Median(sides[0].times) / fastest, mark);
    for (const Side& side : sides) {
        PrintTime(side, unit);
    }
}

} // namespace bench
