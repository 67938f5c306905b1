#include "work/find.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <tuple>
#include <utility>

#include "disc/codec/decimal.h"
#include "disc/codec/latin1.h"
#include "disc/codec/utf8.h"
#include "work/sheets/sheets.h"
#include "work/sheets/values.h"

namespace kalco {
namespace {

/// What the letters from U+00C0 and from U+0100 on are without case and accent; a blank for those that are no letter
/// with an accent.
constexpr std::string_view latin1_letters = "aaaaaa ceeeeiiii nooooo  uuuuy  "
                                            "aaaaaa ceeeeiiii nooooo  uuuuy y";
constexpr std::string_view further_letters = "aaaaaaccccccccdd  eeeeeeeeeegggggggghh  iiiiiiiii   jjkk llllll "
                                             "   nnnnnn   oooooo  rrrrrrsssssssstttt  uuuuuuuuuuuuwwyyyzzzzzz ";

constexpr char32_t first_latin1_letter = 0xC0;
constexpr char32_t first_further_letter = 0x100;
constexpr char32_t sharp_s = 0xDF;

char letter_in(std::string_view letters, char32_t first, char32_t character) {
    const auto place = static_cast<std::size_t>(character - first);
    return character >= first && place < letters.size() ? letters[place] : ' ';
}

/// The accents that stand behind their letter.
bool is_accent(char32_t character) {
    return character >= 0x300 && character <= 0x36F;
}

/// A letter without capital, accent or fold of its own.
std::string small(std::string_view character) {
    const auto latin1 = latin1_of_utf8(character);
    return latin1 ? utf8_of_latin1(lower(*latin1)) : std::string(character);
}

/// What `--sort` goes by: the class of the cell, then its number or text.
struct SortKey {
    enum class Class : std::uint8_t { number, outside, text, missing };
    Class kind = Class::text;
    std::int64_t number = 0;
    std::string text;

    friend bool operator<(const SortKey& a, const SortKey& b) {
        return std::tie(a.kind, a.number, a.text) < std::tie(b.kind, b.number, b.text);
    }
};

SortKey key_of(const SheetColumn* column, std::string cell) {
    if (column == nullptr || column->field->kind != FieldKind::number)
        return {SortKey::Class::text, 0, std::move(cell)};
    if (cell.empty()) return {SortKey::Class::missing, 0, {}};
    if (cell.front() == '#') return {SortKey::Class::outside, number_of(std::string_view(cell).substr(1)), {}};
    return {SortKey::Class::number, number_of(cell), {}};
}

class Search {
public:
    explicit Search(const DiscBytes& disc) : disc_(disc), sheet_(*sheet_named(players_sheet)) {}

    std::vector<int> rows(const FindOptions& options) const {
        const SheetColumn* sort = options.sort.empty() ? nullptr : field_named(sheet_, options.sort);
        std::vector<int> rows(static_cast<std::size_t>(sheet_.rows));
        std::iota(rows.begin(), rows.end(), 0);
        if (!options.where.empty()) {
            const Expression where = parse_expression(sheet_, options.where);
            std::erase_if(rows, [&](int row) {
                return !where.fits([&](const SheetColumn* column) { return cell(column, row); });
            });
        }
        if (!options.text.empty()) keep_named(rows, folded(options.text));
        if (!options.sort.empty()) sort_by(sort, rows);
        return rows;
    }

private:
    std::string cell(const SheetColumn* column, int row) const {
        return column == nullptr ? sheet_.id(row) : cell_at(disc_, *column, row);
    }

    void keep_named(std::vector<int>& rows, const std::string& part) const {
        const SheetColumn& name = *sheet_.column_named("name");
        std::erase_if(rows, [&](int row) {
            const FieldValue value = stored_value(disc_, name, row);
            return folded(utf8_of_latin1(std::get<std::string>(value))).find(part) == std::string::npos;
        });
    }

    void sort_by(const SheetColumn* column, std::vector<int>& rows) const {
        std::vector<std::pair<SortKey, int>> keyed;
        keyed.reserve(rows.size());
        for (const int row : rows) keyed.emplace_back(key_of(column, cell(column, row)), row);
        std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const auto& each) { return each.second; });
    }

    const DiscBytes& disc_;
    const Sheet& sheet_;
};

}  // namespace

std::string folded(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Utf8Step step = first_character(text);
        const std::size_t bytes = std::max<std::size_t>(step.bytes, 1);
        const char latin1 = letter_in(latin1_letters, first_latin1_letter, step.character);
        const char further = letter_in(further_letters, first_further_letter, step.character);
        if (step.character == sharp_s) {
            result += "ss";
        } else if (latin1 != ' ' || further != ' ') {
            result += latin1 != ' ' ? latin1 : further;
        } else if (step.bytes == 0 || !is_accent(step.character)) {
            result += small(text.substr(0, bytes));
        }
        text.remove_prefix(bytes);
    }
    return result;
}

std::vector<int> find_players(const DiscBytes& disc, const FindOptions& options) {
    return Search(disc).rows(options);
}

}  // namespace kalco
