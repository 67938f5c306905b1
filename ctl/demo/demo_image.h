#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ctl/demo/demo_disc.h"

namespace kalco::demo {

/// A disc with every table of the game, full of invented players. The same seed gives the same disc on every machine.
DemoDisc make_demo_disc(std::uint64_t seed);

/// Called with the number of sectors written so far.
using Progress = std::function<void(std::uint32_t)>;

/// Writes the disc as a raw image. It is written under another name beside the path and takes its name when it is
/// complete and on the disk; nothing is left behind otherwise. Throws std::runtime_error, whose text tells the reason:
/// the path exists and `replace` is not set, it is no plain file, or a write failed.
void write_image(const DemoDisc& disc, const std::string& path, bool replace, const Progress& progress);

}  // namespace kalco::demo
