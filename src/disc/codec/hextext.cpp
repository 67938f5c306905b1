#include "disc/codec/hextext.h"

#include <algorithm>

namespace kalco {
namespace {

constexpr std::string_view digit_texts = "0123456789ABCDEF";

void append_byte(std::string& text, char byte) {
    const auto value = static_cast<unsigned char>(byte);
    text += digit_texts[value >> 4];
    text += digit_texts[value & 0x0F];
}

/// -1 for a character that is no hexadecimal digit.
int digit_value(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

}  // namespace

std::string hex_line(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() * 3);
    for (const char byte : bytes) {
        if (!text.empty()) text += ' ';
        append_byte(text, byte);
    }
    return text;
}

std::string hex_digits(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char byte : bytes) append_byte(text, byte);
    return text;
}

std::uint8_t hex_pair(std::string_view pair) {
    int value = 0;
    for (const char c : pair) {
        const int digit = digit_value(c);
        if (digit < 0) break;
        value = value * 16 + digit;
    }
    return static_cast<std::uint8_t>(value);
}

std::string bytes_of_digits(std::string_view digits) {
    std::string bytes;
    bytes.reserve(digits.size() / 2);
    for (std::size_t i = 0; i + 2 <= digits.size(); i += 2) bytes += static_cast<char>(hex_pair(digits.substr(i, 2)));
    return bytes;
}

std::string bytes_of_whole_pairs(std::string_view digits) {
    std::string bytes = bytes_of_digits(digits);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (digit_value(digits[2 * i + 1]) < 0) bytes[i] = '\0';
    }
    return bytes;
}

std::string hex_number(std::int64_t value, std::size_t width) {
    auto bits = static_cast<std::uint64_t>(value);
    if (value < 0) bits &= 0xFFFFFFFFU;
    std::string text;
    do {
        text += digit_texts[bits % 16];
        bits /= 16;
    } while (bits != 0);
    while (text.size() < width) text += '0';
    std::reverse(text.begin(), text.end());
    return text;
}

std::string reversed_pairs(std::string_view digits, const char* separator) {
    std::string text;
    while (!digits.empty()) {
        const std::size_t taken = std::min<std::size_t>(2, digits.size());
        if (!text.empty()) text += separator;
        if (taken == 1) text += '0';
        text += digits.substr(digits.size() - taken);
        digits.remove_suffix(taken);
    }
    return text;
}

}  // namespace kalco
