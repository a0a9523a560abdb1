#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace quorvane::bench {

// Keeps the compiler from dropping work whose result is otherwise unused.
template <class T>
inline void keep(const T &value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

// Median over `rounds` of the time of `calls` calls, in nanoseconds per call.
inline double nanosPerCall(int rounds, int calls, const std::function<void()> &work)
{
    work(); // warm caches and ICU's lazily loaded data
    std::vector<double> samples;
    for (int r = 0; r < rounds; ++r) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < calls; ++i)
            work();
        samples.push_back(double(timer.nsecsElapsed()) / calls);
    }
    std::nth_element(samples.begin(), samples.begin() + rounds / 2, samples.end());
    return samples[rounds / 2];
}

inline bool report(const char *what, double value, const char *unit, double budget)
{
    const bool ok = value <= budget;
    std::printf("%-44s %10.3f %-6s budget %8.3f  %s\n", what, value, unit, budget, ok ? "ok" : "OVER");
    return ok;
}

} // namespace quorvane::bench
