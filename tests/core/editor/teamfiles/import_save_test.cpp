#include "editor/teamfiles/import_save.h"

#include <gtest/gtest.h>

#include "disc/codec/hextext.h"
#include "support/disc_tables.h"
#include "support/editor_run.h"
#include "support/team_files.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::padded_name;
using test::player_name;
using test::player_record;
using test::put;
using test::put_user_data;
using test::same_image;
using test::saved;
using test::team_file;
using test::zeroes;
using Texts = std::vector<std::string>;

/// What a whole-team save leaves of a roster, place by place.
std::string with_roster(std::string image, int team, const Texts& names, const Texts& records) {
    for (int i = 0; i < 23; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const std::string name = place < names.size() ? names[place] : std::string();
        put_user_data(image, test::position_behind(387793, 230 * team + 10 * i), padded_name(name));
    }
    for (int i = 0; i < 24 && static_cast<std::size_t>(i) < records.size(); ++i) {
        const std::string& record = records[static_cast<std::size_t>(i)];
        if (team == 31 && i >= 13) {
            put(image, 2189737 + 12 * (i - 13), record);
        } else if (team == 1 && i == 21) {
            put(image, 2180021, record);
        } else if (team == 1 && i == 22) {
            put(image, 2180021, record.substr(0, 4));
            put(image, 2180329, record.substr(4));
        } else {
            put_user_data(image, test::position_behind(2179493, 276 * team + 12 * i), record);
        }
    }
    return image;
}

/// Names and records of a team of the filled image, by the plain rule.
std::pair<Texts, Texts> roster_of(int team, int players) {
    Texts names;
    Texts records;
    for (int i = 0; i < players; ++i) {
        names.push_back(player_name(team, i));
        records.push_back(player_record(team, i));
    }
    return {names, records};
}

/// The file keeps the names of the team that it is imported over, so that only the roster changes.
std::string file_for(int team, int from, int players) {
    return team_file(from, players, test::full_width_name(team), test::short_name(team));
}

class RoundTrip : public ::testing::TestWithParam<int> {};

TEST_P(RoundTrip, LeavesTheImageAsItWas) {
    const int team = GetParam();
    EditorRun run;
    run.choose_team(team);
    run.choose_player(3);
    run.click(run.form.cmdExp);
    run.platform.choices.push_back(run.home.path("Export/" + run.form.txtSQ.text() + ".DAT"));
    run.click(run.form.cmdImp);
    run.told();
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.told(), Texts{saved});
    std::string expected = test::filled_image();
    // The file has the full-width name with the blanks that stand for its padding, and so have the tables then.
    const std::string shown = test::in_capitals(run.form.txtSQ.text());
    for (int table = 0; table < 6; ++table) {
        const int length = test::printed_teams[static_cast<std::size_t>(team)].lengths[static_cast<std::size_t>(table)];
        std::string entry = shown.substr(0, static_cast<std::size_t>(length));
        entry.resize(static_cast<std::size_t>(length), '\0');
        if (length > 0) put_user_data(expected, test::table_position(team, table), entry);
    }
    if (team == 1) {
        // Record 21 goes over the end of its sector, record 22 over its head and to its second piece.
        put(expected, 2180025, player_record(1, 21).substr(4));
        put(expected, 2180021, player_record(1, 22).substr(0, 4));
        put(expected, 2180329, player_record(1, 22).substr(4));
    }
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

class ImportOverEveryTeam : public ::testing::TestWithParam<int> {};

TEST_P(ImportOverEveryTeam, WritesTheWholeRoster) {
    const int team = GetParam();
    for (const int players : {22, 23, 24, 25}) {
        EditorRun run;
        run.choose_team(team);
        run.import(run.form.cmdImp, file_for(team, 95, players));
        run.log.clear();
        run.disc.flushes = 0;
        run.click(run.form.cmdSaveCar);
        EXPECT_EQ(run.told(), Texts{saved});
        const auto [names, records] = roster_of(95, players);
        EXPECT_TRUE(same_image(run.disc.bytes, with_roster(test::filled_image(), team, names, records))) << players;
        EXPECT_EQ(run.form.ImportPending, 0);
        EXPECT_EQ(run.disc.flushes, 1);
        EXPECT_EQ(run.form.cboSeqSQ.row(), team);
        EXPECT_EQ(run.form.listDat.row(), 0);
        EXPECT_EQ(run.form.listDat.count(), 23);
        EXPECT_EQ(run.form.listDat.item(0), player_name(95, 0));
        EXPECT_EQ(run.NAMES_GIOC_NAZ, team < 54 ? 1 : 0);
        EXPECT_EQ(run.NAME_NO_CONTACT, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Teams, RoundTrip, ::testing::Range(0, 63));
INSTANTIATE_TEST_SUITE_P(Teams, ImportOverEveryTeam, ::testing::Range(0, 63));

TEST(ImportSave, WritesNamesFirstAndThenRecords) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, file_for(10, 20, 23));
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    std::vector<std::int64_t> positions;
    for (const auto& write : run.log) positions.push_back(write.position);
    // The cost, the short name, the full-width name and five tables come first.
    ASSERT_EQ(positions.size(), 1U + 1U + 1U + 10U + 46U + 23U);
    EXPECT_EQ(positions[0], 3067405 + 230);
    EXPECT_EQ(positions[1], 2005333);
    EXPECT_EQ(positions[2], 2003549);
    EXPECT_EQ(positions[3], 2830861);
    for (std::size_t i = 0; i < 23; ++i) {
        const std::int64_t name = test::position_behind(387793, 2300 + 10 * static_cast<int>(i));
        EXPECT_EQ(positions[13 + 2 * i], name) << i;
        EXPECT_EQ(positions[14 + 2 * i], name) << i;
        EXPECT_EQ(run.log[13 + 2 * i].bytes, zeroes(10));
        const std::int64_t record = test::position_behind(2179493, 2760 + 12 * static_cast<int>(i));
        EXPECT_EQ(positions[59 + i], record) << i;
    }
}

TEST(ImportSave, PutsAPlayerBeyondTheRosterIntoTheNextSlot) {
    EditorRun run;
    run.choose_team(31);
    run.import(run.form.cmdImp, file_for(31, 95, 24));
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(2189845, 12), player_record(95, 22)) << "the neighbour's first record";
    EXPECT_EQ(run.disc.at(2189857, 12), player_record(95, 23));
    EXPECT_EQ(run.disc.at(2189421, 12), player_record(31, 13)) << "nobody's bytes";
    run.choose_team(38);
    run.import(run.form.cmdImp, file_for(38, 95, 24));
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(2191777, 8), player_record(95, 23).substr(0, 8));
    EXPECT_EQ(run.disc.at(2192089, 4), player_record(95, 23).substr(8));
}

TEST(ImportSave, PlacesTheSplitOfOneTeamOneEntryLater) {
    EditorRun run;
    run.choose_team(1);
    run.import(run.form.cmdImp, file_for(1, 95, 23));
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(2180021, 4), player_record(95, 22).substr(0, 4));
    EXPECT_EQ(run.disc.at(2180025, 8), player_record(95, 21).substr(4));
    EXPECT_EQ(run.disc.at(2180329, 8), player_record(95, 22).substr(4));
    EXPECT_EQ(run.disc.at(2180337, 12), player_record(1, 22)) << "its own slot is not changed";
    // A single save keeps to the true places.
    run.choose_team(1);
    run.choose_player(22);
    EXPECT_EQ(run.form.listApp.item(22), hex_line(player_record(1, 22)));
    EXPECT_EQ(run.form.listApp.item(21), hex_line(player_record(95, 22)));
}

TEST(ImportSave, SavesTheTeamNamesOfTheFile) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, team_file(20, 23, "Roma citta", "rom"));
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(2005333, 4), std::string("ROM\0", 4));
    // Longer than its field: the assigned text is written whole, over the neighbour.
    EXPECT_EQ(run.disc.at(2003549, 19), test::letter_code("Roma citta"));
    EXPECT_EQ(run.disc.at(2830861, 8), std::string("ROMA CI\0", 8));
    EXPECT_EQ(run.form.txtSqHEX.text().substr(0, 5), "Roma ");
}

TEST(ImportSave, WritesTheScreenAfterACancelledDialog) {
    EditorRun run;
    run.choose_team(12);
    run.choose_player(5);
    run.type(run.form.txtName, "Mai");
    run.platform.choices.push_back("");
    run.click(run.form.cmdImp);
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.told(), Texts{saved});
    EXPECT_GT(run.log.size(), 60U) << "the whole team was written";
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image())) << "with what the lists showed";
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.form.listDat.row(), 0);
}

TEST(ImportSave, WritesEmptyGroupsAsTheyAre) {
    EditorRun run;
    run.choose_team(12);
    std::string file = test::head_of_team_file(test::full_width_name(12), test::short_name(12));
    file += "p1=7340033,5,1,Uno\r\np2=7340033,00,1,Due\r\n";
    run.import(run.form.cmdImp, file);
    run.click(run.form.cmdSaveCar);
    const std::string word("\x01\x00\x70\x00", 4);
    const std::string one("\x01\x00\x00\x00", 4);
    const Texts records{word + std::string("\x05\x00\x00\x00", 4) + one, word + one};
    EXPECT_TRUE(same_image(run.disc.bytes, with_roster(test::filled_image(), 12, {"Uno", "Due"}, records)));
}

class ImportOverATeamWithoutARoster : public ::testing::TestWithParam<int> {};

TEST_P(ImportOverATeamWithoutARoster, WritesNoPlayer) {
    const int team = GetParam();
    EditorRun run;
    run.choose_team(team);
    run.form.cmdImp.set_enabled(true);
    run.import(run.form.cmdImp, file_for(team, 20, 23));
    EXPECT_TRUE(run.form.cmdSaveCar.enabled());
    if (team == 95) run.type(run.form.txtML, "7");
    run.log.clear();
    run.disc.flushes = 0;
    run.click(run.form.cmdSaveCar);
    EXPECT_TRUE(run.told().empty());
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.disc.flushes, team == 95 ? 1 : 0);
    EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
    std::string expected = test::filled_image();
    if (team == 95) put(expected, 3069513, "\x07");
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
    EXPECT_FALSE(run.log.empty());
    EXPECT_EQ(run.form.listDat.count(), 23) << "the lists stay the file's";
}

INSTANTIATE_TEST_SUITE_P(Teams, ImportOverATeamWithoutARoster, ::testing::Values(63, 70, 94, 95));

TEST(ImportSave, GoesByTheOrdinaryFlagFirst) {
    EditorRun run;
    run.choose_team(60);
    run.form.ImportPendingML = 1;
    run.import(run.form.cmdImp, file_for(60, 20, 23));
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.form.ImportPendingML, 1);
    const auto [names, records] = roster_of(20, 23);
    EXPECT_TRUE(same_image(run.disc.bytes, with_roster(test::filled_image(), 60, names, records)));
}

/// What the save of the default team leaves.
std::string with_default_team(std::string image, const Texts& names, const Texts& records) {
    for (std::size_t place = 0; place < 23; ++place) {
        const test::PrintedDefaultSlot& slot = test::printed_default_slots[place];
        put(image, slot.name, padded_name(place < names.size() ? names[place] : std::string()));
        if (place < records.size()) put(image, slot.record, records[place]);
    }
    return image;
}

TEST(DefaultTeamSave, WritesItsRowsOfThePool) {
    for (const int players : {22, 23, 25}) {
        EditorRun run;
        run.choose_team(95);
        run.import(run.form.cmdImpML, team_file(20, players));
        run.choose_player(7);
        run.type(run.form.txtML, "99");
        run.disc.flushes = 0;
        run.click(run.form.cmdSaveCar);
        EXPECT_EQ(run.told(), Texts{saved});
        const auto [names, records] = roster_of(20, players);
        std::string expected = with_default_team(test::filled_image(), names, records);
        put(expected, 3069520, "\x63");
        EXPECT_TRUE(same_image(run.disc.bytes, expected)) << players;
        EXPECT_EQ(run.form.ImportPendingML, 0);
        EXPECT_EQ(run.disc.flushes, 1);
        EXPECT_EQ(run.form.cboSeqSQ.row(), 95);
        EXPECT_EQ(run.form.listDat.count(), 462);
        EXPECT_EQ(run.form.listDat.row(), 7);
        EXPECT_EQ(run.form.listDat.item(348), player_name(20, 0));
        EXPECT_EQ(run.NAME_NO_CONTACT, 1);
        EXPECT_EQ(run.CONTR_NAME_NC, 1);
        EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
    }
}

TEST(DefaultTeamSave, WritesNamesFirstAndThenRecords) {
    EditorRun run;
    run.choose_team(95);
    run.import(run.form.cmdImpML, team_file(20, 23));
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    ASSERT_EQ(run.log.size(), 1U + 46U + 23U);
    for (std::size_t place = 0; place < 23; ++place) {
        const test::PrintedDefaultSlot& slot = test::printed_default_slots[place];
        EXPECT_EQ(run.log[1 + 2 * place].position, slot.name);
        EXPECT_EQ(run.log[1 + 2 * place].bytes, zeroes(10));
        EXPECT_EQ(run.log[47 + place].position, slot.record);
    }
    EXPECT_EQ(run.form.listDat.row(), 0);
}

TEST(DefaultTeamSave, SurvivesOtherTeamsAndWritesTheirLists) {
    EditorRun run;
    run.choose_team(95);
    run.import(run.form.cmdImpML, team_file(20, 23));
    run.choose_team(40);
    EXPECT_EQ(run.form.ImportPendingML, 1);
    run.choose_player(3);
    run.click(run.form.cmdSaveCar);
    const auto [names, records] = roster_of(40, 23);
    EXPECT_TRUE(same_image(run.disc.bytes, with_default_team(test::filled_image(), names, records)));
    EXPECT_EQ(run.form.cboSeqSQ.row(), 95) << "whatever was chosen before";
    EXPECT_EQ(run.form.listDat.row(), 3);
    EXPECT_EQ(run.form.ImportPendingML, 0);
    EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
}

TEST(ImportFlags, OutliveAnotherImageOnlyForTheDefaultTeam) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, team_file(20, 23));
    run.form.ImportPendingML = 1;
    run.platform.choices.push_back("");
    run.click(run.form.cmdOpen);
    EXPECT_EQ(run.form.ImportPending, 1) << "a cancelled dialog clears nothing";
    run.platform.choices.push_back("other.bin");
    run.click(run.form.cmdOpen);
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.form.ImportPendingML, 1);
}

TEST(ImportSave, StopsAtEveryFailingWrite) {
    for (const int team : {0, 1, 61}) {
        const auto prepare = [team](EditorRun& run) {
            run.choose_team(team);
            run.import(run.form.cmdImp, team_file(95, 24));
        };
        test::expect_every_failing_write_to_stop(
            prepare, [](EditorRun& run) { user::click(run.form, run.form.cmdSaveCar); }, 70);
    }
}

TEST(DefaultTeamSave, StopsAtEveryFailingWrite) {
    const auto prepare = [](EditorRun& run) {
        run.choose_team(95);
        run.import(run.form.cmdImpML, team_file(20, 23));
    };
    test::expect_every_failing_write_to_stop(
        prepare, [](EditorRun& run) { user::click(run.form, run.form.cmdSaveCar); }, 70);
}

}  // namespace
}  // namespace kalco
