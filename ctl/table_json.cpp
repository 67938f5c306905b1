#include "ctl/table_json.h"

#include <algorithm>
#include <map>
#include <utility>

#include "disc/codec/utf8.h"

namespace kalco::ctl {
namespace {

constexpr const char* sheet_key = "sheet";
/// More than any table has: rows that each bring a column of their own would cost the square of their number.
constexpr std::size_t most_columns = 256;
constexpr std::size_t most_sheets = 64;

/// The object of a line, whose values are no arrays and no objects.
Json parse_line(std::string_view line, int number) {
    if (broken_utf8(line)) throw TableError(number, {}, "not UTF-8");
    bool flat = true;
    bool twice = false;
    std::vector<std::string> keys;
    const auto watch = [&](int depth, Json::parse_event_t event, Json& parsed) {
        using Event = Json::parse_event_t;
        if (event == Event::array_start || (event == Event::object_start && depth > 0)) flat = false;
        if (event == Event::key && flat) {
            const auto key = parsed.get<std::string>();
            twice = twice || std::find(keys.begin(), keys.end(), key) != keys.end();
            keys.push_back(key);
        }
        return flat;
    };
    Json row = Json::parse(line, watch, false);
    if (!flat || !row.is_object()) throw TableError(number, {}, "not an object of texts and numbers");
    if (twice) throw TableError(number, {}, "twice the same key");
    return row;
}

std::string cell_of(const Json& value, int number, const std::string& key) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number_integer()) return value.dump();
    if (value.is_null()) return {};
    throw TableError(number, key, "neither a text nor a whole number");
}

class TablesReader {
public:
    void take(const Json& row, int number) {
        const std::string sheet = row.contains(sheet_key) ? cell_of(row[sheet_key], number, sheet_key) : std::string();
        const auto [place, fresh] = places_.emplace(sheet, tables_.size());
        if (fresh) {
            if (tables_.size() == most_sheets) throw TableError(number, sheet_key, "too many sheets");
            tables_.push_back({sheet, {}, {}});
            columns_.emplace_back();
        }
        Table& table = tables_[place->second];
        auto& columns = columns_[place->second];
        TableRow cells{number, std::vector<std::string>(table.columns.size())};
        for (const auto& [key, value] : row.items()) {
            if (key == sheet_key) continue;
            const auto [column, is_new] = columns.emplace(key, table.columns.size());
            if (is_new) {
                if (table.columns.size() == most_columns) throw TableError(number, key, "too many columns");
                table.columns.push_back({key, number});
                cells.cells.emplace_back();
            }
            cells.cells[column->second] = cell_of(value, number, key);
        }
        cells_ += cells.cells.size();
        if (cells_ > most_table_cells) throw TableError(number, {}, "too many cells");
        table.rows.push_back(std::move(cells));
    }

    Tables result() { return std::move(tables_); }

private:
    Tables tables_;
    std::size_t cells_ = 0;
    std::map<std::string, std::size_t> places_;                ///< By sheet.
    std::vector<std::map<std::string, std::size_t>> columns_;  ///< By table: places by name.
};

}  // namespace

Json json_of_row(const Table& table, const TableRow& row) {
    Json json{{sheet_key, table.sheet}};
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        json[table.columns[column].name] = row.cell(column);
    }
    return json;
}

Json json_of_change(const FieldChange& change) {
    return {{sheet_key, change.sheet->name},
            {"id", change.id()},
            {"field", change.column->name},
            {"old", change.old_cell()},
            {"new", change.new_cell()}};
}

std::string json_of_tables(const Tables& tables) {
    std::string text;
    for (const Table& table : tables) {
        for (const TableRow& row : table.rows) text += json_of_row(table, row).dump() + '\n';
    }
    return text;
}

Tables tables_of_json(std::string_view text) {
    TablesReader reader;
    for (int number = 1; !text.empty(); ++number) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
        reader.take(parse_line(line, number), number);
    }
    return reader.result();
}

}  // namespace kalco::ctl
