#include "disc/codec/decimal.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

std::optional<std::int64_t> parsed(std::string_view text) {
    text = trim(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty()) return std::nullopt;
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        const int digit = c - '0';
        value = value > (most - digit) / 10 ? most : value * 10 + digit;
    }
    return negative ? -value : value;
}

}  // namespace

std::int64_t number_of(std::string_view text) {
    const auto value = parsed(text);
    if (!value) throw RuntimeError(error::type_mismatch);
    return *value;
}

bool is_number(std::string_view text) {
    return parsed(text).has_value();
}

}  // namespace kalco
