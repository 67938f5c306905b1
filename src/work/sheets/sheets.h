#pragma once

#include <array>
#include <span>
#include <string_view>

#include "disc/image/image.h"
#include "work/sheets/field.h"

namespace kalco {

inline constexpr std::string_view players_sheet = "players";

/// All sheets, in the order of the disc's.
std::span<const Sheet> sheets();
/// Nullptr for an unknown name.
const Sheet* sheet_named(std::string_view name);

/// The sectors (0-based, rising) that hold a field of a sheet.
std::span<const int> sheet_sectors();
/// Those sectors of an image.
DiscBytes read_sheets(const Image& image);

}  // namespace kalco
