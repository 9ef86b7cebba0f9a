#pragma once

#include <functional>

/// Measures two ways of doing the same, in turn, so that what else the machine does hits both alike. Prints the medians
/// in milliseconds, their ratio and the ratio that is allowed.
void compare(const char* what, int rounds, double allowed, const std::function<void()>& baseline,
             const std::function<void()>& ours);

/// The median time of an action in milliseconds.
double median(int rounds, const std::function<void()>& action);
