#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

#include "disc/image/position.h"
#include "work/check/edc.h"

// Division with nothing but the exclusive or of wide words.
//
// Over the two-element field squares have no mixed terms: P(x)^2 = P(x^2), and so P(x)^256 = P(x^256). P therefore
// divides P(x^256), and what is left of a message after the division by the latter has the same rest by P. But in
// powers of y = x^256 the message is a polynomial whose coefficients are blocks of 32 bytes, and P(y) has eight terms:
// each step of the division is a few exclusive ors of whole blocks. It ends with 32 blocks. These are divided by
// P(x^128), which leaves 32 blocks of half the size, and so on; tables do the last 64 bytes.
//
// The eight terms become four by P(y) = (y + 1) R(y), R(y) = y^31 + y^15 + y^3 + 1. If M = R U + S, and C is the sum of
// U's coefficients, that is U's rest by y + 1, then M = P V + (R C + S).
namespace kalco::check {
namespace {

template <typename Word, std::size_t count>
struct Block {
    std::array<Word, count> words;

    [[gnu::always_inline]] Block& operator^=(const Block& other) {
        for (std::size_t k = 0; k < count; ++k) words[k] = static_cast<Word>(words[k] ^ other.words[k]);
        return *this;
    }
    [[gnu::always_inline]] friend Block operator^(Block a, const Block& b) { return a ^= b; }
};

constexpr std::size_t degree = 32;
template <typename Block>
using Rest = std::array<Block, degree>;

/// What `count` blocks leave; they become their quotient by R.
template <typename Block>
[[gnu::always_inline]] inline Rest<Block> divided(Block* message, std::size_t count) {
    const std::size_t quotient = count - (degree - 1);
    // Each block of the quotient takes part in those 16, 28 and 31 places on.
    Block sum{};
    std::size_t i = 0;
    for (; i < 16; ++i) sum ^= message[i];
    for (; i < 28; ++i) sum ^= message[i] ^= message[i - 16];
    for (; i < 31; ++i) sum ^= message[i] ^= message[i - 16] ^ message[i - 28];
    for (; i < quotient; ++i) sum ^= message[i] ^= message[i - 16] ^ message[i - 28] ^ message[i - 31];
    // S is one block shorter than the rest by P.
    Rest<Block> rest;
    Block* to = rest.data() + 1;
    for (; i < quotient + 16; ++i) *to++ = message[i] ^ message[i - 16] ^ message[i - 28] ^ message[i - 31];
    for (; i < quotient + 28; ++i) *to++ = message[i] ^ message[i - 28] ^ message[i - 31];
    for (; i < quotient + 31; ++i) *to++ = message[i] ^ message[i - 31];
    rest[0] = sum;
    for (const std::size_t power : {15U, 3U, 0U}) rest[degree - 1 - power] ^= sum;
    return rest;
}

/// The same of what was left of blocks that are twice as wide.
template <typename Narrow, typename Wide>
[[gnu::always_inline]] inline Rest<Narrow> divided_on(const Rest<Wide>& rest) {
    static_assert(2 * sizeof(Narrow) == sizeof(Wide));
    auto message = std::bit_cast<std::array<Narrow, 2 * degree>>(rest);
    return divided(message.data(), message.size());
}

}  // namespace

bool edc_fits_by_division(std::span<const std::uint8_t> bytes_with_edc) {
    using Widest = Block<std::uint64_t, 4>;
    std::array<Widest, sector_bytes / sizeof(Widest) + 1> message;  // NOLINT(*-member-init): filled below, for speed
    message[0] = {};                                                // zeroes in front change nothing
    const std::size_t count = (bytes_with_edc.size() + sizeof(Widest) - 1) / sizeof(Widest);
    const std::size_t in_front = count * sizeof(Widest) - bytes_with_edc.size();
    std::memcpy(reinterpret_cast<std::uint8_t*>(message.data()) + in_front, bytes_with_edc.data(),
                bytes_with_edc.size());

    const auto of_32 = divided(message.data(), count);
    const auto of_16 = divided_on<Block<std::uint64_t, 2>>(of_32);
    const auto of_8 = divided_on<Block<std::uint64_t, 1>>(of_16);
    const auto of_4 = divided_on<Block<std::uint32_t, 1>>(of_8);
    const auto of_2 = divided_on<Block<std::uint16_t, 1>>(of_4);
    return edc_rest(std::bit_cast<std::array<std::uint8_t, sizeof of_2>>(of_2)) == 0;
}

}  // namespace kalco::check
