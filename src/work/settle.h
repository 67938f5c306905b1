#pragma once

#include <string>

#include "disc/image/image.h"

namespace kalco {

/// Renews, in an image's buffer, EDC and parities of the changed sectors whose fields all fitted before; in other
/// sectors they stay as they are. Throws FileError in the name of `path` when the image's length would be another one.
void settle(Image& image, const std::string& path);

}  // namespace kalco
