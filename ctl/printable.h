#pragma once

#include <string>

#include <cstddef>
#include <string_view>

namespace kalco::ctl {

/// The text as it may be shown on a terminal: control characters, and bytes that are no UTF-8, as escapes. What is
/// longer than `most` characters is cut there and ends in "...".
std::string printable(std::string_view text, std::size_t most = std::string_view::npos);

}  // namespace kalco::ctl
