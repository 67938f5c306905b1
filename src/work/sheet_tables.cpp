#include "work/sheet_tables.h"

#include <utility>

namespace kalco {
namespace {

constexpr int first_table_row = 2;

}  // namespace

std::vector<TableColumn> columns_of(const Sheet& sheet) {
    std::vector<TableColumn> columns{{std::string(id_column)}};
    for (const SheetColumn& column : sheet.columns) columns.push_back({column.name});
    return columns;
}

TableRow row_of_sheet(const Sheet& sheet, const DiscBytes& disc, int row) {
    TableRow cells{first_table_row + row, {sheet.id(row)}};
    cells.cells.reserve(sheet.columns.size() + 1);
    for (const SheetColumn& column : sheet.columns) cells.cells.push_back(cell_at(disc, column, row));
    return cells;
}

Table table_of(const Sheet& sheet, const DiscBytes& disc) {
    Table table{std::string(sheet.name), columns_of(sheet), {}};
    table.rows.reserve(static_cast<std::size_t>(sheet.rows));
    for (int row = 0; row < sheet.rows; ++row) table.rows.push_back(row_of_sheet(sheet, disc, row));
    return table;
}

Table table_of(const Sheet& sheet, std::span<const FieldChange> changes) {
    Table table{std::string(sheet.name), {{std::string(id_column)}}, {}};
    std::vector<std::size_t> places;  // by column of the sheet
    for (const SheetColumn& column : sheet.columns) {
        places.push_back(table.columns.size());
        if (!column.field->read_only()) table.columns.push_back({column.name});
    }
    int last_row = -1;
    for (const FieldChange& change : changes) {
        if (change.row != last_row) {
            const int number = first_table_row + static_cast<int>(table.rows.size());
            table.rows.push_back({number, std::vector<std::string>(table.columns.size())});
            table.rows.back().cells[0] = change.id();
            last_row = change.row;
        }
        std::string cell = change.new_cell();
        if (cell.empty()) cell = empty_text_cell;
        table.rows.back().cells[places[static_cast<std::size_t>(change.column - sheet.columns.data())]] =
            std::move(cell);
    }
    return table;
}

}  // namespace kalco
