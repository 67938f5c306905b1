#include "ctl/fods/sheet_writer.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "ctl/fods/fods_text.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl::fods {
namespace {

std::size_t characters_of(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

/// A number that comes back as it is written.
bool is_number(std::string_view cell) {
    constexpr std::size_t most_digits = 9;
    return !cell.empty() && cell.size() <= most_digits && (cell[0] != '0' || cell.size() == 1) &&
           std::ranges::all_of(cell, [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// Writes one table as a sheet.
class SheetWriter {
public:
    SheetWriter(Markup& markup, Validations& rules, const Table& table)
        : markup_(markup),
          rules_(rules),
          table_(table),
          sheet_(sheet_named(table.sheet)) {
        for (const TableColumn& column : table.columns) {
            fields_.push_back(sheet_ == nullptr ? nullptr : sheet_->column_named(column.name));
            styles_.push_back(style_of(fields_.size() - 1));
        }
    }

    void write() {
        markup_.open("table:table").attribute("table:name", table_.sheet);
        for (std::size_t column = 0; column < table_.columns.size(); ++column) {
            markup_.open("table:table-column")
                .attribute("table:style-name", 'w' + std::to_string(width_of(table_, column)))
                .attribute("table:default-cell-style-name", styles_[column])
                .end();
        }
        markup_.open("table:table-header-rows").open("table:table-row");
        for (const TableColumn& column : table_.columns) {
            open_cell("heading").attribute("office:value-type", "string");
            write_text(markup_, column.name);
            markup_.close();
        }
        markup_.close().close().raw("\n");
        for (const TableRow& row : table_.rows) write_row(row);
        markup_.close();
    }

private:
    std::string_view style_of(std::size_t column) const {
        const SheetColumn* known = fields_[column];
        if (table_.columns[column].name == id_column || (known != nullptr && known->field->read_only())) return "fixed";
        return known != nullptr && known->field->kind == FieldKind::number ? "number" : "text";
    }

    /// A cell's style, where it is not its column's.
    Markup& open_cell(std::string_view style, std::string_view of_column = {}) {
        markup_.open("table:table-cell");
        return style == of_column ? markup_ : markup_.attribute("table:style-name", style);
    }

    void write_row(const TableRow& row) {
        const auto place = sheet_ == nullptr ? std::nullopt : sheet_->row_of(row.cell(id_place()));
        ++line_;
        markup_.open("table:table-row");
        for (std::size_t column = 0; column < table_.columns.size(); ++column) {
            const std::string_view text = row.cell(column);
            if (place) {
                open_known_cell(column, *place);
            } else {
                markup_.open("table:table-cell");
            }
            if (text.empty()) {
                markup_.end();
                continue;
            }
            if (styles_[column] == "number" && is_number(text)) {
                markup_.attribute("office:value-type", "float").attribute("office:value", text);
                markup_.leaf("text:p", text);
            } else {
                markup_.attribute("office:value-type", "string");
                write_text(markup_, text);
            }
            markup_.close();
        }
        markup_.close().raw("\n");
    }

    void open_known_cell(std::size_t column, int row) {
        const SheetColumn* known = fields_[column];
        const CellPlace cell{table_.sheet, column, line_};
        const auto place = known == nullptr ? std::nullopt : known->place(row);
        if (!place) {
            open_cell("fixed", styles_[column]).attribute("table:content-validation-name", rules_.read_only(cell));
        } else {
            markup_.open("table:table-cell")
                .attribute("table:content-validation-name", rules_.for_field(*known->field, *place, cell));
        }
    }

    std::size_t id_place() const {
        const auto id = std::ranges::find(table_.columns, id_column, &TableColumn::name);
        return static_cast<std::size_t>(id - table_.columns.begin());
    }

    Markup& markup_;
    Validations& rules_;
    const Table& table_;
    const Sheet* sheet_;
    std::vector<const SheetColumn*> fields_;  ///< By column; nullptr for an unknown one.
    std::vector<std::string_view> styles_;    ///< By column: that of its cells, but for those that a row lacks.
    int line_ = 1;                            ///< Of the workbook.
};

}  // namespace

std::string letters_of(std::size_t column) {
    std::string letters;
    for (++column; column > 0; column = (column - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return letters;
}

int width_of(const Table& table, std::size_t column) {
    constexpr std::size_t button = 3;  // the filter's, in the heading
    std::size_t characters = characters_of(table.columns[column].name) + button;
    for (const TableRow& row : table.rows) characters = std::max(characters, characters_of(row.cell(column)));
    return std::clamp(6 + 2 * static_cast<int>(characters), 14, 60);
}

void write_sheet(Markup& markup, Validations& rules, const Table& table) {
    SheetWriter(markup, rules, table).write();
}

}  // namespace kalco::ctl::fods
