#include "fuzz/input.h"

#include <cstdio>
#include <cstdlib>

namespace kalco::fuzz {

void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

}  // namespace kalco::fuzz
