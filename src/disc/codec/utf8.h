#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// UTF-8, as files and the command line have it.
namespace kalco {

/// What the text begins with.
struct Utf8Step {
    char32_t character = 0;
    std::size_t bytes = 0;  ///< 0 when it does not begin with a character: nothing is left, or it is no UTF-8.
};
/// Overlong forms, surrogates and what lies above U+10FFFF are no UTF-8.
Utf8Step first_character(std::string_view text);

/// The offset of the first byte that is no UTF-8; none when the text is whole.
std::optional<std::size_t> broken_utf8(std::string_view text);

/// One byte a character; none when the text has a character above U+00FF or is no UTF-8.
std::optional<std::string> latin1_of_utf8(std::string_view text);

}  // namespace kalco
