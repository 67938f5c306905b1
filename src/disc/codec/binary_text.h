#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Arithmetic on texts of "0" and "1", for words that a signed 32-bit number cannot hold as unsigned values.
namespace kalco {

/// The binary text of a value from 0 to 2147483647, most significant bit first, without leading zeros; 0 gives "0".
/// Any other value is error 6.
std::string dectobin(std::int64_t value);

/// One-bit full adder over "0" and "1": reads and writes `carry`, writes `sum`. Other input leaves both alone.
void SommaBin(char a, char b, char& sum, char& carry);

/// Replaces four bits by their hexadecimal digit; any other text stays as it is.
void ConvHex(std::string& nibble);

/// The 8 hexadecimal digits of a word, most significant first: a value that is not negative by its hexadecimal form, a
/// negative one as the sum of two binary texts. Error 6 above 2147483647, below -2147483649 and for -1.
std::string word_digits(std::int64_t value);

}  // namespace kalco
