#pragma once

#include <string>

#include "work/table.h"

namespace kalco::ctl {

/// The sheets of a flat OpenDocument spreadsheet (FODS), as it is exported or
/// as a spreadsheet saves it again. A sheet's first row that isn't empty is its
/// header; empty rows and sheets are dropped, but rows are counted as the
/// spreadsheet does. A number is the digits of its value, whatever its format
/// shows; any other cell is the text that it shows. Covered cells are empty.
/// Throws TableError (row 0 where no row is to blame) for what is no such
/// spreadsheet, and for more than it could be meant to hold.
Tables tables_of_fods(std::string text);

}  // namespace kalco::ctl
