#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Bytes as text: two upper-case hexadecimal digits a byte, in the order of the bytes.
namespace kalco {

/// A list line: one blank between two bytes ("56 24 E6 25").
std::string hex_line(std::string_view bytes);
/// The digits alone ("5624E625").
std::string hex_digits(std::string_view bytes);
/// The bytes of digits without blanks, from the left. A pair counts as the value of its valid leading digits, 0 if it
/// has none; a lone last digit is dropped.
std::string bytes_of_digits(std::string_view digits);
/// The value of a pair of digits, by the same rule.
std::uint8_t hex_pair(std::string_view pair);
/// The bytes of digits, but a pair that is not two hexadecimal digits counts as 0.
std::string bytes_of_whole_pairs(std::string_view digits);

/// Hexadecimal form in upper case, padded on the left with "0" to `width` digits. A negative number has the 8 digits
/// of its 32 bits.
std::string hex_number(std::int64_t value, std::size_t width = 0);

/// The pairs of a text of digits in reverse order: big-endian to little-endian and back. A lone first digit gets a
/// leading "0". `separator` is put behind each pair but the last.
std::string reversed_pairs(std::string_view digits, const char* separator = "");

}  // namespace kalco
