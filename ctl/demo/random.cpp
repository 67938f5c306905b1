#include "ctl/demo/random.h"

namespace kalco::demo {
namespace {

/// Spreads every bit of a number over all bits of the result.
constexpr std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

}  // namespace

Random::Random(std::uint64_t seed, std::string_view stream) : state_(mixed(seed + 1)) {
    for (const char letter : stream) state_ = mixed(state_ ^ static_cast<std::uint8_t>(letter));
}

std::uint64_t Random::next() {
    state_ += 0x9E3779B97F4A7C15U;
    return mixed(state_);
}

int Random::below(int count) {
    return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(count)) >> 32);
}

}  // namespace kalco::demo
