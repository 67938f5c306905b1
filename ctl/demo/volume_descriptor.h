#pragma once

#include <cstdint>

#include "ctl/demo/demo_disc.h"

namespace kalco::demo {

inline constexpr std::uint32_t volume_descriptor_sector = 16;

/// The primary volume descriptor in sector 16 and the terminator of the list behind it: they tell programs that the
/// disc is one. The volume has a name with the seed, a size and a date, but no directory.
void put_volume_descriptors(DemoDisc& disc, std::uint64_t seed);

}  // namespace kalco::demo
