#pragma once

#include <cstddef>
#include <string>

#include "ctl/fods/validations.h"
#include "work/markup.h"
#include "work/table.h"

namespace kalco::ctl::fods {

/// "A", "Z", "AA": a 0-based column as the spreadsheet names it.
std::string letters_of(std::size_t column);

/// The width of a column in millimetres, in steps that keep the styles few. The style is "w" and the number.
int width_of(const Table& table, std::size_t column);

/// The element of one sheet. Its cells have the styles "heading", "fixed", "number" and "text".
void write_sheet(Markup& markup, Validations& rules, const Table& table);

}  // namespace kalco::ctl::fods
