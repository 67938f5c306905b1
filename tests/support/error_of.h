#pragma once

#include "disc/runtime_error.h"

namespace kalco::test {

/// The number of the run-time error that leaves the steps, 0 for none.
template <typename Steps>
int error_of(Steps steps) {
    try {
        steps();
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
    return 0;
}

}  // namespace kalco::test
