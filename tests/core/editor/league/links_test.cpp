#include "editor/league/links.h"

#include <gtest/gtest.h>

#include "core/editor/league/league_run.h"
#include "disc/codec/latin1.h"
#include "disc/player_codes.h"
#include "support/disc_tables.h"

namespace kalco {
namespace {

using namespace league_tests;
using test::letter_code;
using test::player_name;
using test::same_image;

const std::string pattern =
    "XX00XX01XX02XX03XX04XX05XX06XX07XX08XX09XX0AXX0BXX0CXX0DXX0EXX0FXX10XX11XX12XX13XX14XX15XX16";

std::string links_for(const std::string& team) {
    std::string digits = pattern;
    for (std::size_t place = 0; place < digits.size(); place += 4) digits.replace(place, 2, team);
    return digits;
}

TEST(RosterNames, AreAllThoseOfTheTableAndTenBytesMore) {
    LeagueRun run;
    const ListBox& names = run.form.listNameGiocNaz;
    ASSERT_EQ(names.count(), 1450);
    for (int row = 0; row < 1449; ++row) EXPECT_EQ(names.item(row), player_name(row / 23, row % 23)) << row;
    run.disc.put(404715, "  BEHIND  ");
    NAMES_GIOC_NAZ(run.form);
    ASSERT_EQ(names.count(), 1450);
    EXPECT_EQ(names.item(1449), "BEHIND");
    EXPECT_EQ(run.form.listHexLinkNames.count(), 1449);
}

TEST(RosterNames, CrossSectorEndsInTwoPieces) {
    LeagueRun run;
    for (const test::PrintedSplit& split : test::printed_name_splits) {
        const std::string name = " Ab  ef h ";
        const auto first = static_cast<std::size_t>(split.first_bytes);
        run.disc.put(split.first, name.substr(0, first));
        run.disc.put(split.second, name.substr(first));
    }
    NAMES_GIOC_NAZ(run.form);
    for (const test::PrintedSplit& split : test::printed_name_splits) {
        EXPECT_EQ(run.form.listNameGiocNaz.item(23 * split.team + split.player), "Ab  ef h") << split.team;
    }
}

TEST(RosterNames, AreTrimmedAndEndAtAZeroByte) {
    LeagueRun run;
    run.disc.put(388107, "  Ab c    ");
    run.disc.put(388117, std::string(" Ab \0 cd  ", 10));
    run.disc.put(388127, std::string("\0Abcdefghi", 10));
    run.disc.put(388137, "          ");
    NAMES_GIOC_NAZ(run.form);
    EXPECT_EQ(run.form.listNameGiocNaz.item(1), "Ab c");
    EXPECT_EQ(run.form.listNameGiocNaz.item(2), "Ab ");
    EXPECT_EQ(run.form.listNameGiocNaz.item(3), "");
    EXPECT_EQ(run.form.listNameGiocNaz.item(4), "");
}

TEST(LinkTab, HoldsTheFixedCodesFromTheStart) {
    LeagueRun run;
    EXPECT_EQ(run.form.listHexNC.items(), pool_codes());
    EXPECT_EQ(run.form.listHexLinkNames.items(), roster_codes());
}

TEST(LinkTab, ListsTheTeamsWithPlayersWhileItIsOpen) {
    LeagueRun run;
    ASSERT_EQ(run.form.listSQLink.count(), 63);
    for (int team = 0; team < 63; ++team) {
        const auto length = static_cast<std::size_t>(test::printed_teams[static_cast<std::size_t>(team)].lengths[0]);
        EXPECT_EQ(run.form.listSQLink.item(team), test::table_name(team).substr(0, length));
    }
    EXPECT_EQ(rows_of(run.form.listDefault).size(), 32U);
    for (int club = 0; club < 32; ++club) EXPECT_EQ(run.form.listDefault.item(club), printed_club(club).row);
    for (const int other : {tab::players, tab::kickers, tab::transfers, tab::formations, tab::numbers}) {
        run.select_tab(other);
        EXPECT_EQ(run.form.listSQLink.count(), 0) << other;
        run.select_tab(tab::league);
        EXPECT_EQ(run.form.listSQLink.count(), 63) << other;
    }
}

TEST(LinkTab, FillsTheNamesFromTheChosenTeam) {
    LeagueRun run;
    run.disc.put(2830941, "NORD EI");
    run.select_tab(tab::players);
    run.select_tab(tab::league);
    run.pick(run.form.listSQLink, 0);
    EXPECT_EQ(run.form.txtNmLgML.text(), "NORD EI");
    EXPECT_EQ(run.form.txtNmShML.text(), "NOR");
    run.type(run.form.txtNmLgML, "Other");
    run.type(run.form.txtNmShML, "Short");
    run.pick(run.form.listSQLink, 49);
    EXPECT_EQ(run.form.txtNmLgML.text(), "KOR");
    EXPECT_EQ(run.form.txtNmShML.text(), "KOR");
}

TEST(Link, WantsBothTeams) {
    LeagueRun run;
    const Texts asked{"Devi selezionare entrambe le squadre"};
    run.click(run.form.cmdLink);
    EXPECT_EQ(run.told(), asked);
    run.pick(run.form.listSQLink, 5);
    run.click(run.form.cmdLink);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_EQ(run.told(), asked);
    run.select_tab(tab::players);
    run.select_tab(tab::league);
    run.pick(run.form.listDefault, 5);
    run.click(run.form.cmdLink);
    EXPECT_EQ(run.told(), asked);
    EXPECT_TRUE(run.log.empty());
    EXPECT_EQ(run.disc.flushes, 0);
}

TEST(Link, WantsATeamWithAName) {
    std::string image = test::filled_image();
    test::put(image, 2830941, test::zeroes(1));
    LeagueRun run(image);
    run.pick(run.form.listDefault, 5);
    run.pick(run.form.listSQLink, 0);
    run.click(run.form.cmdLink);
    EXPECT_EQ(run.told(), Texts{"Devi selezionare entrambe le squadre"});
    EXPECT_TRUE(run.log.empty());
}

class LinkOfTeam : public ::testing::TestWithParam<std::pair<int, std::string>> {};

TEST_P(LinkOfTeam, WritesTheTablesOfOneClubAndNothingElse) {
    const auto& [team, team_digits] = GetParam();
    LeagueRun run;
    std::string expected = test::filled_image();
    for (int club = 0; club < 32; ++club) {
        run.pick(run.form.listDefault, club);
        run.pick(run.form.listSQLink, team);
        run.type(run.form.txtNmLgML, "abcdefghijklmnopqrst");
        const int flushes = run.disc.flushes;
        run.click(run.form.cmdLink);
        EXPECT_EQ(run.told(), Texts{saved});
        EXPECT_EQ(run.disc.flushes, flushes + 1);
        EXPECT_TRUE(run.form.image.is_open());
        const auto bytes = static_cast<std::size_t>(printed_club(club).full_width_bytes);
        const std::string cut = std::string("Abcdefghijklmnopqrst").substr(0, bytes / 2);
        expected = renamed(expected, club,
                           {run.form.listSQLink.text().substr(0, 3), bytes, letter_code(cut), "abcdefghijklmnopqrst"});
        expected = with_links(expected, club, links_for(team_digits));
        ASSERT_TRUE(same_image(run.disc.bytes, expected)) << club;
    }
}

TEST_P(LinkOfTeam, KeepsTheNamesWithoutAText) {
    const auto& [team, team_digits] = GetParam();
    LeagueRun run;
    std::string expected = test::filled_image();
    for (int club = 0; club < 32; ++club) {
        run.pick(run.form.listDefault, club);
        run.pick(run.form.listSQLink, team);
        if (club % 3 != 0) run.type(run.form.txtNmLgML, "");
        if (club % 3 != 1) run.type(run.form.txtNmShML, "");
        run.click(run.form.cmdLink);
        EXPECT_EQ(run.told(), Texts{saved});
        expected = with_links(expected, club, links_for(team_digits));
        ASSERT_TRUE(same_image(run.disc.bytes, expected)) << club;
    }
}

INSTANTIATE_TEST_SUITE_P(Teams, LinkOfTeam,
                         ::testing::Values(std::pair(0, std::string("00")), std::pair(54, std::string("36")),
                                           std::pair(62, std::string("3E"))));

TEST(Link, GoesOverTheSectorEndInTwoPieces) {
    LeagueRun run;
    run.pick(run.form.listDefault, 6);
    run.pick(run.form.listSQLink, 10);
    run.type(run.form.txtNmLgML, "");
    run.click(run.form.cmdLink);
    ASSERT_EQ(run.log.size(), 2U);
    EXPECT_EQ(run.log[0].position, 2013005);
    EXPECT_EQ(run.log[0].bytes.size(), 28U);
    EXPECT_EQ(run.log[1].position, 2013337);
    EXPECT_EQ(run.log[1].bytes.size(), 18U);
}

TEST(Link, WritesTheNamesInTheirOrder) {
    LeagueRun run;
    run.pick(run.form.listDefault, 31);
    run.pick(run.form.listSQLink, 10);
    run.click(run.form.cmdLink);
    std::vector<ImagePos> positions;
    for (const auto& write : run.log) positions.push_back(write.position);
    const std::vector<ImagePos> printed{2004997, 2002317, 2002317, 2002317, 2830161, 2830161, 4822909, 4822909, 5651449,
                                        5651449, 1881969, 1881969, 2003997, 2003997, 1012641, 1012641, 2014459};
    EXPECT_EQ(positions, printed);
}

TEST(Link, ShowsTheTeamAsTheClub) {
    LeagueRun run;
    for (const int club : {0, 6, 31}) {
        run.pick(run.form.listDefault, club);
        run.pick(run.form.listSQLink, 62);
        run.click(run.form.cmdLink);
        run.select_tab(tab::players);
        run.choose_team(63 + club);
        ASSERT_EQ(run.form.listDat.count(), 23);
        for (int i = 0; i < 23; ++i) EXPECT_EQ(run.form.listDat.item(i), player_name(62, i));
        run.select_tab(tab::league);
    }
}

TEST(Link, ShowsALaterEditOfThePlayerToo) {
    LeagueRun run;
    run.pick(run.form.listDefault, 4);
    run.pick(run.form.listSQLink, 12);
    run.click(run.form.cmdLink);
    run.select_tab(tab::players);
    run.choose_team(12);
    run.choose_player(7);
    run.type(run.form.txtName, "Mann");
    run.click(run.form.cmdSaveCar);
    run.choose_team(67);
    EXPECT_EQ(run.form.listDat.item(7), "Mann");
}

TEST(Link, ThatCannotBeWrittenIsNoSuccess) {
    const auto prepare = [](test::EditorRun& run) {
        user::select_tab(run.form, tab::league);
        user::pick(run.form, run.form.listDefault, 6);
        user::pick(run.form, run.form.listSQLink, 10);
    };
    const auto save = [](test::EditorRun& run) { user::click(run.form, run.form.cmdLink); };
    test::expect_every_failing_write_to_stop(prepare, save, 17);
}

}  // namespace
}  // namespace kalco
