#include "work/check/edc.h"

#include <array>
#include <cstddef>

namespace kalco::check {
namespace {

constexpr std::size_t step = 8;

/// tables[k][byte]: the rest of a byte with k bytes behind it.
constexpr auto make_tables() {
    std::array<std::array<std::uint32_t, 256>, step> tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t rest = byte;
        for (auto& table : tables) {
            for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1U) != 0 ? 0xD8018001U : 0U);
            table[byte] = rest;
        }
    }
    return tables;
}

constexpr auto tables = make_tables();

}  // namespace

std::uint32_t edc_rest(std::span<const std::uint8_t> bytes) {
    std::uint32_t rest = 0;
    for (; !bytes.empty(); bytes = bytes.subspan(step)) {
        std::uint32_t next = 0;
        for (std::size_t k = 0; k < step; ++k) {
            const std::uint32_t byte = k < sizeof rest ? bytes[k] ^ (rest >> (8 * k) & 0xFFU) : bytes[k];
            next ^= tables[step - 1 - k][byte];
        }
        rest = next;
    }
    return rest;
}

std::vector<EdcMethod> edc_methods() {
    std::vector<EdcMethod> methods{{"division", edc_fits_by_division}};
#ifdef __x86_64__
    if (__builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1")) {
        methods.push_back({"carry-less multiplication", edc_fits_by_multiplication});
    }
#endif
    return methods;
}

}  // namespace kalco::check
