#pragma once

#include <string>
#include <string_view>

#include "work/table.h"

/// Tables as CSV: RFC 4180, UTF-8, the first row the header.
namespace kalco {

struct CsvForm {
    char separator = ',';
    bool bom = false;
};

/// True for a character that can part cells: a tab, or an ASCII sign that neither names, values nor quoting need.
bool is_csv_separator(char character);

/// CRLF behind every row. A cell that a spreadsheet would run as a formula is guarded by an apostrophe.
std::string csv_of_table(const Table& table, CsvForm form = {});

/// BOM and separator are recognised; rows end at CRLF, LF or CR; the guard is taken off. Empty rows are dropped, but
/// counted. The table's sheet is not told. Throws TableError for a text that is no UTF-8 or whose quotes don't fit.
Table table_of_csv(std::string_view text);

/// A text with the guard that it needs, and without.
std::string guarded(std::string_view text);
std::string_view unguarded(std::string_view cell);

}  // namespace kalco
