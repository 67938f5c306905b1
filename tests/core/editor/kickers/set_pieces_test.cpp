#include "editor/kickers/set_pieces.h"

#include <gtest/gtest.h>

#include "core/editor/kickers/kicker_tab.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

using namespace kicker_tests;

TEST(SetPieceTab, ListsTheTeamsOfTheImage) {
    KickerTab tab;
    ASSERT_EQ(tab.form.listAtt.count(), 87);
    EXPECT_EQ(tab.form.listAtt.item(53), test::table_name(53).substr(0, 7));
    EXPECT_EQ(tab.form.listAtt.item(54), test::table_name(63).substr(0, 7));
    EXPECT_EQ(tab.form.listAtt.item(86), "Squadra Default ML");
    EXPECT_FALSE(tab.form.fraKick.enabled());
    EXPECT_EQ(user::click(tab.form, tab.form.cmdCrea), user::Outcome::disabled);
}

TEST(SetPieceChoice, ShowsNamesAndPicks) {
    KickerTab tab;
    for (const int row : {0, 9, 53, 86}) {
        tab.choose(row);
        for (int player = 0; player < 11; ++player) {
            const std::string name = row == 86
                                         ? test::player_name(95, DefaultSlots[static_cast<std::size_t>(player)].value())
                                         : test::player_name(row, player);
            EXPECT_EQ(tab.form.txtNM(player + 1).text(), ' ' + name) << row << ' ' << player;
        }
        EXPECT_EQ(tab.selected(), (std::vector<int>{2, 5, 3, 3, 6, 7})) << row;
        EXPECT_EQ(tab.form.txtHex.text(), "020503030607");
        EXPECT_EQ(tab.form.txtAtt.text(), ' ' + tab.form.listAtt.item(row));
        EXPECT_EQ(tab.form.listAtt.row(), row);
        EXPECT_TRUE(tab.form.fraKick.enabled());
    }
}

TEST(SetPieceChoice, ReadsTheRecordOfEveryRow) {
    std::string image = kicker_image();
    const auto pick_of = [](int row, int column) { return (row + 3 * column) % 11; };
    for (int row = 0; row < 87; ++row) {
        for (int column = 0; column < 6; ++column) {
            test::put(image, printed_position(row) + column, std::string(1, static_cast<char>(pick_of(row, column))));
        }
    }
    KickerTab tab(image);
    for (int row = 86; row >= 0; --row) {
        tab.choose(row);
        for (int column = 0; column < 6; ++column) {
            EXPECT_EQ(tab.selected()[static_cast<std::size_t>(column)], pick_of(row, column)) << row << ' ' << column;
        }
    }
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(SetPieceChoice, EveryButtonIsTheByteOfItsRow) {
    KickerTab tab;
    tab.choose(7);
    for (std::size_t column = 0; column < 6; ++column) {
        std::string expected = tab.record(7);
        for (int step = 0; step <= 10; ++step) {
            const int row = 10 - step;
            tab.click((*tab.columns()[column])(row));
            tab.click(tab.form.cmdCrea);
            expected[column] = static_cast<char>(row);
            EXPECT_EQ(tab.record(7), expected) << column << ' ' << row;
            EXPECT_EQ(tab.form.txtHex.text().substr(2 * column, 2), row == 10 ? "0A" : '0' + std::to_string(row));
        }
    }
}

TEST(SetPieceChoice, AnUnsavedChangeIsLostWithAnotherTeam) {
    KickerTab tab;
    tab.choose(7);
    tab.click(tab.form.opCAD(9));
    tab.choose(8);
    tab.click(tab.form.cmdCrea);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, kicker_image()));
}

TEST(SetPieceChoice, EveryByteBeyondTheButtonsStays) {
    std::string image = kicker_image();
    int byte = 0x0B;
    for (int row = 0; row < 87; ++row) {
        for (int column = 0; column < 6; ++column) {
            test::put(image, printed_position(row) + column, std::string(1, static_cast<char>(byte)));
            byte = byte == 0xFF ? 0x0B : byte + 1;
        }
    }
    KickerTab tab(image);
    for (int row = 0; row < 87; ++row) {
        tab.choose(row);
        EXPECT_EQ(tab.selected(), std::vector<int>(6, -1)) << row;
        tab.click(tab.form.cmdCrea);
    }
    EXPECT_TRUE(test::same_image(tab.disc.bytes, image));
    EXPECT_EQ(tab.log.size(), 87U);
}

TEST(SetPieceChoice, AllZeroSelectsTheFirstPlayerEverywhere) {
    std::string image = kicker_image();
    for (const int row : {3, 4}) test::put(image, printed_position(row), std::string(6, '\0'));
    KickerTab tab(image);
    for (const int row : {3, 4, 3}) {
        tab.choose(row);
        EXPECT_EQ(tab.selected(), std::vector<int>(6, 0));
        EXPECT_EQ(tab.form.set_piece_picks[5], "00");
    }
}

TEST(SetPieceSave, EveryRowWritesItsRecordAndNothingElse) {
    for (int row = 0; row < 87; ++row) {
        KickerTab tab;
        tab.choose(row);
        tab.click(tab.form.opCPC(10));
        tab.click(tab.form.opCAP(0));
        tab.click(tab.form.cmdCrea);
        EXPECT_EQ(tab.told(), (Texts{saved}));
        EXPECT_EQ(tab.form.txtHex.text(), "0A0503030600");
        std::string expected = kicker_image();
        test::put(expected, printed_position(row), std::string("\x0A\x05\x03\x03\x06\x00", 6));
        EXPECT_TRUE(test::same_image(tab.disc.bytes, expected)) << row;
        EXPECT_EQ(tab.disc.flushes, 1);
    }
}

TEST(SetPieceSave, OnePlayerMayHoldAllRoles) {
    KickerTab tab;
    tab.choose(1);
    for (auto* column : tab.columns()) tab.click((*column)(9));
    tab.click(tab.form.cmdCrea);
    EXPECT_EQ(tab.disc.at(printed_position(1), 6), std::string(6, '\x09'));
}

TEST(SetPieceSave, AByteThatNamesNoPlayerStaysAsItIs) {
    std::string image = kicker_image();
    test::put(image, printed_position(5), std::string("\x0B\x00\xFF\x03\x06\x07", 6));
    KickerTab tab(image);
    tab.choose(4);
    tab.choose(5);
    EXPECT_EQ(tab.selected(), (std::vector<int>{-1, 0, -1, 3, 6, 7}));
    tab.click(tab.form.opRIG(1));
    tab.click(tab.form.cmdCrea);
    EXPECT_EQ(tab.disc.at(printed_position(5), 6), std::string("\x0B\x00\xFF\x03\x01\x07", 6));
}

TEST(SetPieceSave, LeavingTheTabKeepsTheFirstButtons) {
    std::string image = kicker_image();
    test::put(image, printed_position(5), std::string("\x00\x01\x00\x01\x00\x01", 6));
    KickerTab tab(image);
    tab.choose(5);
    user::select_tab(tab.form, tab::transfers);
    EXPECT_EQ(tab.selected(), (std::vector<int>{0, -1, 0, -1, 0, -1}));
    EXPECT_EQ(tab.form.txtNM(1).text(), "");
    EXPECT_EQ(tab.form.cboSquadra.row(), -1);
    EXPECT_EQ(tab.form.listAtt.count(), 0);
}

TEST(SetPieceSave, WithoutATeamDoesNothing) {
    KickerTab tab;
    tab.choose(3);
    tab.form.cboSquadra.set_text("");
    for (CommandButton* button : {&tab.form.cmdCrea, &tab.form.cmdExpKick, &tab.form.cmdImpKick}) tab.click(*button);
    EXPECT_TRUE(tab.told().empty());
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.platform.dialogs.size(), 1U) << "only the one of the start";
}

TEST(SetPieceSave, WithoutAPathTheReopeningEndsTheProgram) {
    KickerTab tab;
    tab.choose(3);
    tab.click(tab.form.opCPC(10));
    tab.form.ImagePath.clear();
    EXPECT_EQ(test::error_of([&] { user::click(tab.form, tab.form.cmdCrea); }), error::path_access);
    EXPECT_EQ(tab.told(), (Texts{saved}));
    EXPECT_EQ(tab.record(3), "\x0A\x05\x03\x03\x06\x07");
}

TEST(SetPieceSave, FailingWritesAreTold) {
    test::expect_every_failing_write_to_stop(
        [](EditorRun& run) {
            user::select_tab(run.form, tab::kickers);
            user::pick(run.form, run.form.cboSquadra, 86);
            user::click(run.form, run.form.opRIG(7));
            user::click(run.form, run.form.opCAP(8));
        },
        [](EditorRun& run) { user::click(run.form, run.form.cmdCrea); }, 1);
}

}  // namespace
}  // namespace kalco
