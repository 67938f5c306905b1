#pragma once

#include <string>

#include "work/table.h"

namespace kalco::ctl {

/// Tables as a flat OpenDocument spreadsheet (FODS), a sheet each: the header
/// stays in view, columns have the width of their texts, and what an import of
/// the table's sheet would refuse is refused while typing, as far as
/// spreadsheets know how. Every table has a name of its own and an id column; a
/// table that isn't one of the disc's sheets has no rules.
std::string fods_of_tables(const Tables& tables);

}  // namespace kalco::ctl
