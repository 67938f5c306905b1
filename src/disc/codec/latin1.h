#pragma once

#include <string>
#include <string_view>

/// Text of one byte a character (Latin-1), as the disc and the controls hold it. Nothing depends on a locale.
namespace kalco {

/// Capitals: a-z and 0xE0..0xFE without 0xF7; 0xFF has none.
std::string upper(std::string_view text);
std::string lower(std::string_view text);

/// Without the blanks (0x20) at both ends.
std::string_view trim(std::string_view text);

/// The text before its first zero byte: what a control shows.
std::string_view until_zero(std::string_view text);

/// The first `count` characters, fewer if there are no more.
std::string_view left(std::string_view text, std::size_t count);
/// The last `count` characters, fewer if there are no more.
std::string_view right(std::string_view text, std::size_t count);
/// Characters from the 1-based `place` on, at most `count`.
std::string_view mid(std::string_view text, std::size_t place, std::size_t count = std::string_view::npos);

std::string without_blanks(std::string_view text);

/// Each byte as the character of that code.
std::string utf8_of_latin1(std::string_view text);

}  // namespace kalco
