// Any bytes as a CSV: it is refused or read, what is read is written back the same, and what an import makes of it can
// be exported and imported again without a change.

#include <algorithm>

#include "fuzz/sheet_bytes.h"
#include "work/csv.h"
#include "work/import_plan.h"
#include "work/sheet_tables.h"

using namespace kalco;

namespace {

/// Header cells that could be taken for several ones: no sheet has them.
bool has_odd_names(const Table& table) {
    return std::any_of(table.columns.begin(), table.columns.end(), [](const TableColumn& column) {
        return std::any_of(column.name.begin(), column.name.end(),
                           [](char each) { return each == '"' || is_csv_separator(each); });
    });
}

/// The written form holds every cell, the missing ones too, and drops cells behind the last column.
void check_round_trip(const Table& table) {
    if (table.columns.empty() || has_odd_names(table)) return;
    const Table again = table_of_csv(csv_of_table(table));
    fuzz::require(again.columns.size() == table.columns.size());
    std::size_t read = 0;
    for (const TableRow& row : table.rows) {
        bool empty = true;
        for (std::size_t cell = 0; cell < table.columns.size(); ++cell) empty = empty && row.cell(cell).empty();
        if (empty) continue;
        fuzz::require(read < again.rows.size());
        for (std::size_t cell = 0; cell < table.columns.size(); ++cell) {
            fuzz::require(again.rows[read].cell(cell) == row.cell(cell));
        }
        ++read;
    }
    fuzz::require(read == again.rows.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const Sheet& sheet = sheets()[static_cast<std::size_t>(bytes.next()) % sheets().size()];
    Table table;
    try {
        table = table_of_csv(bytes.rest());
    } catch (const TableError& error) {
        fuzz::require(error.mistake().row > 0 && !error.mistake().what.empty());
        return 0;
    }
    check_round_trip(table);
    const DiscBytes& disc = fuzz::sheet_bytes();
    const ImportPlan plan = plan_import(disc, {table}, {sheet.name});
    fuzz::require(plan.mistakes.empty() || plan.changes.empty());
    if (!plan.mistakes.empty()) return 0;
    fuzz::require(plan.changes.empty() == differences(disc, plan.after).empty());
    const Table changed = table_of(sheet, changes_between(disc, plan.after, sheet));
    const ImportPlan again = plan_import(disc, {table_of_csv(csv_of_table(changed))}, {sheet.name});
    fuzz::require(again.mistakes.empty());
    fuzz::require(differences(plan.after, again.after).empty());
    return 0;
}
