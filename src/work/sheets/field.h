#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/position.h"
#include "work/sheets/disc_bytes.h"

/// What the sheets are made of.
namespace kalco {

enum class FieldKind {
    team,       ///< Read-only: the id of the team that the row belongs to.
    revision,   ///< Read-only: a check sum over all that is stored for the row's player.
    text,       ///< Latin-1, to the first zero byte.
    wide_text,  ///< Full-width letters, to the first zero byte.
    number,
    choice,  ///< One of a list of texts.
    link,    ///< The code of a player.
};

/// Where a field of a row is stored. A number is a range of bits; a text or a link is all bytes, its range empty.
struct FieldPlace {
    Pieces bytes;
    BitRange bits{};
};

/// One line of the table of fields: a column of a sheet, or a run of alike columns (role2 .. role11).
struct Field {
    std::string_view name;  ///< What the names of a run's columns begin with.
    FieldKind kind = FieldKind::text;
    int base = 0;  ///< What a stored 0 means.
    /// Where it is stored, by row and by place in the run; none where the row lacks it. Unset where nothing is stored.
    std::optional<FieldPlace> (*place)(int row, int item) = nullptr;
    /// The numbers that the window has. A field too narrow for all of them holds fewer.
    int lowest = 0;
    int highest = 0;
    std::span<const std::string_view> choices{};  ///< Latin-1; from `base` on, by stored value.

    /// The numbers of a run's columns; both 0 for a single column.
    int first = 0;
    int last = 0;

    constexpr bool read_only() const { return kind == FieldKind::team || kind == FieldKind::revision; }
    constexpr int columns() const { return last - first + 1; }
};

struct SheetColumn {
    std::string name;
    const Field* field = nullptr;
    int item = 0;  ///< 0-based, in the field's run.

    std::optional<FieldPlace> place(int row) const {
        return field->place == nullptr ? std::nullopt : field->place(row, item);
    }
};

/// A table of the disc. Rows are counted from 0.
struct Sheet {
    std::string_view name;
    int rows = 0;
    std::string (*id)(int row) = nullptr;
    /// The row of an id; none for any other text.
    std::optional<int> (*row_of)(std::string_view id) = nullptr;
    std::vector<SheetColumn> columns;  ///< In their order, without the id.

    /// Nullptr for an unknown name.
    const SheetColumn* column_named(std::string_view column) const;
};

/// The name of every sheet's key column.
inline constexpr std::string_view id_column = "id";

}  // namespace kalco
