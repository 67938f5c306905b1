#pragma once

#include <span>
#include <string>
#include <string_view>

#include "disc/image/image.h"

namespace kalco {

/// The block of an open image that the patches made of it are checked against: 1024 bytes.
std::string checked_block(const Image& image);

/// A PPF patch with undo data that makes `changes`: taking it back undoes them. `block` is that of the image before. ""
/// when no byte changes.
std::string patch_of_changes(std::string_view block, std::span<const SectorChange> changes,
                             std::string_view description);

}  // namespace kalco
