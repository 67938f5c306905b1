#pragma once

#include <cstdint>
#include <string_view>

namespace kalco {

/// CRC-32 as of IEEE 802.3: polynomial 0xEDB88320 low bit first, all ones at the start, inverted at the end.
std::uint32_t crc32(std::string_view bytes);

}  // namespace kalco
