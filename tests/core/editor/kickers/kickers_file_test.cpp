#include "editor/kickers/kickers_file.h"

#include <gtest/gtest.h>

#include "core/editor/kickers/kicker_tab.h"
#include "disc/codec/hextext.h"

namespace kalco {
namespace {

using namespace kicker_tests;

TEST(KickersFile, CarriesWhatIsSaved) {
    KickerTab tab;
    tab.choose(2);
    tab.click(tab.form.opCPC(10));
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.told(), (Texts{exported}));
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
        for (const int row : {0, 30, 53, 54, 85, 86}) {
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

TEST(KickersImport, OfEveryRowWritesItsRecordAndNothingElse) {
    for (int row = 0; row < 87; ++row) {
        KickerTab tab;
        tab.choose(row);
        tab.click(tab.form.opRIG(10));
        tab.import_line("0A0908070600");
        EXPECT_EQ(tab.told(), (Texts{saved})) << row;
        EXPECT_EQ(tab.selected(), (std::vector<int>{10, 9, 8, 7, 6, 0})) << row;
        EXPECT_TRUE(test::same_image(tab.disc.bytes, kicker_image(row, std::string("\x0A\x09\x08\x07\x06\x00", 6))))
            << row;
        EXPECT_EQ(tab.disc.flushes, 1) << row;
    }
}

TEST(KickersImport, AByteBeyondTheButtonsIsShownByNone) {
    KickerTab tab;
    tab.choose(4);
    tab.import_line("0b01FF");
    EXPECT_EQ(tab.told(), (Texts{saved}));
    EXPECT_EQ(tab.selected(), (std::vector<int>{-1, 1, -1, 3, 6, 7}));
    EXPECT_EQ(tab.form.txtHex.text(), "0B01FF030607");
}

TEST(KickersFile, AfterAnImportHasTheImportedBytesUnderTheNameOfTheTeam) {
    KickerTab tab;
    tab.choose(60);
    tab.click(tab.form.cmdExpKick);
    const std::string file = tab.home.read("Kickers&Capitani/" + test::table_name(69).substr(0, 11) + ".kcp");
    EXPECT_EQ(file, "020503030607\r\n");
    tab.choose(2);
    tab.import_line("000102030405");
    tab.click(tab.form.cmdExpKick);
    const std::string path = "Kickers&Capitani/" + test::table_name(2).substr(0, 7) + ".kcp";
    EXPECT_EQ(tab.home.read(path), "000102030405\r\n");
    tab.import_line(file);
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.home.read(path), file);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, kicker_image())) << "a club's file fits a nation";
    EXPECT_EQ(tab.told(), (Texts{exported, saved, exported, saved, exported}));
}

TEST(KickersFile, OfTheDefaultTeamBearsItsNameOfTheList) {
    KickerTab tab;
    tab.choose(86);
    tab.click(tab.form.cmdExpKick);
    EXPECT_TRUE(tab.home.has("Kickers&Capitani/Squadra Default ML.kcp"));
}

TEST(KickersFile, ThatCannotBeWrittenIsTold) {
    KickerTab tab;
    tab.home.write("Kickers&Capitani", "a file where the folder should be");
    tab.choose(2);
    tab.click(tab.form.cmdExpKick);
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Texts{"Errore di accesso al percorso/file"}));
}

TEST(KickersImport, AFolderIsNoFile) {
    KickerTab tab;
    tab.choose(8);
    tab.click(tab.form.opCPC(10));
    tab.platform.choices = {tab.home.path()};
    tab.click(tab.form.cmdImpKick);
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Texts{"Errore di accesso al percorso/file"}));
    EXPECT_EQ(tab.selected().front(), 10) << "nothing else happens";
}

TEST(KickersImport, FailingWritesAreTold) {
    test::expect_every_failing_write_to_stop(
        [](EditorRun& run) {
            user::select_tab(run.form, tab::kickers);
            user::pick(run.form, run.form.cboSquadra, 20);
        },
        [](EditorRun& run) {
            run.platform.choices = {run.home.write("a.kcp", "0102030405060708")};
            user::click(run.form, run.form.cmdImpKick);
        },
        1);
}

}  // namespace
}  // namespace kalco
