#include "editor/players/player_save.h"

#include <gtest/gtest.h>

#include "disc/codec/hextext.h"
#include "editor/window/general.h"
#include "support/disc_tables.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::padded_name;
using test::put;
using test::put_user_data;
using test::same_image;
using test::saved;
using test::zeroes;
using Texts = std::vector<std::string>;
constexpr std::int64_t first_cost = 3067405;

std::int64_t name_position(int team, int player) {
    if (team == 95) return test::position_behind(2006289, 10 * player);
    return test::position_behind(387793, 230 * team + 10 * player);
}

std::int64_t record_position(int team, int player) {
    if (team == 95) return test::position_behind(2204113, 12 * player);
    if (team == 31 && player >= 13) return 2189737 + 12 * (player - 13);
    return test::position_behind(2179493, 276 * team + 12 * player);
}

/// The bytes of a record whose defence has another value.
std::string with_defence(std::string record, int defence) {
    record[8] = static_cast<char>((record[8] & 0xF8) | (defence - 12));
    return record;
}

/// Picks another defence than the one that is shown.
int change_defence(EditorRun& run) {
    const int defence = run.form.cboDifesa.text() == "19" ? 14 : 19;
    run.pick_text(run.form.cboDifesa, std::to_string(defence));
    return defence;
}

std::string record_of(const EditorRun& run, int team, int player) {
    return test::user_data_at(run.disc.bytes, record_position(team, player), 12);
}

class SaveInEveryTeam : public ::testing::TestWithParam<int> {};

TEST_P(SaveInEveryTeam, WritesNameAndRecordOfEveryPlayer) {
    const int team = GetParam();
    EditorRun run;
    run.choose_team(team);
    std::string expected = test::filled_image();
    for (int player = 0; player < 23; ++player) {
        run.choose_player(player);
        const std::string before = record_of(run, team, player);
        const std::string name = std::string("Qwertzuiop").substr(0, static_cast<std::size_t>(player) % 11);
        run.type(run.form.txtName, name);
        const int defence = change_defence(run);
        run.click(run.form.cmdSaveCar);
        EXPECT_EQ(run.told(), Texts{saved});
        put_user_data(expected, name_position(team, player), padded_name(name));
        put_user_data(expected, record_position(team, player), with_defence(before, defence));
        EXPECT_EQ(run.form.listDat.row(), player);
        EXPECT_EQ(run.form.listDat.item(player), name);
        EXPECT_EQ(run.form.listApp.item(player), hex_line(with_defence(before, defence)));
        EXPECT_EQ(run.form.cboDifesa.text(), std::to_string(defence));
    }
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
    EXPECT_EQ(run.NAMES_GIOC_NAZ, team < 54 ? 23 : 0);
    EXPECT_EQ(run.NAME_NO_CONTACT, 0);
}

INSTANTIATE_TEST_SUITE_P(Teams, SaveInEveryTeam, ::testing::Range(0, 63));

TEST(PlayerSave, WritesTheRowsOfThePool) {
    EditorRun run;
    run.choose_team(95);
    std::string expected = test::filled_image();
    int saves = 0;
    for (const int row : {0, 1, 147, 148, 149, 203, 204, 318, 319, 320, 407, 408, 409, 461}) {
        run.choose_player(row);
        run.type(run.form.txtName, "Abcdefghij");
        const int defence = change_defence(run);
        run.click(run.form.cmdSaveCar);
        EXPECT_EQ(run.told(), Texts{saved});
        put_user_data(expected, name_position(95, row), "Abcdefghij");
        put_user_data(expected, record_position(95, row), with_defence(test::player_record(95, row), defence));
        EXPECT_TRUE(same_image(run.disc.bytes, expected)) << row;
        EXPECT_EQ(run.form.listDat.row(), row);
        EXPECT_EQ(run.NAME_NO_CONTACT, ++saves);
        EXPECT_EQ(run.CONTR_NAME_NC, saves);
    }
    EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
    EXPECT_EQ(run.disc.at(2010673, 8), "Abcdefgh");
    EXPECT_EQ(run.disc.at(2010985, 2), "ij");
}

TEST(PlayerSave, WritesNamesOfEveryLengthOverASeam) {
    std::vector<test::PrintedSplit> splits(test::printed_name_splits.begin(), test::printed_name_splits.end());
    splits.push_back(test::printed_pool_name_splits[0]);
    for (const test::PrintedSplit& split : splits) {
        EditorRun run;
        run.choose_team(split.team);
        run.choose_player(split.player);
        for (const std::size_t length : {10U, 3U, 9U, 0U, 6U, 1U, 10U, 8U, 4U, 2U}) {
            const std::string name = std::string("Abcdefghij").substr(0, length);
            run.type(run.form.txtName, name);
            run.click(run.form.cmdSaveCar);
            std::string expected = test::filled_image();
            const auto room = static_cast<std::size_t>(split.first_bytes);
            put(expected, split.first, padded_name(name).substr(0, room));
            put(expected, split.second, padded_name(name).substr(room));
            EXPECT_TRUE(same_image(run.disc.bytes, expected)) << split.team << ", " << length;
        }
    }
}

TEST(PlayerSave, PutsTheSecondPieceWhereTheTextTells) {
    EditorRun run;
    run.choose_team(0);
    run.type(run.form.txtName, "Abcdefghi");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(387793, 8), "Abcdefgh");
    EXPECT_EQ(run.disc.at(388105, 2), std::string("i\0", 2));
    run.choose_team(8);
    run.choose_player(21);
    run.type(run.form.txtName, "Sixsix");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(390147, 6), "Sixsix");
    EXPECT_EQ(run.disc.at(390457, 4), zeroes(4));
}

TEST(PlayerSave, WritesOnlyWhatHasChanged) {
    EditorRun run;
    run.choose_team(12);
    run.choose_player(5);
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    ASSERT_EQ(run.log.size(), 1U) << "nothing has changed: the cost alone";
    EXPECT_EQ(run.log[0].position, first_cost + 23 * 12 + 5);
    EXPECT_EQ(run.told(), Texts{saved});

    run.log.clear();
    run.type(run.form.txtName, "Nuovo");
    run.click(run.form.cmdSaveCar);
    ASSERT_EQ(run.log.size(), 3U);
    EXPECT_EQ(run.log[1].position, name_position(12, 5));
    EXPECT_EQ(run.log[1].bytes, zeroes(10));
    EXPECT_EQ(run.log[2].position, name_position(12, 5));
    EXPECT_EQ(run.log[2].bytes, "Nuovo");

    run.log.clear();
    change_defence(run);
    run.click(run.form.cmdSaveCar);
    ASSERT_EQ(run.log.size(), 2U);
    EXPECT_EQ(run.log[1].position, record_position(12, 5));
    EXPECT_EQ(run.log[1].bytes.size(), 12U);

    run.log.clear();
    run.type(run.form.txtName, "Altro");
    change_defence(run);
    run.click(run.form.cmdSaveCar);
    ASSERT_EQ(run.log.size(), 4U);
    EXPECT_EQ(run.log[2].bytes, "Altro");
    EXPECT_EQ(run.log[3].position, record_position(12, 5));
}

TEST(PlayerSave, WritesNothingForAnUnchangedPlayerWithoutCost) {
    for (const int team : {54, 58, 59, 62}) {
        EditorRun run;
        run.choose_team(team);
        run.choose_player(22);
        run.log.clear();
        run.click(run.form.cmdSaveCar);
        EXPECT_TRUE(run.log.empty()) << team;
        EXPECT_EQ(run.told(), Texts{saved});
        EXPECT_EQ(run.form.listDat.row(), 22);
    }
}

TEST(PlayerSave, PacksAgainForEachPressButNotForASecondClick) {
    EditorRun run;
    run.choose_team(12);
    run.choose_player(5);
    run.type(run.form.txtName, "Uno");
    change_defence(run);
    run.click(run.form.cmdSaveCar);
    const std::string after = run.disc.bytes;
    EXPECT_EQ(run.form.Text4.text().size(), 11U) << "the choice of the player left the groups of the entry";
    run.log.clear();
    // The button keeps the focus: no packing, and the groups equal the entry as it stands.
    run.form.cboVel.set_text("x");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.log.size(), 1U);
    EXPECT_TRUE(same_image(run.disc.bytes, after));
    EXPECT_EQ(run.told().size(), 2U);
    // A fresh press packs the fields as they are then.
    EXPECT_EQ(user::focus(run.form, run.form.txtName), user::Outcome::done);
    run.pick_text(run.form.cboVel, run.form.cboVel.text() == "12" ? "13" : "12");
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.log.size(), 2U);
}

TEST(PlayerSave, RebuildsTheBytesWhenASecondClickFindsOthers) {
    EditorRun run;
    run.choose_team(12);
    run.choose_player(5);
    run.click(run.form.cmdSaveCar);
    // Other groups than the entry's count for nothing: the words do.
    run.form.Text4.set_text("FF FF FF FF");
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.log.size(), 1U);
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
}

TEST(PlayerSave, WritesTheRecordOverTheNeighbourOfTheShiftedTeam) {
    EditorRun run;
    run.choose_team(31);
    run.choose_player(13);
    const int defence = change_defence(run);
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(2189737, 12), with_defence(test::player_record(31, 14), defence));
    EXPECT_EQ(run.disc.at(2189421, 12), test::player_record(31, 13));
    run.choose_player(22);
    const int last = change_defence(run);
    run.click(run.form.cmdSaveCar);
    run.choose_team(32);
    EXPECT_EQ(run.form.listApp.item(0), hex_line(with_defence(test::player_record(32, 0), last)));
}

TEST(PlayerSave, NeverKeepsSpareBits) {
    std::string image = test::filled_image();
    std::string record = test::player_record(12, 5);
    record[0] = static_cast<char>(record[0] | 0x08);
    put_user_data(image, record_position(12, 5), record);
    EditorRun run(image);
    run.choose_team(12);
    run.choose_player(5);
    EXPECT_EQ(run.form.cboRuolo.text(), "Portiere");
    run.click(run.form.cmdSaveCar);
    record[0] = static_cast<char>(record[0] & 0xF0);
    put_user_data(image, record_position(12, 5), record);
    EXPECT_TRUE(same_image(run.disc.bytes, image));
}

TEST(PlayerSave, LeavesNamesThatDifferOnlyInBlanksAround) {
    std::string image = test::filled_image();
    put_user_data(image, name_position(12, 5), " Bruno    ");
    EditorRun run(image);
    run.choose_team(12);
    run.choose_player(5);
    EXPECT_EQ(run.form.txtName.text(), "Bruno");
    run.click(run.form.cmdSaveCar);
    EXPECT_TRUE(same_image(run.disc.bytes, image));
    run.type(run.form.txtName, " Bruno  ");
    run.click(run.form.cmdSaveCar);
    put_user_data(image, name_position(12, 5), padded_name("Bruno"));
    EXPECT_TRUE(same_image(run.disc.bytes, image));
    run.type(run.form.txtName, "   ");
    run.click(run.form.cmdSaveCar);
    put_user_data(image, name_position(12, 5), zeroes(10));
    EXPECT_TRUE(same_image(run.disc.bytes, image));
}

TEST(PlayerSave, CapitalizesTheTypedName) {
    EditorRun run;
    run.choose_team(12);
    run.choose_player(5);
    run.type(run.form.txtName, "dE vRIJ xxxxxxxx");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(test::user_data_at(run.disc.bytes, name_position(12, 5), 10), "De Vrij xx");
    EXPECT_EQ(run.form.txtName.text(), "De Vrij xx");
}

TEST(PlayerSave, PacksEveryFieldThatIsEdited) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(40);
    run.choose_player(7);
    run.pick_text(form.cboRuolo, "Centravanti");
    run.pick_text(form.cboCapelli, "B3");
    run.pick_text(form.cboColCap, "C");
    run.pick_text(form.cboStlBar, "B");
    run.pick_text(form.cboColBar, "D");
    run.pick_text(form.cboScarpa, "C");
    run.pick_text(form.cboOutSide, "No");
    run.pick_text(form.cboPelle, "B - Giallo");
    run.pick_text(form.cboFisico, "D 70\xF7"
                                  "75 Kg");
    run.pick_text(form.cboPiede, "Sinistro");
    run.type(form.txtAlt, "178");
    run.type(form.txtEta, "27");
    form.txtNum.set_text("10");
    const Texts skills{"18", "12", "14", "15", "17", "16", "15", "18", "17", "13", "14", "17", "16", "15", "16", "13"};
    for (std::size_t i = 0; i < skills.size(); ++i) run.pick_text(*skill_combos(form)[i], skills[i]);
    run.click(form.cmdSaveCar);
    EXPECT_EQ(form.listApp.item(7), "56 24 E6 25 8D 85 C6 D2 70 57 65 54");
    std::string expected = test::filled_image();
    put_user_data(expected, record_position(40, 7), "\x56\x24\xE6\x25\x8D\x85\xC6\xD2\x70\x57\x65\x54");
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
}

TEST(PlayerSave, TellsFirstReopensThenAndSelectsAgain) {
    EditorRun run;
    run.choose_team(12);
    change_defence(run);
    run.disc.flushes = 0;
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.flushes, 1);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    run.told();
    run.platform.choices.push_back("");
    run.click(run.form.cmdOpen);
    EXPECT_EQ(run.form.ImagePath, "");
    change_defence(run);
    const int names = run.NAMES_GIOC_NAZ;
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdSaveCar); }), error::path_access);
    EXPECT_EQ(run.told(), Texts{saved});
    EXPECT_EQ(run.NAMES_GIOC_NAZ, names);
}

TEST(PlayerSave, TellsBytesThatCannotBeBroughtToTheDisk) {
    EditorRun run;
    run.choose_team(12);
    change_defence(run);
    run.flush_failure = error::disk_full;
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdSaveCar); }), error::disk_full);
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
    EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
}

TEST(PlayerSave, SavesNoPlayerOfAClub) {
    EditorRun run;
    run.choose_team(70);
    run.form.cmdSaveCar.set_enabled(true);
    run.log.clear();
    run.click(run.form.cmdSaveCar);
    EXPECT_TRUE(run.log.empty());
    EXPECT_TRUE(run.told().empty());
}

TEST(PlayerSave, DoesNothingWithoutATeam) {
    EditorRun run;
    run.choose_team(12);
    run.click(run.form.cmdNew);
    for (const int pending : {0, 1}) {
        run.form.ImportPending = pending;
        run.form.ImportPendingML = pending;
        run.log.clear();
        EXPECT_EQ(user::focus(run.form, run.form.txtName), user::Outcome::done);
        run.click(run.form.cmdSaveCar);
        EXPECT_TRUE(run.log.empty());
        EXPECT_TRUE(run.told().empty());
        EXPECT_EQ(run.form.ImportPending, pending);
    }
}

TEST(PlayerSave, FailsOnAWordThatHasNoDigits) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(12);
    run.choose_player(5);
    run.type(form.txtName, "Mai");
    run.type(form.txtML, "77");
    // The second word becomes -1.
    for (ComboBox* combo :
         {&form.cboAttacco, &form.cboAcc, &form.cboVel, &form.cboDribbl, &form.cboRes, &form.cboEquil, &form.cboReaz}) {
        run.pick_text(*combo, "19");
    }
    run.pick_text(form.cboFisico, "H > 90 Kg");
    run.pick_text(form.cboPelle, "D - Nero");
    run.type(form.txtEta, "302");
    EXPECT_EQ(test::error_of([&] { user::click(form, form.cmdSaveCar); }), error::overflow);
    EXPECT_EQ(form.Text2.text(), "-1");
    // The cost was written before.
    std::string expected = test::filled_image();
    put(expected, first_cost + 23 * 12 + 5, "\x4D");
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
    EXPECT_TRUE(run.told().empty());
}

TEST(PlayerSave, FailsOnAHeightBeyondTheWord) {
    EditorRun run;
    run.choose_team(54);
    run.pick_text(run.form.cboOutSide, "No");
    run.form.txtNum.set_text("32");
    run.type(run.form.txtAlt, "999");
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdSaveCar); }), error::overflow);
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
}

TEST(PlayerSave, LosesTheSignOfATallOutsiderWithTheLastNumber) {
    EditorRun run;
    run.choose_team(54);
    run.pick_text(run.form.cboOutSide, "Si");
    run.form.txtNum.set_text("32");
    run.type(run.form.txtAlt, "212");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.form.cboOutSide.text(), "No");
}

TEST(PlayerSave, StopsAtEveryFailingWrite) {
    struct Place {
        int team;
        int player;
        std::size_t writes;
    };
    for (const Place& place : {Place{0, 0, 6}, {1, 21, 5}, {12, 5, 4}, {62, 8, 4}, {95, 408, 6}, {95, 319, 5}}) {
        const auto prepare = [&place](EditorRun& run) {
            run.choose_team(place.team);
            run.choose_player(place.player);
            run.type(run.form.txtName, "Abcdefghij");
            change_defence(run);
        };
        test::expect_every_failing_write_to_stop(
            prepare, [](EditorRun& run) { user::click(run.form, run.form.cmdSaveCar); }, place.writes);
    }
}

}  // namespace
}  // namespace kalco
