#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "work/markup.h"

/// Texts in the cells of an OpenDocument spreadsheet, both ways.
namespace kalco::ctl::fods {

/// The most bytes that a cell's text may have; spreadsheets hold no more
/// either.
inline constexpr std::size_t most_text_bytes = 32767;

/// The text that a cell shows: its paragraphs with a line feed between them.
/// Blanks, tabs and line ends of the file count as one blank, elements for them
/// as what they stand for. Throws std::length_error for a text that is too long
/// and for elements that are nested without end.
std::string shown_text(const pugi::xml_node& cell);

/// The paragraph that shows a text, with elements for the blanks, tabs and line
/// feeds that would not count as such.
void write_text(Markup& markup, std::string_view text);

}  // namespace kalco::ctl::fods
