#include "work/csv.h"

#include <algorithm>
#include <array>
#include <utility>

#include "disc/codec/utf8.h"

namespace kalco {
namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr char quote = '"';
constexpr char guard = '\'';
constexpr std::string_view row_end = "\r\n";
constexpr std::string_view usual_separators = ",;\t|";

/// True for a text that begins like a formula behind all its apostrophes.
bool would_run(std::string_view text) {
    const auto first = text.find_first_not_of(guard);
    return first != std::string_view::npos && std::string_view("=+-@\t\r").find(text[first]) != std::string_view::npos;
}

void append_cell(std::string& csv, std::string_view text, char separator) {
    const std::string cell = guarded(text);
    const bool plain = cell.find(separator) == std::string::npos && cell.find_first_of("\"\r\n") == std::string::npos;
    if (plain) {
        csv += cell;
        return;
    }
    csv += quote;
    for (const char character : cell) csv.append(character == quote ? 2 : 1, character);
    csv += quote;
}

/// The separator of a header: the most frequent usual one outside quotes, else the first sign that could be one.
char separator_of(std::string_view text) {
    std::array<std::size_t, usual_separators.size()> counts{};
    char other = usual_separators[0];
    bool other_found = false;
    bool quoted = false;
    for (const char character : text) {
        if (character == quote) quoted = !quoted;
        if (quoted) continue;
        if (row_end.find(character) != std::string_view::npos) break;
        const auto usual = usual_separators.find(character);
        if (usual != std::string_view::npos) {
            ++counts[usual];
        } else if (!other_found && is_csv_separator(character)) {
            other = character;
            other_found = true;
        }
    }
    const auto* const most = std::max_element(counts.begin(), counts.end());
    return *most > 0 ? usual_separators[static_cast<std::size_t>(most - counts.begin())] : other;
}

/// Takes a text apart, cell by cell.
class CsvReader {
public:
    CsvReader(std::string_view text, char separator) : rest_(text), separator_(separator) {}

    bool done() const { return rest_.empty(); }
    int row() const { return row_; }

    /// The cells of the next row.
    std::vector<std::string> next_row() {
        ++row_;
        std::vector<std::string> cells;
        do {
            if (cells.size() == most_table_cells) refuse();
            cells.emplace_back(next_cell());
        } while (take(separator_));
        if (!done() && !take('\n') && take('\r')) take('\n');
        return cells;
    }
    /// Counts the cells of a row that stays; empty rows cost nothing.
    void keep(const std::vector<std::string>& cells) {
        cells_ += cells.size();
        if (cells_ > most_table_cells) refuse();
    }

private:
    [[noreturn]] void refuse() const { throw TableError(row_, {}, "too many cells"); }
    bool at_end_of_cell() const {
        return done() || rest_.front() == separator_ || row_end.find(rest_.front()) != std::string_view::npos;
    }

    bool take(char character) {
        if (done() || rest_.front() != character) return false;
        rest_.remove_prefix(1);
        return true;
    }

    std::string next_cell() {
        if (take(quote)) return std::string(unguarded(quoted_cell()));
        std::size_t length = 0;
        while (length < rest_.size() && rest_[length] != separator_ && rest_[length] != '\r' && rest_[length] != '\n') {
            ++length;
        }
        const std::string_view cell = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return std::string(unguarded(cell));
    }

    std::string quoted_cell() {
        std::string cell;
        for (;;) {
            const auto end = rest_.find(quote);
            if (end == std::string_view::npos) throw TableError(row_, {}, "a quote is never closed");
            cell += rest_.substr(0, end);
            rest_.remove_prefix(end + 1);
            if (!take(quote)) break;
            cell += quote;
        }
        if (!at_end_of_cell()) throw TableError(row_, {}, "text behind a closing quote");
        return cell;
    }

    std::string_view rest_;
    char separator_;
    int row_ = 0;
    std::size_t cells_ = 0;  ///< Of the rows that are kept.
};

bool is_empty(const std::vector<std::string>& cells) {
    return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return cell.empty(); });
}

/// The row that a byte lies in, near enough for a complaint: line ends in quotes count too.
int row_at(std::string_view text, std::size_t place) {
    const std::string_view before = text.substr(0, place);
    return static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1;
}

}  // namespace

bool is_csv_separator(char character) {
    return std::string_view("\t,;|:!$%&*/?\\^`~").find(character) != std::string_view::npos;
}

std::string guarded(std::string_view text) {
    return would_run(text) ? guard + std::string(text) : std::string(text);
}

std::string_view unguarded(std::string_view cell) {
    const bool is_guarded = !cell.empty() && cell.front() == guard && would_run(cell);
    return is_guarded ? cell.substr(1) : cell;
}

std::string csv_of_table(const Table& table, CsvForm form) {
    std::string csv(form.bom ? byte_order_mark : std::string_view());
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        if (column > 0) csv += form.separator;
        append_cell(csv, table.columns[column].name, form.separator);
    }
    csv += row_end;
    for (const TableRow& row : table.rows) {
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            if (column > 0) csv += form.separator;
            append_cell(csv, row.cell(column), form.separator);
        }
        csv += row_end;
    }
    return csv;
}

Table table_of_csv(std::string_view text) {
    if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    if (const auto broken = broken_utf8(text)) throw TableError(row_at(text, *broken), {}, "not UTF-8");
    Table table;
    CsvReader reader(text, separator_of(text));
    if (reader.done()) return table;
    for (std::string& name : reader.next_row()) table.columns.push_back({std::move(name)});
    while (!reader.done()) {
        std::vector<std::string> cells = reader.next_row();
        if (is_empty(cells)) continue;
        reader.keep(cells);
        table.rows.push_back({reader.row(), std::move(cells)});
    }
    return table;
}

}  // namespace kalco
