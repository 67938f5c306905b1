#pragma once

#include <span>
#include <string>

#include "disc/image/image.h"
#include "disc/indexes.h"
#include "disc/roster.h"

/// The players of an imported team, written whole over a roster or over rows of the pool, changed or not.
namespace kalco {

/// The lists of the import: the names, and the records as entries of hexadecimal digits. They may be shorter than what
/// is written: a missing name clears its field, a missing entry leaves its record alone.
struct ImportedPlayers {
    std::span<const std::string> names;
    std::span<const std::string> entries;
};

/// Where an import puts a record. For one team the split of record 21 comes one entry late: record 21 goes whole over
/// the sector's end, and record 22 over its head and to the second piece, so that its own slot is never written.
Pieces imported_record_field(RosterPlace place);

/// Over the roster of a team 0..62. The 24th player's record goes to the slot behind the roster.
void write_imported_team(Image& image, Team team, const ImportedPlayers& players);

/// Over the default team's rows of the pool.
void write_imported_default_team(Image& image, const ImportedPlayers& players);

/// Over any rows of the pool, one player each. The name that crosses a sector end goes as it stands, with its blanks.
void write_imported_pool_rows(Image& image, std::span<const PoolRow> rows, const ImportedPlayers& players);

}  // namespace kalco
