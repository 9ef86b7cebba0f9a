#include "stopwatch.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

double measure(const std::function<void()>& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double findMedian(std::vector<double>& times)
{
    const auto half = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), half, times.end());
    return *half;
}

} // namespace

double median(int rounds, const std::function<void()>& action)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i)
        times.push_back(measure(action));
    return findMedian(times);
}

void compare(const char* what, int rounds, double maximumRatio, const std::function<void()>& baseline,
             const std::function<void()>& ours, const std::function<void()>& prepare)
{
    baseline();
    prepare();
    ours();
    std::vector<double> baselineTimes;
    std::vector<double> ourTimes;
    for (int i = 0; i < rounds; ++i) {
        baselineTimes.push_back(measure(baseline));
        prepare();
        ourTimes.push_back(measure(ours));
    }
    const double before = findMedian(baselineTimes);
    const double now = findMedian(ourTimes);
    std::printf("%-46s baseline %9.3f ms, ours %9.3f ms, ratio %.2f (at most %.2f)\n", what, before, now, now / before,
                maximumRatio);
    std::fflush(stdout);
}

void printTimes(const char* what, double maximum, const std::function<void()>& action,
                const std::function<void()>& prepare)
{
    constexpr int warmUps = 5;
    std::vector<double> times;
    for (int i = -warmUps; i < 100; ++i) {
        prepare();
        const double time = measure(action);
        if (i >= 0)
            times.push_back(time);
    }
    std::ranges::sort(times);
    std::printf("%-46s median %6.2f ms, 95 of 100 %6.2f ms (at most %.0f ms)\n", what, times[50], times[94], maximum);
    std::fflush(stdout);
}
