#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "disc/image/position.h"
#include "disc/image/sector_layout.h"

/// Whether both parities of a sector fit: fast, beside the plain way of disc/image/sector.h.
namespace kalco::check {

/// The bytes from the header on.
inline constexpr std::size_t parity_area_bytes = sector_bytes - layout::parity_start;
using ParityArea = std::span<const std::uint8_t, parity_area_bytes>;

/// Where the rows of a sector are laid out for Q, with gaps between them that stay zero. One for each thread.
struct DiagonalRows {
    static constexpr std::size_t row_bytes = layout::row_bytes + 4;  ///< With a word of each half of Q.
    static constexpr std::size_t row_distance = 160;
    static constexpr std::size_t in_front = 64;  ///< Of the first row.

    std::array<std::uint8_t, in_front + (layout::rows + 1) * row_distance> bytes{};

    /// 1..26; the last one is that of the sector's row 0.
    std::uint8_t* row(std::size_t number) { return bytes.data() + in_front + (number - 1) * row_distance; }
};

/// In Mode 2 the four bytes of the header count as zero.
enum class Header : std::uint8_t { counts, counts_as_zero };

using ParitiesFit = bool (*)(ParityArea, Header, DiagonalRows&);

struct ParityMethod {
    std::string_view name;
    ParitiesFit fit;
};

bool parities_fit_by_16(ParityArea area, Header header, DiagonalRows& rows);
/// Needs a processor with AVX2.
bool parities_fit_by_32(ParityArea area, Header header, DiagonalRows& rows);

/// Those that this processor runs, the fastest last.
std::vector<ParityMethod> parity_methods();

}  // namespace kalco::check
