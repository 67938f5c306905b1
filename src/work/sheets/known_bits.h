#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>

#include "disc/image/position.h"

namespace kalco {

/// The bits of one sector that belong to a field of a sheet, byte by byte.
using KnownBits = std::array<std::uint8_t, sector_bytes>;

/// By sector (0-based), only those that have any. A text's or link's bytes are known as a whole.
const std::unordered_map<std::int64_t, KnownBits>& known_bits();

}  // namespace kalco
