#include "kickers/set_pieces.h"

#include <gtest/gtest.h>

#include "codec/hextext.h"
#include "kickers/kickers_file.h"
#include "players/roster.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using Texts = std::vector<std::string>;
using test::EditorRun;

const std::string saved = "Salvataggio effettuato con successo";

ImagePos printed_position(int row) {
    if (row == 86) return 2329629;
    return row < 54 ? 2329057 + 6 * row : 2329429 + 6 * (row - 53);
}

/// An image in which every team's record holds 2, 5, 3, 3, 6, 7.
std::string kicker_image() {
    std::string image = test::filled_image();
    for (int row = 0; row < 87; ++row) test::put(image, printed_position(row), "\x02\x05\x03\x03\x06\x07");
    return image;
}

class KickerTab : public EditorRun {
public:
    explicit KickerTab(const std::string& image = kicker_image()) : EditorRun(image) {
        user::select_tab(form, tab::kickers);
    }

    void choose(int row) { EXPECT_EQ(user::pick(form, form.cboSquadra, row), user::Outcome::done); }
    void import_line(const std::string& contents) { import(form.cmdImpKick, contents); }

    /// The selected row of each column, -1 for none.
    std::vector<int> selected() {
        std::vector<int> rows;
        for (auto* column : {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP}) {
            int found = -1;
            for (int row = 0; row <= 10; ++row) {
                if ((*column)(row).value()) found = found == -1 ? row : 99;
            }
            rows.push_back(found);
        }
        return rows;
    }
};

TEST(SetPiecePlaces, AreThePrintedOnes) {
    for (int row = 0; row < 87; ++row) {
        EXPECT_EQ(set_piece_field(row), Pieces(Piece{printed_position(row), 6})) << row;
    }
    EXPECT_EQ(set_piece_field(53).position(), 2329375);
    EXPECT_EQ(set_piece_field(54).position(), 2329435);
    EXPECT_EQ(set_piece_field(85).position(), 2329621);
}

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
            const std::string name = row == 86 ? test::player_name(95, DefaultSlots[static_cast<std::size_t>(player)])
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
    for (auto* column :
         {&tab.form.opCPC, &tab.form.opCPL, &tab.form.opCAD, &tab.form.opCAS, &tab.form.opRIG, &tab.form.opCAP}) {
        tab.click((*column)(9));
    }
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

TEST(SetPieceSave, FailingWritesAreTold) {
    test::expect_every_failing_write_to_stop(
        [](EditorRun& run) {
            user::select_tab(run.form, tab::kickers);
            user::pick(run.form, run.form.cboSquadra, 86);
        },
        [](EditorRun& run) { user::click(run.form, run.form.cmdCrea); }, 1);
}

TEST(KickersFile, CarriesWhatIsSaved) {
    KickerTab tab;
    tab.choose(2);
    tab.click(tab.form.opCPC(10));
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.told(), (Texts{"File creato con successo"}));
    const std::string path = "Kickers&Capitani/" + test::table_name(2).substr(0, 7) + ".kcp";
    EXPECT_EQ(tab.home.read(path), "020503030607\r\n") << "a pick that is not saved is not exported";
    tab.click(tab.form.cmdCrea);
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.home.read(path), "0A0503030607\r\n");
}

TEST(KickersFile, ANameThatCannotBeAFilesIsTold) {
    std::string image = kicker_image();
    test::put(image, 2830941, std::string("A/B\0\0\0\0", 7));
    KickerTab tab(image);
    tab.choose(0);
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Texts{"Nome o numero di file non valido"}));
}

TEST(KickersImport, WritesHalfAsManyBytesAsTheLineHasDigits) {
    struct Case {
        std::string line;
        std::string bytes;
    };
    const std::vector<Case> cases{
        {"0", ""},
        {"010203", std::string("\x01\x02\x03", 3)},
        {"010203040506", std::string("\x01\x02\x03\x04\x05\x06", 6)},
        {"0102030405067", std::string("\x01\x02\x03\x04\x05\x06", 6)},
        {"01020304050607", std::string("\x01\x02\x03\x04\x05\x06\x07", 7)},
        {std::string(200, '0'), std::string(100, '\0')},
        {"zz1z0a", std::string("\x00\x01\x0A", 3)},
    };
    for (const Case& each : cases) {
        for (const int row : {0, 30, 54}) {
            KickerTab tab;
            tab.choose(row);
            tab.import_line(each.line + "\r\nFFFFFFFFFFFF\r\n");
            EXPECT_EQ(tab.told(), (Texts{saved})) << each.line;
            std::string expected = kicker_image();
            test::put(expected, printed_position(row), each.bytes);
            EXPECT_TRUE(test::same_image(tab.disc.bytes, expected)) << each.line;
            EXPECT_EQ(tab.form.txtHex.text(), hex_digits(tab.disc.at(printed_position(row), 6)));
        }
    }
}

TEST(KickersImport, AnEmptyLineWritesNothingAndSaysSo) {
    KickerTab tab;
    tab.choose(8);
    tab.click(tab.form.opCPC(10));
    tab.import_line("\r\n0102");
    EXPECT_EQ(tab.told(), (Texts{saved}));
    EXPECT_TRUE(test::same_image(tab.disc.bytes, kicker_image()));
    EXPECT_EQ(tab.selected().front(), 2) << "the picks on the screen are lost";
}

TEST(KickersImport, AFileWithoutALineIsTold) {
    KickerTab tab;
    tab.choose(8);
    tab.import_line("");
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Texts{"Input dopo la fine del file"}));
    tab.platform.choices = {tab.home.path("missing.kcp")};
    tab.click(tab.form.cmdImpKick);
    EXPECT_EQ(tab.told(), (Texts{"Impossibile trovare il file"}));
    tab.platform.choices = {""};
    tab.click(tab.form.cmdImpKick);
    EXPECT_TRUE(tab.told().empty());
    EXPECT_EQ(tab.platform.dialogs.back().filter, "*.kcp|*.kcp");
    EXPECT_EQ(tab.disc.writes, 0);
}

}  // namespace
}  // namespace kalco
