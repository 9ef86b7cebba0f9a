#pragma once

#include <functional>

/// Measures two ways of doing the same, in turn, so that other work of the machine affects both alike. Prints the
/// medians in milliseconds, their ratio and the maximum ratio. What `prepare` does before each of ours is not measured.
void compare(
    const char* what, int rounds, double maximumRatio, const std::function<void()>& baseline,
    const std::function<void()>& ours, const std::function<void()>& prepare = [] {});

/// The median time of an action in milliseconds.
double median(int rounds, const std::function<void()>& action);
