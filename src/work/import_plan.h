#pragma once

#include <string_view>
#include <vector>

#include "work/change.h"
#include "work/table.h"

/// An import, thought through before anything is written.
namespace kalco {

struct ImportOptions {
    /// The only sheet to take, "" for all; also that of a table that doesn't tell its own (else the players).
    std::string_view sheet;
    /// Goes on over revisions that are not the image's.
    bool force = false;
};

struct ImportPlan {
    /// All of them, by the order of the tables, their headers, rows and columns. With one there are no changes.
    std::vector<TableMistake> mistakes;
    /// In the order of the sheets, their rows and columns.
    std::vector<FieldChange> changes;
    /// The disc as it will be.
    DiscBytes after;
};

/// Rows are found by id and columns by name; what a table lacks stays as it is, and so does a field with an empty cell.
/// Where two ids share a record, a cell that equals the disc gives way to the other one.
ImportPlan plan_import(const DiscBytes& disc, const Tables& tables, const ImportOptions& options = {});

}  // namespace kalco
