#pragma once

#include <cstring>

#include "work/check/parities.h"

// Both parities over vectors of `width` bytes: the compiler makes of them what the function that this is put into may
// use of the processor.
//
// A word of either code, its bytes c_0 .. c_(n-1) from front to back, fits when two sums over the field of 256 vanish:
// the plain one, and the weighted one with a^(n-1-i) for c_i, where a is the element x, a^8 = a^4 + a^3 + a^2 + 1.
// Going through the bytes, the weighted one is doubled (times a) before each is added.
//
// P: a word is a column of the sector's 26 rows of 43 two-byte words, so whole rows are added as vectors.
//
// Q: a word is a diagonal. Diagonal d has a word in each column s, in row (d + s) mod 26, and its two check words
// behind them, as columns 43 and 44 of such longer rows. Put row r down at place (26 - r) mod 26 + s, and the words of
// a diagonal stand below one another, modulo 26: at places e, e + 26 and e + 52 with e = -d. Such a row is added in one
// go too. In the weighted sum a^(44 - s) is a^(44 - place) a^(26 - r): the second factor is the same for a whole row,
// and doubling makes it when rows are added in the order 1, 2 .. 25, 0. The first one is the same for all that stands
// at a place. At e + 26 it has a^26 less than at e; with a^26 = a (a + 1) the sums of the three places are put
// together: (S_e a^26 + S_(e+26)) a^26 + S_(e+52) vanishes when the diagonal fits.
namespace kalco::check {

template <std::size_t width>
class Lanes {
public:
    using Bytes [[gnu::vector_size(width)]] = std::uint8_t;
    using Signed [[gnu::vector_size(width)]] = std::int8_t;

    // Vectors go by reference: by value the ways to pass them differ between processors.
    [[gnu::always_inline]] static void load(Bytes& bytes, const std::uint8_t* from) {
        std::memcpy(&bytes, from, width);
    }
    [[gnu::always_inline]] static void store(std::uint8_t* to, const Bytes& bytes) { std::memcpy(to, &bytes, width); }

    [[gnu::always_inline]] static void times_a(Bytes& bytes) {
        // NOLINTNEXTLINE(modernize-use-auto): gcc takes it for one byte
        const Bytes carried = reinterpret_cast<Bytes>(reinterpret_cast<Signed>(bytes) < 0);
        bytes = (bytes + bytes) ^ (carried & 0x1D);
    }
    [[gnu::always_inline]] static void times_a_26(Bytes& bytes) {
        Bytes twice = bytes;
        times_a(twice);
        bytes ^= twice;
        times_a(bytes);
    }
    [[gnu::always_inline]] static void clear_front(Bytes& bytes, std::size_t count) { std::memset(&bytes, 0, count); }
    [[gnu::always_inline]] static bool is_zero(const Bytes& bytes) {
        std::array<std::uint64_t, width / sizeof(std::uint64_t)> words{};
        std::memcpy(words.data(), &bytes, width);
        std::uint64_t any = 0;
        for (const std::uint64_t word : words) any |= word;
        return any == 0;
    }

    /// The plain and the weighted sum of what is added.
    struct Sums {
        Bytes plain{};
        Bytes weighted{};

        [[gnu::always_inline]] void add(const Bytes& bytes) {
            plain ^= bytes;
            times_a(weighted);
            weighted ^= bytes;
        }
    };

    /// Vectors that cover `bytes` bytes; the last one reaches back over the one before it.
    static constexpr std::size_t covering(std::size_t bytes) { return (bytes + width - 1) / width; }
    static constexpr std::size_t offset(std::size_t vector, std::size_t bytes) {
        return vector + 1 < covering(bytes) ? vector * width : bytes - width;
    }
};

/// Lays the rows out for Q and tells whether P fits.
template <std::size_t width>
[[gnu::always_inline]] inline bool lay_out_rows(ParityArea area, Header header, DiagonalRows& rows) {
    using L = Lanes<width>;
    using layout::row_bytes;
    constexpr std::size_t vectors = L::covering(row_bytes);
    constexpr std::size_t header_bytes = layout::sub_header - layout::header;
    const std::uint8_t* const q = area.data() + (layout::q - layout::parity_start);
    typename L::Sums sums[vectors];
    for (std::size_t row = 0; row < layout::rows; ++row) {
        const std::uint8_t* const from = area.data() + row * row_bytes;
        std::uint8_t* const to = rows.row(row == 0 ? layout::rows : row);
        for (std::size_t k = 0; k < vectors; ++k) {
            typename L::Bytes bytes;
            L::load(bytes, from + L::offset(k, row_bytes));
            if (row == 0 && k == 0 && header == Header::counts_as_zero) L::clear_front(bytes, header_bytes);
            sums[k].add(bytes);
            L::store(to + L::offset(k, row_bytes), bytes);
        }
        // In columns 43 and 44 of row r stand the check words of the diagonals r - 43 and r - 44.
        std::memcpy(to + row_bytes, q + 2 * ((row + 2 * layout::rows - 43) % layout::rows), 2);
        std::memcpy(to + row_bytes + 2, q + 2 * (layout::rows + (row + 2 * layout::rows - 44) % layout::rows), 2);
    }
    typename L::Bytes any{};
    for (const auto& sum : sums) any |= sum.plain | sum.weighted;
    return L::is_zero(any);
}

/// Tells whether Q fits, of rows that are laid out.
template <std::size_t width>
[[gnu::always_inline]] inline bool diagonals_fit(DiagonalRows& rows) {
    using L = Lanes<width>;
    constexpr std::size_t places = DiagonalRows::row_distance;
    constexpr std::size_t at_once = 5;  // of vectors, so that their sums stay in registers
    static_assert(places % (at_once * width) == 0);
    alignas(width) std::array<std::uint8_t, places> plain;     // NOLINT(*-member-init): filled below, for speed
    alignas(width) std::array<std::uint8_t, places> weighted;  // NOLINT(*-member-init): likewise
    for (std::size_t part = 0; part < places; part += at_once * width) {
        typename L::Sums sums[at_once];
        for (std::size_t row = 1; row <= layout::rows; ++row) {
            const std::uint8_t* const from = rows.row(row) - 2 * (layout::rows - row) + part;
            for (std::size_t k = 0; k < at_once; ++k) {
                typename L::Bytes bytes;
                L::load(bytes, from + k * width);
                sums[k].add(bytes);
            }
        }
        for (std::size_t k = 0; k < at_once; ++k) {
            L::store(plain.data() + part + k * width, sums[k].plain);
            L::store(weighted.data() + part + k * width, sums[k].weighted);
        }
    }

    constexpr std::size_t period = 2 * layout::rows;
    typename L::Bytes any{};
    for (std::size_t k = 0; k < L::covering(period); ++k) {
        typename L::Bytes plain_sum{};
        typename L::Bytes weighted_sum{};
        for (std::size_t third = 0; third < 3; ++third) {
            typename L::Bytes bytes;
            L::load(bytes, plain.data() + third * period + L::offset(k, period));
            plain_sum ^= bytes;
            L::load(bytes, weighted.data() + third * period + L::offset(k, period));
            L::times_a_26(weighted_sum);
            weighted_sum ^= bytes;
        }
        any |= plain_sum | weighted_sum;
    }
    return L::is_zero(any);
}

template <std::size_t width>
[[gnu::always_inline]] inline bool parities_fit_by_lanes(ParityArea area, Header header, DiagonalRows& rows) {
    return lay_out_rows<width>(area, header, rows) && diagonals_fit<width>(rows);
}

}  // namespace kalco::check
