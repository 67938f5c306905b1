#pragma once

#include <string>
#include <string_view>

/// The game's two-byte code of full-width letters.
namespace kalco {

/// The character of a code, five characters of hexadecimal text such as "82 60". An unknown code is a blank.
char Hex_Let(std::string_view code);

/// The direction from text to codes. The output keeps its value between calls: a character without a code repeats the
/// code of the one before it, also across names.
class LetterEncoder {
public:
    /// Sets code() to the code of a character, "82 60" or "20" for a blank; leaves it alone for one without a code.
    void Let_HX(char character);
    const std::string& code() const { return code_; }

    /// The bytes of a text, trimmed before: two a letter, one a blank.
    std::string encode(std::string_view text);

private:
    std::string code_;
};

/// The text of a two-byte field: one character a pair of bytes, the first single blank counting as a pair, padding as
/// blanks. Error 5 when the field begins with a byte 0x20.
std::string decode_letters(std::string_view bytes);

}  // namespace kalco
