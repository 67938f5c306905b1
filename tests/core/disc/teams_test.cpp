#include "disc/teams.h"

#include <gtest/gtest.h>

#include "disc/runtime_error.h"
#include "support/disc_tables.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

using test::printed_teams;

const test::PrintedTeam& printed(int team) {
    return printed_teams[static_cast<std::size_t>(team)];
}

std::int64_t table_entry_position(int team, std::size_t table) {
    const auto entry = Call_Name(team)[table];
    return entry ? entry->position : 0;
}

TEST(Catalogue, HoldsThePrintedRows) {
    for (int team = 0; team < team_count; ++team) {
        const TeamFacts& facts = team_facts[static_cast<std::size_t>(team)];
        EXPECT_EQ(facts.row, printed(team).row);
        EXPECT_EQ(facts.full_width_position, printed(team).full_width_position) << facts.row;
        EXPECT_EQ(facts.full_width_bytes, printed(team).full_width_bytes) << facts.row;
        EXPECT_EQ(facts.name_lengths, printed(team).lengths) << facts.row;
    }
}

TEST(Catalogue, GivesTheFullWidthEntriesByTeam) {
    for (int team = 0; team < team_count; ++team) {
        const auto entry = Off_Name_HEX(team);
        if (team == 4 || team == 95) {
            EXPECT_FALSE(entry) << team;
            continue;
        }
        ASSERT_TRUE(entry) << team;
        EXPECT_EQ(*entry, (NameEntry{printed(team).full_width_position, printed(team).full_width_bytes}));
    }
    for (const int team : {-1, 96, 1000}) EXPECT_FALSE(Off_Name_HEX(team)) << team;
}

TEST(Catalogue, GivesTheFullWidthEntriesByRow) {
    for (int row = 0; row < 87; ++row) {
        const int team = row <= 53 ? row : row + 9;
        EXPECT_EQ(team_of_row(row), team);
        EXPECT_EQ(Off_NameII(row), Off_Name_HEX(team)) << row;
    }
    EXPECT_EQ(Off_NameII(54), (NameEntry{2002769, 10}));
    EXPECT_EQ(Off_NameII(85), (NameEntry{2002317, 10}));
    for (const int row : {4, 86, -1, 87}) EXPECT_FALSE(Off_NameII(row)) << row;
}

TEST(Catalogue, PutsThePiecesOfTheSplitFullWidthName) {
    EXPECT_EQ(split_full_width_team, 4);
    EXPECT_EQ(split_full_width_name, (Pieces{{2003621, 4}, {2003929, 6}}));
    EXPECT_EQ(field_from(2003621, 10), split_full_width_name);
}

TEST(Catalogue, StartsTheBlocksOfTheNameTables) {
    constexpr std::array<std::int64_t, 6> nations{2830941, 4824021, 5652905, 0, 1882897, 1013937};
    for (std::size_t table = 0; table < 6; ++table) EXPECT_EQ(table_entry_position(0, table), nations[table]);
    constexpr std::array<std::int64_t, 5> clubs{4823181, 5652025, 2004329, 1882285, 1012973};
    for (std::size_t table = 1; table < 6; ++table) EXPECT_EQ(table_entry_position(63, table), clubs[table - 1]);
}

TEST(Catalogue, GivesTheKnownEntries) {
    const NameEntries scotland = Call_Name(1);
    EXPECT_EQ(scotland[0], (NameEntry{2830933, 7}));
    EXPECT_EQ(scotland[1], (NameEntry{4824009, 11}));
    EXPECT_EQ(scotland[2], (NameEntry{5652893, 11}));
    EXPECT_FALSE(scotland[3]);
    EXPECT_EQ(scotland[4], (NameEntry{1882885, 11}));
    EXPECT_EQ(scotland[5], (NameEntry{1013925, 11}));
    const NameEntries club = Call_Name(79);
    EXPECT_EQ(club[0], (NameEntry{2830281, 11}));
    EXPECT_EQ(club[1], (NameEntry{4823037, 11}));
    EXPECT_EQ(club[2], (NameEntry{5651881, 11}));
    EXPECT_EQ(club[3], (NameEntry{2004149, 15}));
    EXPECT_EQ(club[4], (NameEntry{1882117, 11}));
    EXPECT_EQ(club[5], (NameEntry{1012793, 15}));
    EXPECT_EQ(table_entry_position(80, 2), 5651569);
    EXPECT_EQ(table_entry_position(6, 1), 4823661);
}

TEST(Catalogue, WalksDownEveryBlock) {
    for (int team = 0; team < 95; ++team) {
        for (int table = 0; table < 6; ++table) {
            const auto column = static_cast<std::size_t>(table);
            const auto entry = Call_Name(team)[column];
            const int length = printed(team).lengths[column];
            ASSERT_EQ(entry.has_value(), length > 0) << team << " T" << table + 1;
            if (!entry) continue;
            EXPECT_EQ(entry->length, length);
            if (team == 5 && table == 1) continue;
            EXPECT_EQ(entry->position, test::table_position(team, table)) << team << " T" << table + 1;
        }
    }
}

TEST(Catalogue, LeavesTheWideSlotsOpen) {
    EXPECT_EQ(Call_Name(80)[1]->length, 3);
    EXPECT_EQ(table_entry_position(79, 1) - table_entry_position(80, 1), 8);
    EXPECT_EQ(table_entry_position(80, 1) - table_entry_position(81, 1), 4);
    for (const int team : {35, 52}) {
        EXPECT_EQ(Call_Name(team)[5]->length, 11);
        EXPECT_EQ(table_entry_position(team - 1, 5) - table_entry_position(team, 5), 16) << team;
    }
}

TEST(Catalogue, GivesNoPlaceForTheSplitT2Entry) {
    EXPECT_EQ(Call_Name(5)[1], (NameEntry{9647646, 7}));
    EXPECT_EQ(split_t2_team, 5);
    EXPECT_EQ(split_t2_name, (Pieces{{4823669, 4}, {4823977, 3}}));
    EXPECT_EQ(test::table_position(5, 1), 4823669);
}

TEST(Catalogue, HasNoOtherEntryOverASectorEnd) {
    for (int team = 0; team < team_count; ++team) {
        const NameEntries entries = Call_Name(team);
        for (std::size_t table = 0; table < 6; ++table) {
            if (!entries[table] || (team == 5 && table == 1)) continue;
            EXPECT_FALSE(field_from(entries[table]->position, entries[table]->length).split()) << team;
        }
        if (const auto entry = Off_Name_HEX(team)) {
            EXPECT_FALSE(field_from(entry->position, entry->length).split());
        }
        EXPECT_FALSE(field_from(short_name_position(team), 4).split());
    }
}

TEST(Catalogue, KnowsWhichClassHasWhichTables) {
    const auto tables = [](int team) {
        std::string text;
        const NameEntries entries = Call_Name(team);
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

TEST(Catalogue, PutsTheShortNamesInFallingPositions) {
    EXPECT_EQ(short_name_position(0), 2005373);
    EXPECT_EQ(short_name_position(1), 2005369);
    EXPECT_EQ(short_name_position(95), 2004993);
}

TEST(Catalogue, ListsTheRows) {
    const auto all = all_team_rows();
    ASSERT_EQ(all.size(), 96U);
    for (std::size_t team = 0; team < all.size(); ++team) EXPECT_EQ(all[team], printed_teams[team].row);
    const auto shorter = short_team_rows();
    ASSERT_EQ(shorter.size(), 87U);
    for (std::size_t row = 0; row < 86; ++row) {
        EXPECT_EQ(shorter[row], printed_teams[row <= 53 ? row : row + 9].row) << row;
    }
    EXPECT_EQ(shorter[86], "Squadra Default ML");
    EXPECT_EQ(all[95], "Giocatori ML");
}

TEST(Catalogue, ListsTheClubs) {
    const auto clubs = club_rows();
    ASSERT_EQ(clubs.size(), 32U);
    for (std::size_t club = 0; club < clubs.size(); ++club) {
        EXPECT_EQ(clubs[club], printed_teams[63 + club].row) << club;
    }
}

TEST(Catalogue, TellsTheClassesApart) {
    for (int team = -2; team < 98; ++team) {
        EXPECT_EQ(is_nation(team), team >= 0 && team <= 53) << team;
        EXPECT_EQ(is_club(team), team >= 63 && team <= 94) << team;
        EXPECT_EQ(is_club_row(team), team >= 54 && team <= 85) << team;
    }
}

class NamesInAnImage : public ::testing::Test {
protected:
    NamesInAnImage() : image_(test::opener_of(disc_)) {
        disc_.bytes.assign(2100000, 'x');
        disc_.bytes.resize(2900000, 'y');
        image_.open("disc.bin");
    }

    test::Disc disc_;
    Image image_;
};

TEST_F(NamesInAnImage, ReadsTheFirstTableUpToItsLength) {
    disc_.put(2830941, "ABCDEFGHIJ");
    EXPECT_EQ(read_table_name(image_, 0), "ABCDEFG");
    disc_.put(2830941, std::string("AB\0DEFG", 7));
    EXPECT_EQ(read_table_name(image_, 0), "AB");
    disc_.put(2830941, test::zeroes(7));
    EXPECT_EQ(read_table_name(image_, 0), "");
    EXPECT_EQ(read_table_name(image_, 95), "");
    EXPECT_EQ(read_table_name(image_, 96), "");
}

TEST_F(NamesInAnImage, DecodesTheSplitNameInOneWalkByRow) {
    // The single blank stands over the seam: in one walk it is doubled and the letters behind it stay on the grid.
    disc_.put(2003621, test::letter_code("A ") + "\x82");
    disc_.put(2003929, "\x61" + test::letter_code("CD") + test::zeroes(1));
    EXPECT_EQ(read_full_width_name_of_row(image_, 4), "A BCD ");
}

TEST_F(NamesInAnImage, DecodesFullWidthNamesByRow) {
    disc_.put(2003981, test::letter_code("Eire") + test::zeroes(6));
    EXPECT_EQ(read_full_width_name_of_row(image_, 0), "Eire   ");
    disc_.put(2002317, test::letter_code("Boca") + test::zeroes(2));
    EXPECT_EQ(read_full_width_name_of_row(image_, 85), "Boca ");
    EXPECT_EQ(read_full_width_name_of_row(image_, 86), "");
    EXPECT_EQ(read_full_width_name_of_row(image_, -1), "");
    disc_.put(2003981, " ");
    EXPECT_THROW(read_full_width_name_of_row(image_, 0), RuntimeError);
}

}  // namespace
}  // namespace kalco
