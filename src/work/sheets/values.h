#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "work/sheets/disc_bytes.h"
#include "work/sheets/field.h"

/// The values of fields: between what is stored (by masks, nothing lost) and the cells of a sheet.
namespace kalco {

/// What a field holds: nothing where the row lacks it, the bits of a number or choice, the bytes of a text (to its
/// first zero) or link.
using FieldValue = std::variant<std::monostate, unsigned, std::string>;

FieldValue stored_value(const DiscBytes& disc, const SheetColumn& column, int row);
/// The same where the place is known.
FieldValue stored_value(const DiscBytes& disc, const Field& field, const FieldPlace& place);
/// The value must be one that read_cell gives for that place.
void store_value(DiscBytes& disc, const SheetColumn& column, int row, const FieldValue& value);

/// The cell of a value of a column that isn't read-only. "" for an empty text and for nothing.
std::string cell_of(const SheetColumn& column, const FieldValue& value);
/// The cell of any column.
std::string cell_at(const DiscBytes& disc, const SheetColumn& column, int row);

/// The value that a cell gives a field that the row has, or what is wrong with it. The cell isn't empty.
struct CellReading {
    FieldValue value;
    std::string mistake;  ///< Empty: the cell is in order.
};
CellReading read_cell(const SheetColumn& column, const FieldPlace& place, std::string_view cell);

}  // namespace kalco
