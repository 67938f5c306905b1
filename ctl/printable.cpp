#include "ctl/printable.h"

#include <algorithm>

#include "disc/codec/utf8.h"

namespace kalco::ctl {
namespace {

constexpr std::string_view digits = "0123456789abcdef";

bool is_control(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

std::string escape(std::string_view bytes) {
    std::string result;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        result.append("\\x") += digits[byte >> 4];
        result += digits[byte & 0xF];
    }
    return result;
}

}  // namespace

std::string printable(std::string_view text, std::size_t most) {
    std::string result;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == most) return result + "...";
        const Utf8Step step = first_character(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(step.bytes, 1));
        const bool shown = step.bytes != 0 && !is_control(step.character);
        result += shown ? std::string(character) : escape(character);
        text.remove_prefix(character.size());
    }
    return result;
}

}  // namespace kalco::ctl
