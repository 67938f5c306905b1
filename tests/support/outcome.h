#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

/// What an operation leaves: its image, its error.
namespace kalco::test {

/// Compares two images byte for byte and tells the first positions that differ.
::testing::AssertionResult same_image(const std::string& actual, const std::string& expected);

/// The number of the run-time error that leaves the steps, 0 for none.
int error_of(const std::function<void()>& steps);

}  // namespace kalco::test
