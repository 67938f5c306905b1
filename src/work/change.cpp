#include "work/change.h"

#include <utility>

#include "work/table.h"

namespace kalco {
namespace {

std::string cell_or_quotes(const std::string& cell) {
    return cell.empty() ? std::string(empty_text_cell) : cell;
}

void add_changes(const DiscBytes& before, const DiscBytes& after, const Sheet& sheet,
                 std::vector<FieldChange>& changes) {
    for (int row = 0; row < sheet.rows; ++row) {
        for (const SheetColumn& column : sheet.columns) {
            FieldValue old_value = stored_value(before, column, row);
            FieldValue new_value = stored_value(after, column, row);
            if (old_value == new_value) continue;
            changes.push_back({&sheet, row, &column, std::move(old_value), std::move(new_value)});
        }
    }
}

}  // namespace

std::string line_of(const FieldChange& change) {
    return change.id() + ' ' + change.column->name + ": " + cell_or_quotes(change.old_cell()) + " -> " +
           cell_or_quotes(change.new_cell());
}

std::vector<FieldChange> changes_between(const DiscBytes& before, const DiscBytes& after) {
    std::vector<FieldChange> changes;
    for (const Sheet& sheet : sheets()) add_changes(before, after, sheet, changes);
    return changes;
}

std::vector<FieldChange> changes_between(const DiscBytes& before, const DiscBytes& after, const Sheet& sheet) {
    std::vector<FieldChange> changes;
    add_changes(before, after, sheet, changes);
    return changes;
}

}  // namespace kalco
