#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "disc/image/image.h"
#include "work/check/image_check.h"

namespace kalco {

/// Which sectors of an image are looked at: some, by number, or all.
using SectorChoice = std::optional<std::span<const int>>;

/// The reader of an open image's sectors.
check::ReadSectors sectors_of(const Image& image);

/// The check of an open image, whose length is that of whole sectors.
check::Summary check_image(const Image& image, const SectorChoice& choice, const check::Listener& listener);

struct Repair {
    std::vector<check::BadSector> renewed;
    check::Summary summary;  ///< Its bad sectors are the renewed ones.
};

/// Renews EDC and parities where they don't fit, from sector 16 on, in the image's buffer.
Repair repair_image(Image& image, const SectorChoice& choice, const std::function<void(std::int64_t)>& progress);

}  // namespace kalco
