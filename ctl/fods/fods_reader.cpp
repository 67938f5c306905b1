#include "ctl/fods/fods_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <pugixml.hpp>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "ctl/fods/fods_text.h"
#include "disc/codec/utf8.h"

namespace kalco::ctl {
namespace {

/// What a file may hold, repeated cells spelt out. The whole disc needs 75,000
/// cells with half a million bytes.
constexpr std::size_t most_cells_in_row = 256;
constexpr std::size_t most_cells = 500'000;
constexpr std::size_t most_cell_bytes = 16'000'000;
/// More rows and columns than any spreadsheet has. Counting stops there.
constexpr int most_rows = 1 << 30;
constexpr int most_depth = 32;

bool is_named(const pugi::xml_node& node, std::string_view name) {
    return node.name() == name;
}

/// A number of repetitions, at least 1.
int repeated(const pugi::xml_node& node, const char* attribute) {
    const long long count = node.attribute(attribute).as_llong(1);
    return static_cast<int>(std::clamp<long long>(count, 1, most_rows));
}

/// The digits of a whole number; of any other value the text that the file has
/// for it.
std::string number_text(const char* value) {
    const std::string_view text = value;
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    constexpr double most_exact = 9e15;
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::string(text);
    if (number != std::floor(number) || std::abs(number) > most_exact) return std::string(text);
    return std::to_string(static_cast<long long>(number));
}

std::string text_of_cell(const pugi::xml_node& cell) {
    const std::string_view type = cell.attribute("office:value-type").value();
    const std::string_view shown_type = cell.attribute("calcext:value-type").value();
    if (type == "float" || type == "percentage" || type == "currency") {
        return number_text(cell.attribute("office:value").value());
    }
    const pugi::xml_attribute string = cell.attribute("office:string-value");
    if (type == "string" && string && shown_type != "error") return string.value();
    return fods::shown_text(cell);
}

/// Of all sheets read so far.
struct Amount {
    std::size_t cells = 0;
    std::size_t bytes = 0;
};

/// Reads one sheet.
class SheetReader {
public:
    SheetReader(Table& table, Amount& amount) : table_(table), amount_(amount) {}

    void add_rows(const pugi::xml_node& group, int depth = 0) {
        static constexpr std::array<std::string_view, 3> groups{"table:table-header-rows", "table:table-rows",
                                                                "table:table-row-group"};
        if (depth > most_depth) throw TableError(row_, {}, "rows grouped without end");
        for (const pugi::xml_node& child : group.children()) {
            if (is_named(child, "table:table-row")) {
                add_row(child);
            } else if (std::ranges::find(groups, child.name()) != groups.end()) {
                add_rows(child, depth + 1);
            }
        }
    }

private:
    void add_row(const pugi::xml_node& row) {
        const int count = repeated(row, "table:number-rows-repeated");
        std::vector<std::string> cells = cells_of(row);
        for (int i = 0; i < count && !cells.empty(); ++i) {
            count_content(cells);
            add_cells(row_ + i, cells);
        }
        row_ += std::min(count, most_rows - row_);
    }

    /// Without the empty ones at the end.
    std::vector<std::string> cells_of(const pugi::xml_node& row) const {
        std::vector<std::string> cells;
        std::size_t column = 0;
        for (const pugi::xml_node& cell : row.children()) {
            const bool plain = is_named(cell, "table:table-cell");
            if (!plain && !is_named(cell, "table:covered-table-cell")) continue;
            const auto count = static_cast<std::size_t>(repeated(cell, "table:number-columns-repeated"));
            std::string text = plain ? content_of(cell) : std::string();
            if (!text.empty()) {
                if (column + count > most_cells_in_row) throw TableError(row_, {}, "more than 256 columns");
                cells.resize(column);
                cells.resize(column + count, text);
            }
            column = std::min<std::size_t>(column + count, most_rows);
        }
        return cells;
    }

    std::string content_of(const pugi::xml_node& cell) const {
        try {
            return text_of_cell(cell);
        } catch (const std::length_error& error) {
            throw TableError(row_, {}, error.what());
        }
    }

    void count_content(const std::vector<std::string>& cells) {
        amount_.cells += cells.size();
        for (const std::string& cell : cells) amount_.bytes += cell.size();
        if (amount_.cells > most_cells || amount_.bytes > most_cell_bytes) {
            throw TableError(row_, {}, "more cells than the sheets of a disc have");
        }
    }

    void add_cells(int number, const std::vector<std::string>& cells) {
        if (!table_.columns.empty()) {
            table_.rows.push_back({number, cells});
            return;
        }
        for (const std::string& cell : cells) table_.columns.push_back({cell, number});
    }

    Table& table_;
    Amount& amount_;
    int row_ = 1;
};

/// Where the text's lines end.
std::vector<std::ptrdiff_t> line_ends(std::string_view text) {
    std::vector<std::ptrdiff_t> ends;
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', end + 1)) {
        ends.push_back(static_cast<std::ptrdiff_t>(end));
    }
    return ends;
}

}  // namespace

Tables tables_of_fods(std::string text) {
    if (broken_utf8(text)) throw TableError(0, {}, "the file is not UTF-8");
    pugi::xml_document document;
    const unsigned flags = pugi::parse_default | pugi::parse_ws_pcdata;
    // The text becomes the document's own: a second one would cost as much again.
    const auto ends = line_ends(text);
    const auto result = document.load_buffer_inplace(text.data(), text.size(), flags, pugi::encoding_utf8);
    if (!result) {
        const auto before = std::ranges::lower_bound(ends, result.offset) - ends.begin();
        const std::string line = std::to_string(before + 1);
        throw TableError(0, {}, "line " + line + ": no well-formed XML: " + result.description());
    }
    const pugi::xml_node sheets = document.child("office:document").child("office:body").child("office:spreadsheet");
    if (!sheets) throw TableError(0, {}, "no flat OpenDocument spreadsheet");
    Tables tables;
    Amount amount;
    for (const pugi::xml_node& sheet : sheets.children("table:table")) {
        Table table{sheet.attribute("table:name").value(), {}, {}};
        SheetReader(table, amount).add_rows(sheet);
        if (!table.columns.empty()) tables.push_back(std::move(table));
    }
    return tables;
}

}  // namespace kalco::ctl
