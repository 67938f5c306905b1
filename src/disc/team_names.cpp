#include "disc/team_names.h"

#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"

namespace kalco {
namespace {

enum NameTable { t1, t2, t3, t4, t5, t6 };

constexpr Team last_nation{nation_count - 1};
constexpr Team last_club_team{default_list.value() - 1};

/// A run of entries that lie below each other without a gap, one for each team.
struct NameBlock {
    NameTable table = t1;
    Team first_team;
    Team last_team;
    ImagePos first_position = 0;
};

constexpr std::array<NameBlock, 10> name_blocks{{
    {t1, Team(0), last_club_team, 2830941},
    {t2, Team(0), last_nation, 4824021},
    {t3, Team(0), last_nation, 5652905},
    {t5, Team(0), last_nation, 1882897},
    {t6, Team(0), last_nation, 1013937},
    {t2, first_club_team, last_club_team, 4823181},
    {t3, first_club_team, last_club_team, 5652025},
    {t4, first_club_team, last_club_team, 2004329},
    {t5, first_club_team, last_club_team, 1882285},
    {t6, first_club_team, last_club_team, 1012973},
}};

/// Entries whose slot is wider than their length and terminator.
struct WideSlot {
    NameTable table = t1;
    Team team;
    int bytes = 0;
};
constexpr std::array<WideSlot, 3> wide_slots{{{t2, Team(80), 8}, {t6, Team(35), 16}, {t6, Team(52), 16}}};

/// What the lookup gives as the position of the split T2 entry. No routine reads or writes there.
constexpr ImagePos split_t2_position = 9647646;

constexpr const TeamFacts& facts_of(Team team) {
    return team_facts[team.place()];
}

constexpr int length_of(Team team, NameTable table) {
    return facts_of(team).name_lengths[static_cast<std::size_t>(table)];
}

constexpr int slot_bytes(Team team, NameTable table) {
    for (const WideSlot& wide : wide_slots) {
        if (wide.table == table && wide.team == team) return wide.bytes;
    }
    return length_of(team, table) + 1;
}

using PositionTable = std::array<std::array<ImagePos, name_table_count>, Team::count>;

constexpr PositionTable make_positions() {
    PositionTable positions{};
    for (const NameBlock& block : name_blocks) {
        UserOffset offset = user_offset_of(block.first_position);
        for (Team team = block.first_team; team <= block.last_team; ++team) {
            if (team > block.first_team) offset -= slot_bytes(team, block.table);
            positions[team.place()][block.table] = position_of(offset);
        }
    }
    positions[split_t2_team.place()][t2] = split_t2_position;
    return positions;
}

constexpr PositionTable name_positions = make_positions();

std::optional<Pieces> field_of(const std::optional<NameEntry>& entry) {
    if (!entry) return std::nullopt;
    return Piece{entry->position, entry->length};
}

}  // namespace

std::optional<Pieces> name_field(Team team, NamePlace place) {
    if (!team.exists()) return std::nullopt;
    switch (place) {
        case NamePlace::short_name: return Piece{short_name_position(team), short_name_bytes};
        case NamePlace::full_width:
            if (team == split_full_width_team) return split_full_width_name;
            return field_of(Off_Name_HEX(team));
        default: break;
    }
    if (place == NamePlace::t2 && team == split_t2_team) return split_t2_name;
    const auto table = static_cast<std::size_t>(place) - static_cast<std::size_t>(NamePlace::t1);
    return field_of(Call_Name(team)[table]);
}

std::string read_name_bytes(const Image& image, Team team, NamePlace place) {
    const auto field = name_field(team, place);
    return field ? image.read(*field) : std::string();
}

std::string read_table_name(const Image& image, Team team) {
    return std::string(until_zero(read_name_bytes(image, team, NamePlace::t1)));
}

std::string read_full_width_name(const Image& image, Team team) {
    return decode_letters(read_name_bytes(image, team, NamePlace::full_width));
}

int full_width_letters(Team team) {
    const auto field = name_field(team, NamePlace::full_width);
    if (!field) return 0;
    const int half = field->bytes() / 2;
    return field->bytes() % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

NameEntries Call_Name(Team team) {
    NameEntries entries;
    if (!team.exists()) return entries;
    for (std::size_t table = 0; table < entries.size(); ++table) {
        const int length = length_of(team, static_cast<NameTable>(table));
        if (length > 0) entries[table] = NameEntry{name_positions[team.place()][table], length};
    }
    return entries;
}

std::array<NameEntry, name_table_count> Call_Name_ML(Club club) {
    std::array<NameEntry, name_table_count> copies{};
    if (!club.exists()) return copies;
    const NameEntries entries = Call_Name(team_of(club));
    for (std::size_t copy = 0; copy < copies.size(); ++copy) copies[copy] = *entries[copy];
    return copies;
}

std::optional<NameEntry> Off_Name_HEX(Team team) {
    if (!team.exists() || facts_of(team).full_width_bytes == 0) return std::nullopt;
    return NameEntry{facts_of(team).full_width_position, facts_of(team).full_width_bytes};
}

std::optional<NameEntry> Off_NameII(TeamRow row) {
    return row.exists() ? Off_Name_HEX(team_of(row)) : std::nullopt;
}

void Off_Name_ML(Club club, ImagePos& position, int& length) {
    if (!club.exists()) return;
    const auto entry = Off_Name_HEX(team_of(club));
    position = entry->position;
    length = entry->length;
}

}  // namespace kalco
