#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Tables of texts: what every file format is read into and written from. They know neither the disc nor a format.
namespace kalco {

/// A column: its name, and where a complaint about that name points.
struct TableColumn {
    std::string name;
    int row = 1;  ///< The header's row; in a file without a header the row where the name stands first.
};

/// A row. Cells stand by column; those behind the last one are missing, which is the same as empty ones.
struct TableRow {
    int number = 0;  ///< As the spreadsheet counts, 1 for the first row of the file; rows may be left out.
    std::vector<std::string> cells;

    /// UTF-8, "" for a missing cell.
    std::string_view cell(std::size_t column) const {
        return column < cells.size() ? std::string_view(cells[column]) : std::string_view();
    }
};

/// One sheet. The header is no row of it. An empty cell says nothing about its field: what empties a text is
/// `empty_text_cell`.
struct Table {
    std::string sheet;  ///< "" when the file does not tell.
    std::vector<TableColumn> columns;
    std::vector<TableRow> rows;
};

/// A file's sheets in their order.
using Tables = std::vector<Table>;

/// More than any file of sheets has; the readers refuse a file with more, which would take memory for nothing.
inline constexpr std::size_t most_table_cells = 1'000'000;

/// The content of a cell that empties a text: two quote characters.
inline constexpr std::string_view empty_text_cell = "\"\"";

/// A mistake at a place of a file: row as in TableRow, column by its name ("" when it is none's).
struct TableMistake {
    int row = 0;
    std::string column;
    std::string what;

    friend bool operator==(const TableMistake&, const TableMistake&) = default;
};

/// A file that is no table at all; the readers of the formats throw it.
class TableError : public std::runtime_error {
public:
    explicit TableError(TableMistake mistake) : std::runtime_error(mistake.what), mistake_(std::move(mistake)) {}
    TableError(int row, std::string column, std::string what)
        : TableError(TableMistake{row, std::move(column), std::move(what)}) {}

    const TableMistake& mistake() const { return mistake_; }

private:
    TableMistake mistake_;
};

}  // namespace kalco
