#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "disc/image/position.h"

namespace kalco {

// Making and checking of raw Mode 2 Form 1 sectors. Offsets count bytes from the sector's start:
//
//      0   12  sync pattern
//     12    4  header: minute, second, frame (BCD), mode
//     16    8  sub-header: file, channel, sub-mode, coding; all four twice
//     24 2048  user data
//   2072    4  EDC over sub-header and user data, little-endian
//   2076  172  P parity
//   2248  104  Q parity
//
// The editor itself never looks at these fields: they matter to those who make images and to those who burn them.

using RawSector = std::array<std::uint8_t, sector_bytes>;

/// The sector with the logical address `lba` (0 is at 00:02:00 of the disc) around one sector's user data.
/// Throws std::out_of_range when the disc's clock, which ends at 99:59:74, has no such address.
RawSector make_sector(std::uint32_t lba, std::span<const std::uint8_t, user_bytes> user);

/// The logical address in the header; none when its digits are no time on the disc's clock, or one before 00:02:00.
std::optional<std::uint32_t> sector_address(std::span<const std::uint8_t, sector_bytes> sector);

/// True when sync, address, mode, both copies of the sub-header, EDC and both parities fit together.
bool sector_is_valid(std::span<const std::uint8_t, sector_bytes> sector);

}  // namespace kalco
