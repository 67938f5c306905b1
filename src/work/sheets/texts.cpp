#include "work/sheets/texts.h"

#include <algorithm>

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "disc/codec/utf8.h"

namespace kalco {
namespace {

constexpr char digits_mark = '#';
/// A text of two quote characters can't stand in a cell as it is: there it empties the field.
constexpr std::string_view two_quotes = "\"\"";

bool is_control(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool has_control(std::string_view text) {
    return std::any_of(text.begin(), text.end(), is_control);
}

bool is_wide_letter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') || character == '.';
}

/// Letters, full stops and single blanks between them.
bool is_wide_name(std::string_view text) {
    bool blank = true;
    for (const char character : text) {
        if (character == ' ' ? blank : !is_wide_letter(character)) return false;
        blank = character == ' ';
    }
    return text.empty() || !blank;
}

/// What full-width bytes spell; none when they are no such name.
std::optional<std::string> spelt(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        if (bytes.front() == ' ') {
            text += ' ';
            bytes.remove_prefix(1);
            continue;
        }
        if (bytes.size() < 2) return std::nullopt;
        text += Hex_Let(hex_line(bytes.substr(0, 2)));
        if (text.back() == ' ') return std::nullopt;
        bytes.remove_prefix(2);
    }
    return is_wide_name(text) ? std::optional(text) : std::nullopt;
}

/// A cell in the form of digits, or one that only looks like it.
TextReading text_of_digits(std::string_view cell) {
    const auto bytes = bytes_of_hash_form(cell);
    if (!bytes) return {{}, "# is not followed by two hexadecimal digits a byte"};
    if (bytes->find('\0') != std::string::npos) return {{}, "a text can't hold a zero byte"};
    return {*bytes, {}};
}

TextReading held_to(TextReading reading, int most_bytes) {
    if (reading.mistake.empty() && reading.bytes.size() > static_cast<std::size_t>(most_bytes)) {
        reading.mistake = "too long: " + std::to_string(reading.bytes.size()) + " bytes, there is room for " +
                          std::to_string(most_bytes);
    }
    return reading;
}

}  // namespace

std::string hash_form(std::string_view bytes) {
    return digits_mark + hex_digits(bytes);
}

std::optional<std::string> bytes_of_hash_form(std::string_view cell) {
    if (cell.empty() || cell.front() != digits_mark) return std::nullopt;
    const std::string_view digits = cell.substr(1);
    const bool whole = !digits.empty() && digits.size() % 2 == 0 &&
                       digits.find_first_not_of("0123456789ABCDEFabcdef") == std::string_view::npos;
    return whole ? std::optional(bytes_of_digits(digits)) : std::nullopt;
}

std::string cell_of_text(std::string_view bytes) {
    const std::string_view text = until_zero(bytes);
    if (text.starts_with(digits_mark) || text == two_quotes || has_control(text)) return hash_form(text);
    return utf8_of_latin1(text);
}

std::string cell_of_wide_text(std::string_view bytes) {
    const std::string_view text = until_zero(bytes);
    return spelt(text).value_or(hash_form(text));
}

TextReading text_of_cell(std::string_view cell, int most_bytes) {
    if (cell == two_quotes) return {};
    if (cell.starts_with(digits_mark)) return held_to(text_of_digits(cell), most_bytes);
    const auto bytes = latin1_of_utf8(cell);
    if (!bytes) return {{}, "a letter that the disc can't hold"};
    if (has_control(*bytes)) return {{}, "a control character, which can only be given as # and digits"};
    return held_to({*bytes, {}}, most_bytes);
}

TextReading wide_text_of_cell(std::string_view cell, int most_bytes) {
    if (cell == two_quotes) return {};
    if (cell.starts_with(digits_mark)) return held_to(text_of_digits(cell), most_bytes);
    const bool letters = std::all_of(cell.begin(), cell.end(), [](char c) { return c == ' ' || is_wide_letter(c); });
    if (!letters) return {{}, "a letter that the disc can't hold: a full-width name has A to Z, a to z and full stops"};
    if (!is_wide_name(cell)) return {{}, "blanks stand one by one, between letters"};
    return held_to({LetterEncoder().encode(cell), {}}, most_bytes);
}

}  // namespace kalco
