#pragma once

#include <functional>

/// Measures two ways of doing the same, in turn, so that other work of the machine affects both alike. Prints the
/// medians in milliseconds, their ratio and the maximum ratio. What `prepare` does before each of ours is not measured.
void compare(
    const char* what, int rounds, double maximumRatio, const std::function<void()>& baseline,
    const std::function<void()>& ours, const std::function<void()>& prepare = [] {});

/// The median time of an action in milliseconds.
double median(int rounds, const std::function<void()>& action);

/// Measures an action a hundred times after a few that warm it up. Prints the median, how long 95 of 100 take at most
/// and how long they may. What `prepare` does before each is not measured.
void printTimes(
    const char* what, double maximum, const std::function<void()>& action,
    const std::function<void()>& prepare = [] {});
