#pragma once

#include <span>

#include "work/change.h"
#include "work/table.h"

/// Sheets as tables: rows are counted from 2 on, behind the header.
namespace kalco {

/// The whole sheet.
Table table_of(const Sheet& sheet, const DiscBytes& disc);
/// One row of it, as table_of gives it.
TableRow row_of_sheet(const Sheet& sheet, const DiscBytes& disc, int row);
/// The id and the names of all columns.
std::vector<TableColumn> columns_of(const Sheet& sheet);

/// Changes of one sheet as a table that an import takes: the rows that have one, the new values, all other cells empty;
/// without the columns that are read-only.
Table table_of(const Sheet& sheet, std::span<const FieldChange> changes);

}  // namespace kalco
