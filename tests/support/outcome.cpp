#include "support/outcome.h"

#include <algorithm>
#include <sstream>

#include "disc/runtime_error.h"
#include "support/memory_storage.h"

namespace kalco::test {

::testing::AssertionResult same_image(const std::string& actual, const std::string& expected) {
    if (actual == expected) return ::testing::AssertionSuccess();
    const auto positions = differences(expected, actual);
    std::ostringstream text;
    text << positions.size() << " bytes differ, at";
    for (std::size_t i = 0; i < std::min<std::size_t>(positions.size(), 24); ++i) text << ' ' << positions[i];
    return ::testing::AssertionFailure() << text.str();
}

int error_of(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
    return 0;
}

}  // namespace kalco::test
