#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "disc/image/image.h"
#include "work/container.h"
#include "work/sheets/disc_bytes.h"

namespace kalco::ctl {

/// Opens an image as its opener does and looks what it is. What is no raw image, or has fewer than `least_sectors`
/// sectors, is a FileError; what the user should know besides is told in the name of `command`.
void open_image(Image& image, const std::string& path, std::string_view command,
                std::int64_t least_sectors = least_disc_sectors);

/// The sheets' sectors of an image that is opened only to be read.
DiscBytes read_disc(const std::string& path, std::string_view command);

}  // namespace kalco::ctl
