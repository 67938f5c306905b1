#include "disc/teams.h"

#include <algorithm>

#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"

namespace kalco {
namespace {

enum Table { t1, t2, t3, t4, t5, t6 };

/// A run of entries that lie below each other without a gap, one for each team.
struct NameBlock {
    Table table;
    int first_team;
    int last_team;
    ImagePos first_position;
};

constexpr std::array<NameBlock, 10> name_blocks{{
    {t1, 0, last_club, 2830941},
    {t2, 0, nation_count - 1, 4824021},
    {t3, 0, nation_count - 1, 5652905},
    {t5, 0, nation_count - 1, 1882897},
    {t6, 0, nation_count - 1, 1013937},
    {t2, first_club, last_club, 4823181},
    {t3, first_club, last_club, 5652025},
    {t4, first_club, last_club, 2004329},
    {t5, first_club, last_club, 1882285},
    {t6, first_club, last_club, 1012973},
}};

/// Entries whose slot is wider than their length and terminator.
struct WideSlot {
    Table table;
    int team;
    int bytes;
};
constexpr std::array<WideSlot, 3> wide_slots{{{t2, 80, 8}, {t6, 35, 16}, {t6, 52, 16}}};

/// What the lookup gives as the position of the split T2 entry. No routine reads or writes there.
constexpr ImagePos split_t2_position = 9647646;

constexpr int length_of(int team, Table table) {
    return team_facts[static_cast<std::size_t>(team)].name_lengths[static_cast<std::size_t>(table)];
}

constexpr int slot_bytes(int team, Table table) {
    for (const WideSlot& wide : wide_slots) {
        if (wide.table == table && wide.team == team) return wide.bytes;
    }
    return length_of(team, table) + 1;
}

using PositionTable = std::array<std::array<ImagePos, name_table_count>, team_count>;

constexpr PositionTable make_positions() {
    PositionTable positions{};
    for (const NameBlock& block : name_blocks) {
        UserOffset offset = user_offset_of(block.first_position);
        for (int team = block.first_team; team <= block.last_team; ++team) {
            if (team > block.first_team) offset -= slot_bytes(team, block.table);
            positions[static_cast<std::size_t>(team)][block.table] = position_of(offset);
        }
    }
    positions[split_t2_team][t2] = split_t2_position;
    return positions;
}

constexpr PositionTable name_positions = make_positions();

constexpr bool has_facts(int team) {
    return team >= 0 && team < team_count;
}

}  // namespace

NameEntries Call_Name(int team) {
    NameEntries entries;
    if (!has_facts(team)) return entries;
    for (std::size_t table = 0; table < entries.size(); ++table) {
        const int length = length_of(team, static_cast<Table>(table));
        if (length > 0) entries[table] = NameEntry{name_positions[static_cast<std::size_t>(team)][table], length};
    }
    return entries;
}

std::optional<NameEntry> Off_Name_HEX(int team) {
    if (!has_facts(team)) return std::nullopt;
    const TeamFacts& facts = team_facts[static_cast<std::size_t>(team)];
    if (facts.full_width_bytes == 0) return std::nullopt;
    return NameEntry{facts.full_width_position, facts.full_width_bytes};
}

std::optional<NameEntry> Off_NameII(int row) {
    return row < 0 ? std::nullopt : Off_Name_HEX(team_of_row(row));
}

std::string read_table_name(const Image& image, int team) {
    const auto entry = Call_Name(team)[t1];
    if (!entry) return {};
    return std::string(until_zero(image.read(entry->position, entry->length)));
}

std::string read_full_width_name_of_row(const Image& image, int row) {
    if (row == split_full_width_team) return decode_letters(image.read(split_full_width_name));
    const auto entry = Off_NameII(row);
    return entry ? decode_letters(image.read(entry->position, entry->length)) : std::string();
}

std::vector<std::string> all_team_rows() {
    std::vector<std::string> rows(team_facts.size());
    std::transform(team_facts.begin(), team_facts.end(), rows.begin(),
                   [](const TeamFacts& facts) { return std::string(facts.row); });
    return rows;
}

std::vector<std::string> short_team_rows() {
    std::vector<std::string> rows = all_team_rows();
    rows.erase(rows.begin() + first_club_row, rows.begin() + first_club);
    rows[default_row] = default_team_name;
    return rows;
}

std::vector<std::string> club_rows() {
    const std::vector<std::string> rows = all_team_rows();
    return {rows.begin() + first_club, rows.begin() + first_club + club_count};
}

}  // namespace kalco
