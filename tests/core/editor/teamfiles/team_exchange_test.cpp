#include "editor/teamfiles/team_exchange.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/codec/hextext.h"
#include "support/editor_run.h"
#include "support/team_files.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::exported;
using test::same_image;
using test::team_file;
using Texts = std::vector<std::string>;
constexpr const char* one_player = "p1=635839574,-758741619,1415927664,Uno\r\n";

int error_of_import(EditorRun& run, const std::string& contents) {
    run.platform.choices.push_back(run.home.write("import.DAT", contents));
    return test::error_of([&] { user::click(run.form, run.form.cmdImp); });
}

TEST(TeamExport, WritesTheTeamOnTheScreen) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(3);
    run.form.ListFile.add("old");
    run.click(run.form.cmdExp);
    EXPECT_EQ(run.platform.messages.at(0).icon, Icon::information);
    EXPECT_EQ(run.told(), Texts{exported});
    EXPECT_EQ(run.home.read("Export/Italy.DAT"), team_file(10, 23, "Italy", "ITA"));
    EXPECT_EQ(run.form.listApp.row(), 3);
    EXPECT_EQ(run.form.ListFile.count(), 28);
    EXPECT_EQ(run.form.ListFile.item(3), "longname=Italy");
    EXPECT_TRUE(run.log.empty());
    EXPECT_EQ(run.form.listDat.row(), 3);
}

TEST(TeamExport, ReplacesAFileOfThatName) {
    EditorRun run;
    run.home.write("Export/Italy.DAT", std::string(100000, 'x'));
    run.choose_team(10);
    run.click(run.form.cmdExp);
    EXPECT_EQ(run.home.read("Export/Italy.DAT"), team_file(10, 23, "Italy", "ITA"));
}

TEST(TeamExport, NamesTheFileAsTheTeam) {
    EditorRun run;
    run.choose_team(0);
    ASSERT_EQ(run.form.txtSQ.text(), "Ireland");
    run.type(run.form.txtSQ, "Citt\xE0  ");
    run.click(run.form.cmdExp);
    EXPECT_TRUE(run.home.has("Export/Citt\xC3\xA0  .DAT")) << "blanks stay, each byte is its Latin-1 character";
    EXPECT_EQ(run.home.read("Export/Citt\xC3\xA0  .DAT"), team_file(0, 23, "Citt\xE0  ", "IRE"));
    run.choose_team(16);
    run.click(run.form.cmdExp);
    EXPECT_TRUE(run.home.has("Export/Finland.DAT"));
    run.choose_team(2);
    run.type(run.form.txtSqHEX, "");
    run.click(run.form.cmdExp);
    EXPECT_TRUE(run.home.has("Export/Wales.DAT")) << "the copy names the file";
}

TEST(TeamExport, RefusesNamesThatAreNoFiles) {
    EditorRun run;
    run.choose_team(10);
    for (const char character : std::string("\\/:*?\"<>|\x01\x1F")) {
        run.form.txtSQ.set_text(std::string("It") + character + "aly");
        EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdExp); }), error::bad_file_name) << character;
    }
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(std::filesystem::is_empty(run.home.path("Export")));
}

TEST(TeamExport, ShowsWhatWasLastImported) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, team_file(20, 25, "Altra", "ALT"));
    run.click(run.form.cmdExp);
    EXPECT_EQ(run.home.read("Export/Altra.DAT"), team_file(20, 23, "Altra", "ALT")) << "the first 23 players";
}

TEST(TeamExport, FailsBelowTwentyThreePlayersBehindTheOpening) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, team_file(20, 22, "Altra", "ALT"));
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdExp); }), error::invalid_call);
    EXPECT_EQ(run.home.read("Export/Altra.DAT"), "");
    EXPECT_TRUE(run.told().empty());
}

TEST(TeamExport, EndsTheRunAtADeviceInTheFilesPlace) {
    EditorRun run;
    run.choose_team(10);
    std::filesystem::create_symlink("/dev/full", run.home.path("Export/Italy.DAT"));
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdExp); }), error::path_access);
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
}

TEST(TeamExport, EndsTheRunWhenTheDirectoryIsAFile) {
    EditorRun run;
    run.choose_team(10);
    std::filesystem::remove_all(run.home.path("Export"));
    run.home.write("Export", "a file");
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdExp); }), error::path_access);
    EXPECT_EQ(run.home.read("Export"), "a file");
}

TEST(TeamExport, NeedsATeamAndItsDirectory) {
    EditorRun run;
    run.choose_team(10);
    std::filesystem::remove_all(run.home.path("Export"));
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdExp); }), error::path_access);
    run.click(run.form.cmdNew);
    EXPECT_EQ(user::select_tab(run.form, tab::transfers), user::Outcome::done);
    EXPECT_EQ(user::select_tab(run.form, tab::players), user::Outcome::done);
    EXPECT_TRUE(run.home.has("Export"));
    run.click(run.form.cmdExp);
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(std::filesystem::is_empty(run.home.path("Export")));
    run.choose_team(95);
    EXPECT_EQ(user::click(run.form, run.form.cmdExp), user::Outcome::disabled);
    run.choose_team(63);
    EXPECT_EQ(user::click(run.form, run.form.cmdExp), user::Outcome::disabled);
}

TEST(TeamImport, FillsTheLists) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(10);
    form.ListFile.add("kept");
    form.listAppIMP.add("old");
    run.import(form.cmdImp, team_file(20, 23, "Nuova Citt\xE0", "nuo"));
    ASSERT_EQ(run.platform.dialogs.size(), 2U);
    EXPECT_EQ(run.platform.dialogs[1].filter, "*.DAT|*.DAT");
    EXPECT_EQ(run.platform.dialogs[1].initial_directory, run.home.path());
    EXPECT_EQ(form.ImportPending, 1);
    EXPECT_EQ(form.txtSQ.text(), "Nuova Citt\xE0");
    EXPECT_EQ(form.txtSqHEX.text(), "Nuova Citt\xE0") << "an assigned text is never cut";
    EXPECT_EQ(form.txtSqDec.text(), "Nuova Citt\xE0");
    EXPECT_EQ(form.txtSqShort.text(), "nuo");
    ASSERT_EQ(form.listDat.count(), 23);
    for (int i = 0; i < 23; ++i) {
        EXPECT_EQ(form.listDat.item(i), test::player_name(20, i));
        EXPECT_EQ(form.listApp.item(i), hex_line(test::player_record(20, i)));
    }
    EXPECT_EQ(form.listAppIMP.count(), 23);
    EXPECT_EQ(form.ListFile.items(), Texts{"kept"});
    EXPECT_EQ(form.listDat.row(), 0);
    EXPECT_EQ(form.txtName.text(), test::player_name(20, 0));
    EXPECT_EQ(form.lblPos.caption(), "1");
    EXPECT_TRUE(run.log.empty());
    EXPECT_TRUE(run.told().empty());
}

TEST(TeamImport, GivesBackEveryExport) {
    EditorRun run;
    for (int team = 0; team < 63; ++team) {
        run.choose_team(team);
        run.type(run.form.txtSQ, "Prova");
        const Texts names = run.form.listDat.items();
        const Texts entries = run.form.listApp.items();
        run.click(run.form.cmdExp);
        run.platform.choices.push_back(run.home.path("Export/Prova.DAT"));
        run.click(run.form.cmdImp);
        EXPECT_EQ(run.form.listDat.items(), names) << team;
        EXPECT_EQ(run.form.listApp.items(), entries) << team;
    }
}

TEST(TeamImport, KeepsTheFlagOnACancelledDialog) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(4);
    run.form.listAppIMP.add("old");
    run.platform.choices.push_back("");
    run.click(run.form.cmdImp);
    EXPECT_EQ(run.form.ImportPending, 1);
    EXPECT_EQ(run.form.listAppIMP.count(), 0);
    EXPECT_EQ(run.form.listDat.row(), 4);
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_EQ(run.form.txtSqHEX.text(), "Italy");
}

TEST(TeamImport, TakesAnyEndsOfLines) {
    for (const char* end : {"\r\n", "\n", "\r"}) {
        EditorRun run;
        run.choose_team(10);
        run.import(run.form.cmdImp, team_file(20, 23, "Nuova", "NUO", end));
        EXPECT_EQ(run.form.listDat.count(), 23);
        EXPECT_EQ(run.form.listDat.item(22), test::player_name(20, 22));
        EXPECT_EQ(run.form.txtSqShort.text(), "NUO");
    }
    EditorRun run;
    run.choose_team(10);
    std::string file = team_file(20, 2);
    run.import(run.form.cmdImp, file.substr(0, file.size() - 2));
    EXPECT_EQ(run.form.listDat.item(1), test::player_name(20, 1)) << "a last line without an end counts";
}

TEST(TeamImport, LooksAtPlacesAndNotAtKeys) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, "a\r\nb\r\nc\r\n123456789Lunga\r\n1234567890Cor\r\nxyz5,0,0,Uno\r\n");
    EXPECT_EQ(run.form.txtSQ.text(), "Lunga");
    EXPECT_EQ(run.form.txtSqShort.text(), "Cor");
    EXPECT_EQ(run.form.listApp.item(0), "05 00 00 00 00 00 00 00 00 00 00 00");
    run.import(run.form.cmdImp, "a\r\nb\r\nc\r\nshort\r\n\r\n" + std::string(one_player));
    EXPECT_EQ(run.form.txtSQ.text(), "");
    EXPECT_EQ(run.form.txtSqShort.text(), "");
}

TEST(TeamImport, TakesAnyNumberOfPlayers) {
    for (const int players : {1, 9, 10, 22, 23, 25, 60}) {
        EditorRun run;
        run.choose_team(10);
        std::string file = test::head_of_team_file("Nuova", "NUO");
        for (int i = 0; i < players; ++i)
            file += 'p' + std::to_string(i + 1) + "=7340033,5,1,N" + std::to_string(i) + "\r\n";
        run.import(run.form.cmdImp, file);
        ASSERT_EQ(run.form.listDat.count(), players);
        for (int i = 0; i < players; ++i) {
            EXPECT_EQ(run.form.listDat.item(i), "N" + std::to_string(i));
            EXPECT_EQ(run.form.listApp.item(i), "01 00 70 00 05 00 00 00 01 00 00 00");
        }
    }
}

TEST(TeamImport, CutsNamesToTenCharacters) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, test::head_of_team_file("N", "N") + "p1=7340033,0,0,De Rossi, Daniele\r\n" +
                                    "p2=7340033,0,0,  x \r\np3=7340033,0,0,\r\np4=7340033,0,0,A" + '\0' + "B\r\n");
    EXPECT_EQ(run.form.listDat.items(), (Texts{"De Rossi, ", "  x ", "", "A"}));
}

TEST(TeamImport, LosesADigitOfATenthLineWithAWrongOrdinal) {
    EditorRun run;
    run.choose_team(10);
    std::string file = test::head_of_team_file("N", "N");
    for (int i = 0; i < 9; ++i) file += one_player;
    file += "p9=635839574,0,0,Decimo\r\n";
    run.import(run.form.cmdImp, file);
    run.choose_player(9);
    EXPECT_EQ(run.form.Text1.text(), "35839574");
}

TEST(TeamImport, EndsTheRunOnLinesThatAreNone) {
    const std::string head = test::head_of_team_file("N", "N");
    const std::vector<std::pair<std::string, int>> files{
        {"", error::invalid_call},
        {"[data]\r\nintro=\r\nid=n\r\nlongname=Quattro\r\n", error::invalid_call},
        {head, error::invalid_property},
        {head + one_player + "\r\n", error::invalid_call},
        {head + one_player + "p2=1,2,3\r\n", error::invalid_call},
        {head + "p1,1,2,A\r\n", error::invalid_call},
        {head + "p1=,1,2,A\r\n", error::type_mismatch},
        {head + "p1=1,,2,A\r\n", error::type_mismatch},
        {head + "p1=1,x,2,A\r\n", error::type_mismatch},
        {head + "p1=1,-1,2,A\r\n", error::overflow},
        {head + "p1=1,2147483648,2,A\r\n", error::overflow},
        {head + "p1=1,2,-2147483650,A\r\n", error::overflow},
        {head + "p10=1,2,3,A\r\n", error::type_mismatch},
    };
    for (const auto& [file, number] : files) {
        EditorRun run;
        run.choose_team(10);
        EXPECT_EQ(error_of_import(run, file), number) << file;
        EXPECT_EQ(run.form.ImportPending, 1);
        EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
        EXPECT_TRUE(run.told().empty());
    }
    EditorRun run;
    run.choose_team(10);
    run.platform.choices.push_back(run.home.path("missing.DAT"));
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdImp); }), error::file_not_found);
    run.platform.choices.push_back(run.home.path());
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdImp); }), error::path_access);
}

TEST(TeamImport, ShowsExtremeWords) {
    EditorRun run;
    run.choose_team(10);
    run.import(run.form.cmdImp, test::head_of_team_file("N", "N") + "p1=-2147483648,-2147483648,-2147483648,Min\r\n" +
                                    "p2=2147483647,2147483647,2147483647,Max\r\np3=7340033,-2147483649,0,Oltre\r\n");
    EXPECT_EQ(run.form.listApp.items(),
              (Texts{"00 00 00 80 00 00 00 80 00 00 00 80", "FF FF FF 7F FF FF FF 7F FF FF FF 7F",
                     "01 00 70 00 FF FF FF 7F 00 00 00 00"}));
    EXPECT_TRUE(run.told().empty());
}

TEST(TeamImport, TellsAGroupThatStaysEmpty) {
    EditorRun run;
    run.choose_team(10);
    // The first entry has one group: the second word runs out of bytes.
    run.import(run.form.cmdImp, test::head_of_team_file("N", "N") + "p1=00,00,1,Corto\r\n");
    EXPECT_EQ(run.form.listApp.item(0), "  01 00 00 00");
    EXPECT_EQ(run.told(), Texts{"Attenzione probabile errore nei parametri del giocatore"});
    EXPECT_EQ(run.form.ImportPending, 1);
}

TEST(TeamImport, TakesAnyBytesWithoutTouchingTheImage) {
    std::mt19937 random(31);
    for (int round = 0; round < 60; ++round) {
        EditorRun run("short");
        run.choose_team(10);
        std::string file = round % 2 == 0 ? std::string() : test::head_of_team_file("N", "N");
        const std::string alphabet = std::string("p1=,,,-0123456789\r\n\x00\xFFx ", 24);
        for (int i = 0; i < 400; ++i) {
            file += round % 3 == 0 ? static_cast<char>(random() & 0xFF) : alphabet[random() % alphabet.size()];
        }
        const int number = error_of_import(run, file);
        EXPECT_TRUE(number == 0 || number == error::invalid_call || number == error::type_mismatch ||
                    number == error::overflow || number == error::invalid_property)
            << number;
        EXPECT_EQ(run.disc.bytes, "short");
    }
}

TEST(TeamImportForTheDefaultTeam, RaisesItsOwnFlag) {
    EditorRun run;
    run.choose_team(95);
    run.import(run.form.cmdImpML, team_file(20, 23));
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.form.ImportPendingML, 1);
    EXPECT_EQ(run.form.txtSqHEX.text(), "");
    EXPECT_EQ(run.form.txtSqDec.text(), "");
    EXPECT_EQ(run.form.txtSqShort.text(), "");
    EXPECT_EQ(run.form.txtSQ.text(), "Nuova");
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_EQ(run.form.txtML.text(), std::to_string(test::player_cost(95, 0)));
}

TEST(TeamImportForTheDefaultTeam, GoesOnAfterACancelledDialog) {
    EditorRun run;
    run.choose_team(95);
    run.form.txtSqDec.set_text("x");
    run.platform.choices.push_back("");
    run.click(run.form.cmdImpML);
    EXPECT_EQ(run.form.ImportPending, 0);
    EXPECT_EQ(run.form.ImportPendingML, 1);
    EXPECT_EQ(run.form.txtSqDec.text(), "");
    EXPECT_EQ(run.form.listDat.count(), 462);
}

}  // namespace
}  // namespace kalco
