#pragma once

#include <cstdint>
#include <string>

#include "work/sheets/disc_bytes.h"
#include "work/sheets/sheets.h"

/// Images in memory, for what works on sheets.
namespace kalco::test {

/// The bytes of the demo image of seed 1. Always the same.
const std::string& demo_image_bytes();
/// An image of random bytes that is long enough for every sheet.
std::string random_image_bytes(std::uint32_t seed);

/// The sheets' sectors of an image's bytes.
DiscBytes sheets_of(const std::string& image);
/// The bytes with what the sheets' sectors hold put over them.
std::string with_sheets(std::string image, const DiscBytes& disc);

/// A cell by the names of its sheet, row and column. What does not exist is an exception.
std::string cell(const DiscBytes& disc, std::string_view sheet, std::string_view id, std::string_view column);
/// Where it is stored.
FieldPlace place_of_cell(std::string_view sheet, std::string_view id, std::string_view column);

}  // namespace kalco::test
