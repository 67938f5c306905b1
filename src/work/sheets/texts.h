#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Texts between the bytes of the disc and the cells of a sheet. A cell is UTF-8; where the bytes are nothing that a
/// person could type it is `#` and their hexadecimal digits.
namespace kalco {

/// `#` and two upper-case digits a byte.
std::string hash_form(std::string_view bytes);
/// The bytes of such a cell; none when it is something else.
std::optional<std::string> bytes_of_hash_form(std::string_view cell);

/// `bytes` end before their first zero.
std::string cell_of_text(std::string_view bytes);
std::string cell_of_wide_text(std::string_view bytes);

/// The bytes of a cell, or what is wrong with it.
struct TextReading {
    std::string bytes;
    std::string mistake;  ///< Empty: the cell is in order.
};
TextReading text_of_cell(std::string_view cell, int most_bytes);
/// Two bytes a letter or full stop, one a blank.
TextReading wide_text_of_cell(std::string_view cell, int most_bytes);

}  // namespace kalco
