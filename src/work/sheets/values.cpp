#include "work/sheets/values.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/codec/utf8.h"
#include "disc/links.h"
#include "disc/player_codes.h"
#include "work/sheets/ids.h"
#include "work/sheets/revision.h"
#include "work/sheets/texts.h"

namespace kalco {
namespace {

constexpr char stored_mark = '#';

/// A number of at most 9 decimal digits; none for any other text.
std::optional<int> whole_number(std::string_view text) {
    constexpr std::size_t most_digits = 9;
    if (text.empty() || text.size() > most_digits) return std::nullopt;
    if (text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

constexpr int most_stored(BitRange bits) {
    return (1 << bits.width) - 1;
}

std::string cell_of_number(const Field& field, unsigned stored) {
    const int shown = static_cast<int>(stored) + field.base;
    return shown < field.lowest || shown > field.highest ? stored_mark + std::to_string(stored) : std::to_string(shown);
}

std::string cell_of_choice(const Field& field, unsigned stored) {
    const auto place = static_cast<std::size_t>(static_cast<int>(stored) - field.base);
    return place < field.choices.size() ? utf8_of_latin1(field.choices[place]) : stored_mark + std::to_string(stored);
}

std::string cell_of_link(std::string_view code) {
    const auto place = player_of({static_cast<std::uint8_t>(code[0]), static_cast<std::uint8_t>(code[1])});
    return place ? player_id(*place) : hash_form(code);
}

CellReading right(FieldValue value) {
    return {std::move(value), {}};
}

CellReading wrong(std::string mistake) {
    return {{}, std::move(mistake)};
}

/// `#` and the stored number, which numbers and choices take.
CellReading read_stored(BitRange bits, std::string_view cell) {
    const auto stored = whole_number(cell.substr(1));
    if (!stored) return wrong("# is not followed by a stored number");
    if (*stored > most_stored(bits)) return wrong("out of range: # 0 to " + std::to_string(most_stored(bits)));
    return right(static_cast<unsigned>(*stored));
}

CellReading read_number(const Field& field, BitRange bits, std::string_view cell) {
    if (cell.front() == stored_mark) return read_stored(bits, cell);
    const int highest = std::min(field.highest, field.base + most_stored(bits));
    const std::string range = std::to_string(field.lowest) + " to " + std::to_string(highest);
    const auto number = whole_number(cell);
    if (!number) return wrong("not a whole number, " + range);
    if (*number < field.lowest || *number > highest) return wrong("out of range: " + range);
    return right(static_cast<unsigned>(*number - field.base));
}

CellReading read_choice(const Field& field, BitRange bits, std::string_view cell) {
    if (cell.front() == stored_mark) return read_stored(bits, cell);
    const auto text = latin1_of_utf8(cell);
    const auto found = text ? std::find(field.choices.begin(), field.choices.end(), *text) : field.choices.end();
    if (found == field.choices.end()) return wrong("not in the list of values");
    return right(static_cast<unsigned>(found - field.choices.begin() + field.base));
}

CellReading read_text(const Field& field, const Pieces& bytes, std::string_view cell) {
    TextReading reading =
        field.kind == FieldKind::wide_text ? wide_text_of_cell(cell, bytes.bytes()) : text_of_cell(cell, bytes.bytes());
    return {std::move(reading.bytes), std::move(reading.mistake)};
}

CellReading read_link(std::string_view cell) {
    if (const auto place = player_of_id(cell)) {
        const PlayerCode code = code_of(*place).value();
        return right(std::string{static_cast<char>(code.team), static_cast<char>(code.number)});
    }
    const auto bytes = bytes_of_hash_form(cell);
    if (bytes && bytes->size() == link_bytes) return right(*bytes);
    return wrong("neither a player's id nor # and four hexadecimal digits");
}

}  // namespace

FieldValue stored_value(const DiscBytes& disc, const SheetColumn& column, int row) {
    const auto place = column.place(row);
    return place ? stored_value(disc, *column.field, *place) : FieldValue();
}

FieldValue stored_value(const DiscBytes& disc, const Field& field, const FieldPlace& place) {
    if (place.bits.width > 0) return disc.bits(place.bytes, place.bits);
    std::string bytes = disc.read(place.bytes);
    if (field.kind != FieldKind::link) bytes.resize(until_zero(bytes).size());
    return bytes;
}

void store_value(DiscBytes& disc, const SheetColumn& column, int row, const FieldValue& value) {
    const auto place = column.place(row);
    if (!place) return;
    if (const auto* number = std::get_if<unsigned>(&value)) disc.set_bits(place->bytes, place->bits, *number);
    if (const auto* bytes = std::get_if<std::string>(&value)) disc.write(place->bytes, *bytes);
}

std::string cell_of(const SheetColumn& column, const FieldValue& value) {
    const Field& field = *column.field;
    if (const auto* number = std::get_if<unsigned>(&value)) {
        return field.kind == FieldKind::choice ? cell_of_choice(field, *number) : cell_of_number(field, *number);
    }
    const auto* bytes = std::get_if<std::string>(&value);
    if (bytes == nullptr) return {};
    if (field.kind == FieldKind::link) return cell_of_link(*bytes);
    return field.kind == FieldKind::wide_text ? cell_of_wide_text(*bytes) : cell_of_text(*bytes);
}

std::string cell_at(const DiscBytes& disc, const SheetColumn& column, int row) {
    switch (column.field->kind) {
        case FieldKind::team: return team_id(team_of(place_of_row(row)));
        case FieldKind::revision: return revision(disc, row);
        default: return cell_of(column, stored_value(disc, column, row));
    }
}

CellReading read_cell(const SheetColumn& column, const FieldPlace& place, std::string_view cell) {
    const Field& field = *column.field;
    switch (field.kind) {
        case FieldKind::number: return read_number(field, place.bits, cell);
        case FieldKind::choice: return read_choice(field, place.bits, cell);
        case FieldKind::link: return read_link(cell);
        default: return read_text(field, place.bytes, cell);
    }
}

}  // namespace kalco
