#include "disc/codec/binary_text.h"

#include <algorithm>

#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

constexpr std::int64_t largest_word = 2147483647;

bool is_bit(char c) {
    return c == '0' || c == '1';
}

void pad_left(std::string& text, std::size_t length) {
    if (text.size() < length) text.insert(0, length - text.size(), '0');
}

/// The sum of two binary texts, the last carry standing at the front.
std::string binary_sum(std::string a, std::string b) {
    const std::size_t length = std::max(a.size(), b.size());
    pad_left(a, length);
    pad_left(b, length);
    std::string reversed;
    char carry = '0';
    for (std::size_t i = length; i-- > 0;) {
        char sum = '0';
        SommaBin(a[i], b[i], sum, carry);
        reversed += sum;
    }
    reversed += carry;
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

std::string hex_of_binary(std::string bits) {
    pad_left(bits, (bits.size() + 3) / 4 * 4);
    std::string digits;
    for (std::size_t i = 0; i < bits.size(); i += 4) {
        std::string nibble = bits.substr(i, 4);
        ConvHex(nibble);
        digits += nibble;
    }
    return digits;
}

}  // namespace

std::string dectobin(std::int64_t value) {
    if (value < 0 || value > largest_word) throw RuntimeError(error::overflow);
    std::string bits;
    do {
        bits += value % 2 != 0 ? '1' : '0';
        value /= 2;
    } while (value != 0);
    std::reverse(bits.begin(), bits.end());
    return bits;
}

void SommaBin(char a, char b, char& sum, char& carry) {
    if (!is_bit(a) || !is_bit(b) || !is_bit(carry)) return;
    const int total = (a - '0') + (b - '0') + (carry - '0');
    sum = total % 2 != 0 ? '1' : '0';
    carry = total >= 2 ? '1' : '0';
}

void ConvHex(std::string& nibble) {
    if (nibble.size() != 4 || !std::all_of(nibble.begin(), nibble.end(), is_bit)) return;
    int value = 0;
    for (const char bit : nibble) value = value * 2 + (bit - '0');
    nibble = hex_number(value);
}

std::string word_digits(std::int64_t value) {
    if (value > largest_word) throw RuntimeError(error::overflow);
    if (value >= 0) return hex_number(value, 8);
    if (value < -(largest_word + 2)) throw RuntimeError(error::overflow);
    return hex_of_binary(binary_sum(dectobin(largest_word), dectobin(largest_word + 2 + value)));
}

}  // namespace kalco
