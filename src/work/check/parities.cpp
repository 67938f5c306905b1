#include "work/check/parities.h"

#include "work/check/parities_by_lanes.h"

namespace kalco::check {

bool parities_fit_by_16(ParityArea area, Header header, DiagonalRows& rows) {
    return parities_fit_by_lanes<16>(area, header, rows);
}

#ifdef __x86_64__
[[gnu::target("avx2")]] bool parities_fit_by_32(ParityArea area, Header header, DiagonalRows& rows) {
    return parities_fit_by_lanes<32>(area, header, rows);
}
#endif

std::vector<ParityMethod> parity_methods() {
    std::vector<ParityMethod> methods{{"16 bytes at once", parities_fit_by_16}};
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2")) methods.push_back({"32 bytes at once", parities_fit_by_32});
#endif
    return methods;
}

}  // namespace kalco::check
