#include "disc/codec/utf8.h"

#include <array>

namespace kalco {
namespace {

/// The characters that a lead byte begins.
struct Form {
    unsigned char mask;
    unsigned char lead;
    std::size_t bytes;
    char32_t lowest;  ///< Smaller ones have a shorter form.
};

constexpr std::array<Form, 4> forms{{
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

constexpr unsigned tail_bits = 6;

}  // namespace

Utf8Step first_character(std::string_view text) {
    if (text.empty()) return {};
    const auto lead = static_cast<unsigned char>(text[0]);
    for (const Form& form : forms) {
        if ((lead & form.mask) != form.lead) continue;
        if (text.size() < form.bytes) return {};
        auto character = static_cast<char32_t>(lead & ~form.mask & 0xFF);
        for (const char tail : text.substr(1, form.bytes - 1)) {
            const auto byte = static_cast<unsigned char>(tail);
            if ((byte & 0xC0) != 0x80) return {};
            character = character << tail_bits | (byte & 0x3FU);
        }
        const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
        if (character < form.lowest || surrogate || character > 0x10FFFF) return {};
        return {character, form.bytes};
    }
    return {};
}

std::optional<std::size_t> broken_utf8(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t bytes = first_character(text.substr(place)).bytes;
        if (bytes == 0) return place;
        place += bytes;
    }
    return std::nullopt;
}

std::optional<std::string> latin1_of_utf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Utf8Step step = first_character(text);
        if (step.bytes == 0 || step.character > 0xFF) return std::nullopt;
        result += static_cast<char>(step.character);
        text.remove_prefix(step.bytes);
    }
    return result;
}

}  // namespace kalco
