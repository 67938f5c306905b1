#include "disc/team_import.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/codec/hextext.h"
#include "disc/players.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/outcome.h"
#include "support/random_image.h"

namespace kalco {
namespace {

using test::put;

class TeamImport : public ::testing::Test {
protected:
    TeamImport() : disc_{.bytes = test::random_image(23)}, image_(test::opener_of(disc_)) { image_.open("disc.bin"); }

    /// New players, their names with blanks around them.
    void invent(std::size_t count) {
        names_.clear();
        records_.clear();
        entries_.clear();
        for (std::size_t i = 0; i < count; ++i) {
            std::string name = "N" + std::to_string(random_() % 1000000);
            records_.push_back(test::random_bytes(random_, 12));
            entries_.push_back(hex_line(records_.back()));
            names_.push_back(name);
        }
    }
    ImportedPlayers players() const { return {names_, entries_}; }

    std::mt19937 random_{23};
    std::vector<std::string> names_, records_, entries_;
    test::Disc disc_;
    Image image_;
};

TEST_F(TeamImport, PutsRecordsIntoTheirSlotsButForOneTeam) {
    for (Team team(0); has_roster(team); ++team) {
        for (int player = 0; player <= roster_players; ++player) {
            if (team == Team(1) && (player == 21 || player == 22)) continue;
            EXPECT_EQ(imported_record_field({team, player}), roster_record_field({team, player})) << team.value();
        }
    }
    EXPECT_EQ(imported_record_field({Team(1), 21}), (Piece{roster_record_field({Team(1), 21}).position(), 12}));
    EXPECT_EQ(imported_record_field({Team(1), 22}), roster_record_field({Team(1), 21}));
    EXPECT_TRUE(roster_record_field({Team(1), 21}).split());
}

TEST_F(TeamImport, WritesEveryRosterAndNothingElse) {
    for (Team team(0); has_roster(team); ++team) {
        for (const std::size_t count : {std::size_t{23}, std::size_t{24}}) {
            invent(count);
            std::string expected = disc_.bytes;
            for (int i = 0; i < 23; ++i) {
                const auto place = static_cast<std::size_t>(i);
                put(expected, roster_name_field({team, i}), test::padded_name(names_[place]));
            }
            for (int i = 0; i < static_cast<int>(count); ++i) {
                put(expected, imported_record_field({team, i}), records_[static_cast<std::size_t>(i)]);
            }
            write_imported_team(image_, team, players());
            image_.commit();
            EXPECT_TRUE(test::same_image(disc_.bytes, expected)) << team.value() << ", " << count;
        }
    }
}

TEST_F(TeamImport, ClearsMissingNamesAndKeepsMissingRecords) {
    invent(2);
    std::string expected = disc_.bytes;
    for (int i = 0; i < 23; ++i) {
        const std::string name = i < 2 ? names_[static_cast<std::size_t>(i)] : std::string();
        put(expected, roster_name_field({Team(40), i}), test::padded_name(name));
    }
    for (int i = 0; i < 2; ++i)
        put(expected, roster_record_field({Team(40), i}), records_[static_cast<std::size_t>(i)]);
    write_imported_team(image_, Team(40), players());
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST_F(TeamImport, WritesTheDefaultTeamOverItsRowsOfThePool) {
    invent(30);
    std::string expected = disc_.bytes;
    for (std::size_t i = 0; i < 23; ++i) {
        put(expected, pool_name_field(DefaultSlots[i]), test::padded_name(names_[i]));
        put(expected, pool_record_field(DefaultSlots[i]), records_[i]);
    }
    write_imported_default_team(image_, players());
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST_F(TeamImport, WritesAnyRowsOfThePool) {
    const std::vector<PoolRow> rows{PoolRow(461), PoolRow(0), PoolRow(148), PoolRow(319), PoolRow(408)};
    invent(rows.size());
    std::string expected = disc_.bytes;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        put(expected, pool_name_field(rows[i]), test::padded_name(names_[i]));
        put(expected, pool_record_field(rows[i]), records_[i]);
    }
    write_imported_pool_rows(image_, rows, players());
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST_F(TeamImport, TrimsEveryNameOfThePoolButTheSplitOne) {
    names_ = {" Ab C   ", " Ab C   "};
    const std::vector<PoolRow> rows{PoolRow(407), PoolRow(408)};
    std::string expected = disc_.bytes;
    put(expected, pool_name_field(rows[0]), test::padded_name("Ab C"));
    put(expected, pool_name_field(rows[1]), test::padded_name(" Ab C   "));
    write_imported_pool_rows(image_, rows, players());
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

}  // namespace
}  // namespace kalco
