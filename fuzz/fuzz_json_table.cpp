// Any bytes as rows in JSON: they are refused or read, what is read is written back the same, and an import takes it or
// tells what is wrong.

#include "ctl/table_json.h"
#include "fuzz/sheet_bytes.h"
#include "work/import_plan.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Tables tables;
    try {
        tables = ctl::tables_of_json(fuzz::Bytes(data, size).rest());
    } catch (const TableError& error) {
        fuzz::require(error.mistake().row > 0 && !error.mistake().what.empty());
        return 0;
    }
    const std::string text = ctl::json_of_tables(tables);
    fuzz::require(ctl::json_of_tables(ctl::tables_of_json(text)) == text);
    const ImportPlan plan = plan_import(fuzz::sheet_bytes(), tables);
    fuzz::require(plan.mistakes.empty() || plan.changes.empty());
    fuzz::require(!plan.mistakes.empty() ||
                  plan.changes.empty() == differences(fuzz::sheet_bytes(), plan.after).empty());
    return 0;
}
