#pragma once

#include <cstdint>
#include <string_view>

namespace kalco {

/// The number of a text: a whole decimal number with an optional sign and blanks around it. Anything else is error 13.
/// A number beyond 64 bits is held at the end of their range.
std::int64_t number_of(std::string_view text);

/// Whether number_of takes the text.
bool is_number(std::string_view text);

}  // namespace kalco
