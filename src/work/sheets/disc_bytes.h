#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/position.h"

namespace kalco {

inline constexpr int byte_bits = 8;

/// A field of bits in a stretch of bytes, the first byte's lowest bit counted as 0 and the next byte's as 8.
struct BitRange {
    int first = 0;
    int width = 0;

    friend constexpr bool operator==(const BitRange&, const BitRange&) = default;
};

/// Some sectors of an image in memory: read once, then looked at, changed and compared as a value.
class DiscBytes {
public:
    /// Gives `bytes` bytes of the image from a position on.
    using Reader = std::function<std::string(ImagePos position, int bytes)>;

    /// `sectors` are 0-based and rise.
    DiscBytes(const Reader& reader, std::span<const int> sectors);

    std::string read(const Pieces& field) const;
    /// The field becomes the text; zeroes fill it to its end. The text must not be longer.
    void write(const Pieces& field, std::string_view text);

    /// Ranges are of at most 16 bits.
    unsigned bits(const Pieces& field, BitRange range) const;
    void set_bits(const Pieces& field, BitRange range, unsigned value);

    /// Bytes at any position; those outside the held sectors are dropped.
    void put(ImagePos position, std::string_view bytes);

    /// Neighbouring bytes of one sector.
    struct Run {
        ImagePos position = 0;
        std::string bytes;

        friend bool operator==(const Run&, const Run&) = default;
    };
    /// What must be written over `before` to get `after`, in rising order. Both hold the same sectors.
    friend std::vector<Run> differences(const DiscBytes& before, const DiscBytes& after);

private:
    std::uint8_t& at(const Pieces& field, int byte) { return bytes_[place_of(field, byte)]; }
    std::uint8_t at(const Pieces& field, int byte) const { return bytes_[place_of(field, byte)]; }
    std::size_t place_of(const Pieces& field, int byte) const;

    std::vector<int> sectors_;
    std::vector<int> slots_;  ///< By sector: its place among sectors_, or -1.
    std::vector<std::uint8_t> bytes_;
};

}  // namespace kalco
