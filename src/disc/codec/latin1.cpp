#include "disc/codec/latin1.h"

#include <algorithm>

namespace kalco {
namespace {

constexpr unsigned char case_distance = 0x20;

bool is_small(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);
}

bool is_capital(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
}

template <typename Convert>
std::string mapped(std::string_view text, Convert convert) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [&](char c) { return static_cast<char>(convert(static_cast<unsigned char>(c))); });
    return result;
}

}  // namespace

std::string upper(std::string_view text) {
    return mapped(text, [](unsigned char c) { return is_small(c) ? c - case_distance : c; });
}

std::string lower(std::string_view text) {
    return mapped(text, [](unsigned char c) { return is_capital(c) ? c + case_distance : c; });
}

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view until_zero(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

std::string_view left(std::string_view text, std::size_t count) {
    return text.substr(0, count);
}

std::string_view right(std::string_view text, std::size_t count) {
    return text.substr(text.size() - std::min(count, text.size()));
}

std::string_view mid(std::string_view text, std::size_t place, std::size_t count) {
    return place > text.size() ? std::string_view{} : text.substr(place - 1, count);
}

std::string without_blanks(std::string_view text) {
    std::string result(text);
    std::erase(result, ' ');
    return result;
}

std::string utf8_of_latin1(std::string_view text) {
    std::string result;
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x80) {
            result += character;
        } else {
            result += static_cast<char>(0xC0 | (code >> 6));
            result += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return result;
}

}  // namespace kalco
