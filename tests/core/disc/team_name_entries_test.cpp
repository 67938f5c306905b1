#include <gtest/gtest.h>

#include "disc/team_names.h"
#include "support/club_tables.h"
#include "support/disc_tables.h"

namespace kalco {
namespace {

using test::printed_team;

std::int64_t table_entry_position(int team, std::size_t table) {
    const auto entry = Call_Name(Team(team))[table];
    return entry ? entry->position : 0;
}

TEST(NameCatalogue, GivesTheFullWidthEntriesByTeam) {
    for (int team = 0; team < 96; ++team) {
        const auto entry = Off_Name_HEX(Team(team));
        if (team == 4 || team == 95) {
            EXPECT_FALSE(entry) << team;
            continue;
        }
        ASSERT_TRUE(entry) << team;
        EXPECT_EQ(*entry, (NameEntry{printed_team(team).full_width_position, printed_team(team).full_width_bytes}));
    }
    for (const int team : {-1, 96, 1000}) EXPECT_FALSE(Off_Name_HEX(Team(team))) << team;
}

TEST(NameCatalogue, GivesTheFullWidthEntriesByRow) {
    for (int row = 0; row < 87; ++row) {
        const int team = row <= 53 ? row : row + 9;
        EXPECT_EQ(Off_NameII(TeamRow(row)), Off_Name_HEX(Team(team))) << row;
    }
    EXPECT_EQ(Off_NameII(TeamRow(54)), (NameEntry{2002769, 10}));
    EXPECT_EQ(Off_NameII(TeamRow(85)), (NameEntry{2002317, 10}));
    for (const int row : {4, 86, -1, 87}) EXPECT_FALSE(Off_NameII(TeamRow(row))) << row;
}

TEST(NameCatalogue, PutsThePiecesOfTheSplitFullWidthName) {
    EXPECT_EQ(split_full_width_team, Team(4));
    EXPECT_EQ(split_full_width_name, (Pieces{{2003621, 4}, {2003929, 6}}));
    EXPECT_EQ(field_from(2003621, 10), split_full_width_name);
}

TEST(NameCatalogue, StartsTheBlocksOfTheNameTables) {
    constexpr std::array<std::int64_t, 6> nations{2830941, 4824021, 5652905, 0, 1882897, 1013937};
    for (std::size_t table = 0; table < 6; ++table) EXPECT_EQ(table_entry_position(0, table), nations[table]);
    constexpr std::array<std::int64_t, 5> clubs{4823181, 5652025, 2004329, 1882285, 1012973};
    for (std::size_t table = 1; table < 6; ++table) EXPECT_EQ(table_entry_position(63, table), clubs[table - 1]);
}

TEST(NameCatalogue, GivesTheKnownEntries) {
    const NameEntries scotland = Call_Name(Team(1));
    EXPECT_EQ(scotland[0], (NameEntry{2830933, 7}));
    EXPECT_EQ(scotland[1], (NameEntry{4824009, 11}));
    EXPECT_EQ(scotland[2], (NameEntry{5652893, 11}));
    EXPECT_FALSE(scotland[3]);
    EXPECT_EQ(scotland[4], (NameEntry{1882885, 11}));
    EXPECT_EQ(scotland[5], (NameEntry{1013925, 11}));
    const NameEntries club = Call_Name(Team(79));
    EXPECT_EQ(club[0], (NameEntry{2830281, 11}));
    EXPECT_EQ(club[1], (NameEntry{4823037, 11}));
    EXPECT_EQ(club[2], (NameEntry{5651881, 11}));
    EXPECT_EQ(club[3], (NameEntry{2004149, 15}));
    EXPECT_EQ(club[4], (NameEntry{1882117, 11}));
    EXPECT_EQ(club[5], (NameEntry{1012793, 15}));
    EXPECT_EQ(table_entry_position(80, 2), 5651569);
    EXPECT_EQ(table_entry_position(6, 1), 4823661);
}

TEST(NameCatalogue, WalksDownEveryBlock) {
    for (int team = 0; team < 95; ++team) {
        for (int table = 0; table < 6; ++table) {
            const auto column = static_cast<std::size_t>(table);
            const auto entry = Call_Name(Team(team))[column];
            const int length = printed_team(team).lengths[column];
            ASSERT_EQ(entry.has_value(), length > 0) << team << " T" << table + 1;
            if (!entry) continue;
            EXPECT_EQ(entry->length, length);
            if (team == 5 && table == 1) continue;
            EXPECT_EQ(entry->position, test::table_position(team, table)) << team << " T" << table + 1;
        }
    }
}

TEST(NameCatalogue, LeavesTheWideSlotsOpen) {
    EXPECT_EQ(Call_Name(Team(80))[1]->length, 3);
    EXPECT_EQ(table_entry_position(79, 1) - table_entry_position(80, 1), 8);
    EXPECT_EQ(table_entry_position(80, 1) - table_entry_position(81, 1), 4);
    for (const int team : {35, 52}) {
        EXPECT_EQ(Call_Name(Team(team))[5]->length, 11);
        EXPECT_EQ(table_entry_position(team - 1, 5) - table_entry_position(team, 5), 16) << team;
    }
}

TEST(NameCatalogue, GivesNoPlaceForTheSplitT2Entry) {
    EXPECT_EQ(Call_Name(Team(5))[1], (NameEntry{9647646, 7}));
    EXPECT_EQ(split_t2_team, Team(5));
    EXPECT_EQ(split_t2_name, (Pieces{{4823669, 4}, {4823977, 3}}));
    EXPECT_EQ(test::table_position(5, 1), 4823669);
}

TEST(NameCatalogue, HasNoOtherEntryOverASectorEnd) {
    for (int team = 0; team < 96; ++team) {
        const NameEntries entries = Call_Name(Team(team));
        for (std::size_t table = 0; table < 6; ++table) {
            if (!entries[table] || (team == 5 && table == 1)) continue;
            EXPECT_FALSE(field_from(entries[table]->position, entries[table]->length).split()) << team;
        }
        if (const auto entry = Off_Name_HEX(Team(team))) {
            EXPECT_FALSE(field_from(entry->position, entry->length).split());
        }
        EXPECT_FALSE(field_from(short_name_position(Team(team)), 4).split());
    }
}

TEST(NameCatalogue, KnowsWhichClassHasWhichTables) {
    const auto tables = [](int team) {
        std::string text;
        const NameEntries entries = Call_Name(Team(team));
        for (std::size_t table = 0; table < 6; ++table) {
            if (entries[table]) text += static_cast<char>('1' + table);
        }
        return text;
    };
    for (int team = 0; team <= 53; ++team) EXPECT_EQ(tables(team), "12356") << team;
    for (int team = 54; team <= 62; ++team) EXPECT_EQ(tables(team), "1") << team;
    for (int team = 63; team <= 94; ++team) EXPECT_EQ(tables(team), "123456") << team;
    for (const int team : {-1, 95, 96}) EXPECT_EQ(tables(team), "") << team;
}

TEST(NameCatalogue, PutsTheShortNamesInFallingPositions) {
    EXPECT_EQ(short_name_position(Team(0)), 2005373);
    EXPECT_EQ(short_name_position(Team(1)), 2005369);
    EXPECT_EQ(short_name_position(Team(95)), 2004993);
}

TEST(ClubNames, LieWhereTheTablePrintsThem) {
    for (int club = 0; club < 32; ++club) {
        const test::PrintedClub& printed = test::printed_club(club);
        ImagePos position = 0;
        int length = 0;
        Off_Name_ML(Club(club), position, length);
        EXPECT_EQ(position, printed.full_width_position) << printed.row;
        EXPECT_EQ(length, printed.full_width_bytes) << printed.row;
        EXPECT_EQ(short_name_position(team_of(Club(club))), printed.short_position) << printed.row;
        const auto copies = Call_Name_ML(Club(club));
        const test::PrintedCopies& places = test::printed_copies[static_cast<std::size_t>(club)];
        for (std::size_t copy = 0; copy < copies.size(); ++copy) {
            EXPECT_EQ(copies[copy], (NameEntry{places[copy].position, places[copy].capacity}))
                << printed.row << ", copy " << copy + 1;
        }
    }
}

TEST(ClubNames, OfNoClubLeaveTheResultsAsTheyWere) {
    for (const int club : {-1, 32, 63, 1000}) {
        ImagePos position = 12;
        int length = 34;
        Off_Name_ML(Club(club), position, length);
        EXPECT_EQ(position, 12) << club;
        EXPECT_EQ(length, 34) << club;
        for (const NameEntry& copy : Call_Name_ML(Club(club))) EXPECT_EQ(copy, NameEntry{}) << club;
    }
}

}  // namespace
}  // namespace kalco
