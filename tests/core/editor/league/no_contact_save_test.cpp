#include "editor/league/no_contact.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "core/editor/league/league_run.h"
#include "disc/player_codes.h"
#include "support/disc_tables.h"
#include "support/team_files.h"

namespace kalco {
namespace {

using namespace league_tests;
using test::letter_code;
using test::player_name;
using test::player_record;
using test::same_image;

constexpr int source_team = 12;

/// A file with the records of the source team under other names.
std::string file_with(const Texts& names, const std::string& long_name, const std::string& short_name) {
    std::string text = test::head_of_team_file(long_name, short_name);
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += 'p' + std::to_string(i + 1) + '=' +
                test::text_of_words(player_record(source_team, static_cast<int>(i))) + names[i] + "\r\n";
    }
    return text;
}

Texts names_of_source(int players) {
    Texts names;
    for (int i = 0; i < players; ++i) names.push_back(player_name(source_team, i));
    return names;
}

/// The image with the names and records of the file over the rows. A name takes ten bytes, zeroes behind it.
std::string with_players(std::string image, const std::vector<int>& rows, const Texts& names) {
    for (std::size_t pick = 0; pick < rows.size(); ++pick) {
        const std::string name = pick < names.size() ? names[pick] : "";
        image = with_pool_name(image, rows[pick], test::padded_name(name));
        if (pick >= names.size()) continue;
        image = with_pool_record(image, rows[pick], player_record(source_team, static_cast<int>(pick)));
    }
    return image;
}

/// A run in which the club, 23 picks and the file wait for the save.
class SaveRun : public LeagueRun {
public:
    SaveRun(int club, const std::string& file, const std::vector<int>& rows = odd_picks()) {
        pick(form.cboSqNC, club);
        pick_players(rows);
        import(form.cmdImpNC, file);
        told();
    }
    void save() {
        click(form.cmdSaveNC);
        EXPECT_EQ(told(), Texts{saved});
    }
};

/// What a renaming from the long name "Abcdefghijkl" leaves.
Renaming long_renaming(int club) {
    const auto letters = static_cast<std::size_t>(printed_club(club).full_width_bytes / 2);
    const std::size_t shown = shown_club_name(club).size();
    return {"abc", letters < shown ? 2 * shown : 0, letter_code(std::string("Abcdefghijkl").substr(0, letters)),
            "Abcdefghijkl"};
}

class SaveOverPool : public ::testing::TestWithParam<int> {};

TEST_P(SaveOverPool, WritesPlayersNamesAndLinksAndNothingElse) {
    const int club = GetParam();
    SaveRun run(club, file_with(names_of_source(23), "Abcdefghijkl", "abc"));
    run.save();
    std::string expected = with_players(test::filled_image(), odd_picks(), names_of_source(23));
    expected = renamed(expected, club, long_renaming(club));
    expected = with_links(expected, club, joined_codes(odd_picks()));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
    EXPECT_EQ(run.disc.flushes, 1);
    EXPECT_TRUE(run.form.image.is_open());
}

INSTANTIATE_TEST_SUITE_P(Clubs, SaveOverPool, ::testing::Values(0, 6, 7, 24, 31));

TEST(NoContactSave, LinksAstonVillaInTwoPieces) {
    SaveRun run(6, test::team_file(source_team, 23));
    run.save();
    const std::string links = bytes_of(joined_codes(odd_picks()));
    EXPECT_EQ(run.disc.at(2013005, 28), links.substr(0, 28));
    EXPECT_EQ(run.disc.at(2013337, 18), links.substr(28));
    EXPECT_EQ(run.disc.at(2013033, 304), test::bytes_at(test::filled_image(), 2013033, 304));
}

TEST(NoContactSave, WritesTheSplitRecordsInTheirWidths) {
    SaveRun run(0, test::team_file(source_team, 23));
    run.save();
    EXPECT_EQ(run.disc.at(2205889, 8), player_record(source_team, 2).substr(0, 8));
    EXPECT_EQ(run.disc.at(2206201, 4), player_record(source_team, 2).substr(8));
    EXPECT_EQ(run.disc.at(2208245, 4), player_record(source_team, 3).substr(0, 4));
    EXPECT_EQ(run.disc.at(2208553, 8), player_record(source_team, 3).substr(4));
}

struct SplitName {
    std::string name;
    std::string first;
    std::string second;

    friend void PrintTo(const SplitName& split, std::ostream* out) { *out << '"' << split.name << '"'; }
};
class NameOfTwoPieces : public ::testing::TestWithParam<SplitName> {};

TEST_P(NameOfTwoPieces, GoesWholeOverTheSectorEnd) {
    Texts names = names_of_source(23);
    names[22] = GetParam().name;
    SaveRun run(0, file_with(names, "Abcde", "abc"));
    ASSERT_EQ(run.form.ListAppIDX.item(22), "408");
    run.save();
    EXPECT_EQ(run.disc.at(2010673, 8), GetParam().first);
    EXPECT_EQ(run.disc.at(2010985, 2), GetParam().second);
    EXPECT_EQ(run.disc.at(2010681, 304), test::bytes_at(test::filled_image(), 2010681, 304));
    EXPECT_EQ(run.disc.at(2010987, 1), names[14].substr(0, 1)) << "row 409, the pick at place 14";
}

INSTANTIATE_TEST_SUITE_P(Names, NameOfTwoPieces,
                         ::testing::Values(SplitName{"Abcdefghij", "Abcdefgh", "ij"},
                                           SplitName{"Abcdefghi", "Abcdefgh", std::string("i\0", 2)},
                                           SplitName{"Abcdefgh", "Abcdefgh", std::string(2, '\0')},
                                           SplitName{"Abc", std::string("Abc\0\0\0\0\0", 8), std::string(2, '\0')},
                                           SplitName{"", std::string(8, '\0'), std::string(2, '\0')},
                                           SplitName{"  Abcdefgh", "  Abcdef", "gh"},
                                           SplitName{" Abcd  ", std::string(" Abcd  \0", 8), std::string(2, '\0')}));

TEST(NoContactSave, TrimsTheOtherNames) {
    Texts names = names_of_source(23);
    names[1] = "  Ab c  ";
    SaveRun run(0, file_with(names, "Abcde", "abc"));
    run.save();
    EXPECT_EQ(run.disc.at(2006389, 10), test::padded_name("Ab c"));
    EXPECT_EQ(run.form.listNC.item(10), "Ab c *");
}

TEST(NoContactSave, OfAShortRosterZeroesTheMissingNamesAndKeepsTheirRecords) {
    // Row 408 is the last pick, rows 148 and 319 come before the missing ones.
    SaveRun run(24, file_with(names_of_source(11), "Abcdefghijkl", "abc"));
    run.save();
    std::string expected = with_players(test::filled_image(), odd_picks(), names_of_source(11));
    expected = renamed(expected, 24, long_renaming(24));
    expected = with_links(expected, 24, joined_codes(odd_picks()));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

TEST(NoContactSave, OfALongRosterTakesTheFirstPlayers) {
    SaveRun run(24, file_with(names_of_source(23), "Abcdefghijkl", "abc") + "p24=1,2,3,Twentyfour\r\n");
    run.save();
    std::string expected = with_players(test::filled_image(), odd_picks(), names_of_source(23));
    expected = renamed(expected, 24, long_renaming(24));
    expected = with_links(expected, 24, joined_codes(odd_picks()));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

TEST(NoContactSave, AfterAPickWasTakenBackWritesTheOthersAndTheFormerLinks) {
    SaveRun run(24, file_with(names_of_source(23), "Abcdefghijkl", "abc"));
    run.double_click(run.form.listAppNameNC, 2);
    run.save();
    std::vector<int> rest = odd_picks();
    rest.erase(rest.begin() + 2);
    std::string expected = with_players(test::filled_image(), rest, names_of_source(23));
    expected = renamed(expected, 24, long_renaming(24));
    expected = with_links(expected, 24, joined_codes(odd_picks()));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

TEST(NoContactSave, WithoutAClubDoesNothing) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.form.cboSqNC.set_text({});
    run.click(run.form.cmdSaveNC);
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(run.log.empty());
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
    EXPECT_EQ(run.disc.flushes, 0);
    EXPECT_EQ(run.form.listAppNameNC.count(), 23);
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_TRUE(run.form.cmdSaveNC.enabled());
}

TEST(NoContactSave, AfterACancelledDialogTakesTheListsOfTheFirstTab) {
    LeagueRun run;
    run.select_tab(tab::players);
    run.choose_team(source_team);
    run.select_tab(tab::league);
    run.pick(run.form.cboSqNC, 24);
    run.pick_players(odd_picks());
    run.platform.choices.emplace_back();
    run.click(run.form.cmdImpNC);
    run.told();
    run.click(run.form.cmdSaveNC);
    EXPECT_EQ(run.told(), Texts{saved});
    std::string expected = with_players(test::filled_image(), odd_picks(), names_of_source(23));
    expected = renamed(expected, 24, {"GER", 0, letter_code("Germ"), "GERMA"});
    expected = with_links(expected, 24, joined_codes(odd_picks()));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

TEST(NoContactSave, AfterTheFirstTabWasEmptiedClearsThePickedNames) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.select_tab(tab::players);
    run.click(run.form.cmdNew);
    run.select_tab(tab::league);
    run.pick(run.form.cboSqNC, 6);
    run.save();
    std::string expected = with_players(test::filled_image(), odd_picks(), {});
    expected = renamed(expected, 6, {"", 2 * shown_club_name(6).size(), "", ""});
    EXPECT_TRUE(same_image(run.disc.bytes, expected)) << "without codes the links stay";
}

TEST(NoContactSave, EndsWithTheClubAndWithoutPicks) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.form.lblPos.set_caption("9");
    run.save();
    EXPECT_EQ(run.form.cboSqNC.row(), 24);
    EXPECT_EQ(run.form.cboSqNC.text(), "Roma");
    EXPECT_EQ(run.form.lblNameML.caption(), "Nuov");
    for (const ListBox* list : {&run.form.listAppNameNC, &run.form.listAppNC, &run.form.ListAppIDX, &run.form.listDat,
                                &run.form.listApp, &run.form.listAppIMP, &run.form.ListFile}) {
        EXPECT_EQ(list->count(), 0) << list->name();
    }
    EXPECT_EQ(run.form.lblNumGioc.caption(), "0");
    EXPECT_EQ(run.form.lblPos.caption(), "1");
    EXPECT_EQ(run.form.Text7.text(), "");
    EXPECT_EQ(run.form.txtSqHEX.text(), "");
    EXPECT_EQ(run.form.txtEta.text(), "15");
    EXPECT_EQ(run.form.ImportPending, 1);
    for (const Control* control :
         std::initializer_list<const Control*>{&run.form.listNC, &run.form.cmdImpNC, &run.form.cmdSaveNC}) {
        EXPECT_FALSE(control->enabled()) << control->name();
    }
    EXPECT_EQ(run.form.listNC.count(), 462);
    EXPECT_EQ(run.form.listNC.row(), -1);
    EXPECT_EQ(run.NAME_NO_CONTACT, 0) << "the routine itself, not the slot of the other folders";
    EXPECT_EQ(run.CONTR_NAME_NC, 0);
}

TEST(NoContactSave, MarksTheRowsThatItChanged) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.save();
    const std::vector<int>& rows = odd_picks();
    for (int row = 0; row < 462; ++row) {
        const auto pick = std::find(rows.begin(), rows.end(), row);
        const std::string expected = pick == rows.end()
                                         ? player_name(95, row)
                                         : player_name(source_team, static_cast<int>(pick - rows.begin())) + " *";
        EXPECT_EQ(run.form.listNC.item(row), expected) << row;
        EXPECT_EQ(run.form.ListAppOrigName.item(row), player_name(95, row)) << row;
    }
    run.select_tab(tab::players);
    run.choose_team(63 + 24);
    ASSERT_EQ(run.form.listDat.count(), 23);
    for (int i = 0; i < 23; ++i) EXPECT_EQ(run.form.listDat.item(i), player_name(source_team, i) + " *");
}

TEST(NoContactSave, LeavesARowUnmarkedThatKeptItsName) {
    Texts names = names_of_source(23);
    names[4] = player_name(95, odd_picks()[4]);
    names[5].clear();
    SaveRun run(24, file_with(names, "Abcde", "abc"));
    run.save();
    EXPECT_EQ(run.form.listNC.item(odd_picks()[4]), names[4]);
    EXPECT_EQ(run.form.listNC.item(odd_picks()[5]), " *");
}

TEST(NoContactSave, MarksDefaultRowsLikeAllOthers) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.disc.bytes = with_pool_name(run.disc.bytes, 3, "Altered   ");
    run.save();
    EXPECT_EQ(run.form.listNC.item(3), "Altered *");
}

TEST(NoContactSave, MarksTheTrimmedText) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.disc.bytes = with_pool_name(run.disc.bytes, 6, std::string(" Ab \0 cd  ", 10));
    run.save();
    EXPECT_EQ(run.form.listNC.item(6), "Ab *");
}

TEST(NoContactSave, MarksOncePerRowAlsoAtTheNextSave) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.save();
    run.pick(run.form.cboSqNC, 25);
    run.pick_players(odd_picks());
    EXPECT_EQ(run.form.listAppNameNC.item(0), player_name(source_team, 0) + " *");
    run.import(run.form.cmdImpNC, test::team_file(13, 23));
    run.told();
    run.save();
    EXPECT_EQ(run.form.listNC.item(0), player_name(13, 0) + " *");
    EXPECT_EQ(run.form.listNC.item(408), player_name(13, 22) + " *");
}

TEST(NoContactSave, KeepsTheMarkUntilTheImageIsOpenedAnew) {
    SaveRun run(24, test::team_file(source_team, 23));
    run.save();
    run.select_tab(tab::players);
    run.select_tab(tab::league);
    EXPECT_EQ(run.form.listNC.item(0), player_name(source_team, 0) + " *");
    run.platform.choices.emplace_back("again.bin");
    run.click(run.form.cmdOpen);
    EXPECT_EQ(run.form.listNC.item(0), player_name(source_team, 0));
    EXPECT_EQ(run.form.ListAppOrigName.item(0), player_name(source_team, 0));
}

TEST(NoContactSave, ThatCannotBeWrittenIsNoSuccess) {
    const auto prepare = [](test::EditorRun& run) {
        user::select_tab(run.form, tab::league);
        user::pick(run.form, run.form.cboSqNC, 6);
        for (const int row : odd_picks()) user::double_click(run.form, run.form.listNC, row);
        run.import(run.form.cmdImpNC, test::team_file(source_team, 23));
        run.told();
    };
    const auto save = [](test::EditorRun& run) { user::click(run.form, run.form.cmdSaveNC); };
    test::expect_every_failing_write_to_stop(prepare, save, 88);
}

}  // namespace
}  // namespace kalco
