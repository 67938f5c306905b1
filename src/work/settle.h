#pragma once

#include <string>
#include <vector>

#include "disc/image/image.h"

namespace kalco {

/// Renews, in an image's buffer, EDC and parities of the changed sectors whose fields all fitted before; in other
/// sectors they stay as they are. Gives every sector that changes, with the renewed fields. Throws FileError in the
/// name of `path` when the image's length would be another one.
std::vector<SectorChange> settle(Image& image, const std::string& path);

}  // namespace kalco
