#include "work/import_plan.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "disc/codec/utf8.h"

namespace kalco {
namespace {

/// A cell in a complaint: quoted, and cut when it is very long.
std::string in_quotes(std::string_view cell) {
    constexpr std::size_t most_bytes = 60;
    std::size_t length = 0;
    while (length < cell.size()) {
        const std::size_t step = first_character(cell.substr(length)).bytes;
        if (step == 0 || length + step > most_bytes) break;
        length += step;
    }
    return '"' + std::string(cell.substr(0, length)) + (length < cell.size() ? "...\"" : "\"");
}

bool takes_text(const Field& field) {
    return field.kind == FieldKind::text || field.kind == FieldKind::wide_text;
}

class Planner {
public:
    Planner(const DiscBytes& disc, const ImportOptions& options)
        : disc_(disc),
          options_(options),
          plan_{{}, {}, disc} {}

    ImportPlan plan(const Tables& tables) {
        several_ = tables.size() > 1;
        for (const Table& table : tables) take(table);
        if (!options_.sheet.empty() && !tables.empty() && sheet_ == nullptr && plan_.mistakes.empty()) {
            plan_.mistakes.push_back({0, {}, "it has no sheet " + in_quotes(options_.sheet)});
        }
        std::sort(plan_.changes.begin(), plan_.changes.end(), [](const FieldChange& a, const FieldChange& b) {
            return std::tie(a.sheet, a.row, a.column) < std::tie(b.sheet, b.row, b.column);
        });
        if (!plan_.mistakes.empty()) plan_.changes.clear();
        return std::move(plan_);
    }

private:
    /// A column of a table: what it stands for.
    struct Target {
        std::string name;
        const SheetColumn* column = nullptr;
        bool is_id = false;
        bool nameless = false;  ///< Only empty cells may stand in it.
    };

    void complain(int row, std::string column, std::string what) {
        if (several_) what += " (sheet " + std::string(sheet_name_) + ")";
        plan_.mistakes.push_back({row, std::move(column), std::move(what)});
    }

    void take(const Table& table) {
        if (!options_.sheet.empty() && !table.sheet.empty() && table.sheet != options_.sheet) return;
        sheet_name_ = !table.sheet.empty() ? std::string_view(table.sheet) : options_.sheet;
        if (sheet_name_.empty()) sheet_name_ = players_sheet;
        const int header_row = table.columns.empty() ? 1 : table.columns.front().row;
        sheet_ = sheet_named(sheet_name_);
        if (sheet_ == nullptr) {
            plan_.mistakes.push_back({header_row, "sheet", "unknown sheet " + in_quotes(sheet_name_)});
            return;
        }
        const std::vector<Target> targets = targets_of(table);
        const auto id = std::find_if(targets.begin(), targets.end(), [](const Target& each) { return each.is_id; });
        if (id == targets.end()) return complain(header_row, std::string(id_column), "the column is missing");
        for (const TableRow& row : table.rows) take(row, targets, static_cast<std::size_t>(id - targets.begin()));
    }

    /// Complains of unknown and doubled names; their cells are passed over.
    std::vector<Target> targets_of(const Table& table) {
        std::vector<Target> targets;
        std::set<std::string_view> names;
        for (const TableColumn& column : table.columns) {
            Target target{column.name};
            target.nameless = column.name.empty();
            if (!target.nameless && !names.insert(column.name).second) {
                complain(column.row, column.name, "twice the same column");
            } else if (column.name == id_column) {
                target.is_id = true;
            } else if (!target.nameless) {
                target.column = sheet_->column_named(column.name);
                if (target.column == nullptr) complain(column.row, column.name, "unknown column");
            }
            targets.push_back(std::move(target));
        }
        return targets;
    }

    void take(const TableRow& row, const std::vector<Target>& targets, std::size_t id_place) {
        const bool empty =
            std::all_of(row.cells.begin(), row.cells.end(), [](const auto& cell) { return cell.empty(); });
        if (empty) return;
        const std::string_view id = row.cell(id_place);
        if (id.empty()) return complain(row.number, std::string(id_column), "the id is missing");
        const auto place = sheet_->row_of(id);
        if (!place) return complain(row.number, std::string(id_column), "unknown id " + in_quotes(id));
        if (!taken_.emplace(sheet_, *place).second) {
            return complain(row.number, std::string(id_column), "twice the same id " + in_quotes(id));
        }
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            if (row.cells[cell].empty()) continue;
            if (cell >= targets.size() || targets[cell].nameless) {
                complain(row.number, {}, "a value in a column without a name: " + in_quotes(row.cells[cell]));
            } else if (targets[cell].column != nullptr) {
                take(row.number, *targets[cell].column, *place, row.cells[cell]);
            }
        }
    }

    void take(int number, const SheetColumn& column, int row, std::string_view cell) {
        const Field& field = *column.field;
        if (field.kind == FieldKind::revision) {
            if (options_.force || cell == cell_at(disc_, column, row)) return;
            return complain(number, column.name, "the record was changed since: it is " + cell_at(disc_, column, row));
        }
        const auto place = column.place(row);
        if (!place) {
            const std::string held = cell_at(disc_, column, row);
            if (cell == held || (takes_text(field) && cell == empty_text_cell)) return;
            return complain(number, column.name, in_quotes(cell) + ": read-only here");
        }
        FieldValue before = stored_value(disc_, field, *place);
        if (cell == cell_of(column, before)) return;
        CellReading reading = read_cell(column, *place, cell);
        if (!reading.mistake.empty()) return complain(number, column.name, in_quotes(cell) + ": " + reading.mistake);
        if (reading.value == before) return;
        const FieldValue planned = stored_value(plan_.after, field, *place);
        if (planned != before && planned != reading.value) {
            return complain(number, column.name,
                            in_quotes(cell) + ": another row with the same record has " +
                                in_quotes(cell_of(column, planned)));
        }
        store_value(plan_.after, column, row, reading.value);
        plan_.changes.push_back({sheet_, row, &column, std::move(before), std::move(reading.value)});
    }

    const DiscBytes& disc_;
    const ImportOptions& options_;
    ImportPlan plan_;
    bool several_ = false;
    std::string_view sheet_name_;
    const Sheet* sheet_ = nullptr;
    std::set<std::pair<const Sheet*, int>> taken_;
};

}  // namespace

ImportPlan plan_import(const DiscBytes& disc, const Tables& tables, const ImportOptions& options) {
    return Planner(disc, options).plan(tables);
}

}  // namespace kalco
