#pragma once

#include <string>
#include <vector>

#include "work/sheets/sheets.h"
#include "work/sheets/values.h"

/// Changes by meaning: what an import does and a comparison finds.
namespace kalco {

struct FieldChange {
    const Sheet* sheet = nullptr;
    int row = 0;
    const SheetColumn* column = nullptr;
    FieldValue before;
    FieldValue after;

    std::string id() const { return sheet->id(row); }
    /// The cells of both values.
    std::string old_cell() const { return cell_of(*column, before); }
    std::string new_cell() const { return cell_of(*column, after); }
};

/// `t10p03 speed: 15 -> 17`; an empty text as `""`.
std::string line_of(const FieldChange& change);

/// The fields that two states of a disc have different values in, in the order of the sheets, their rows and columns.
std::vector<FieldChange> changes_between(const DiscBytes& before, const DiscBytes& after);
/// Those of one sheet.
std::vector<FieldChange> changes_between(const DiscBytes& before, const DiscBytes& after, const Sheet& sheet);

}  // namespace kalco
