#include "disc/team_file.h"

#include <gtest/gtest.h>

#include "editor/teamfiles/team_exchange.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using Texts = std::vector<std::string>;

int error_of_line(const std::string& line, std::size_t index) {
    return test::error_of([&] { split_player_line(line, index); });
}

TEST(TeamFile, HasFiveHeadLines) {
    EXPECT_EQ(team_file_head("Italy ", "ITA"), (Texts{"[data]", "intro=", "id=n", "longname=Italy ", "shortname=ITA"}));
}

TEST(TeamFile, WritesAPlayerInALine) {
    EXPECT_EQ(player_line(9, {635839574, -758741619, 1415927664}, "Giocatore"),
              "p9=635839574,-758741619,1415927664,Giocatore");
    EXPECT_EQ(player_line(10, {0, -2147483648, 2147483647}, ""), "p10=0,-2147483648,2147483647,");
}

TEST(TeamFile, WritesAPlayerFromTheGroupsOfHisEntry) {
    EXPECT_EQ(exported_line(9, {"56 24 E6 25", "8D 85 C6 D2", "70 57 65 54"}, "Giocatore"),
              "p9=635839574,-758741619,1415927664,Giocatore");
    EXPECT_EQ(test::error_of([] { exported_line(1, {"56 24 E6 25", "", "70 57 65 54"}, "A"); }), error::invalid_call);
}

TEST(TeamFile, FindsTheNamesByTheirLines) {
    const TeamFileNames names = names_of_team_file(team_file_head("Italy ", "ITA"));
    EXPECT_EQ(names.long_name, "Italy ");
    EXPECT_EQ(names.short_name, "ITA");
    // The keys are not looked at, only their places.
    EXPECT_EQ(names_of_team_file(Texts{"", "", "", "123456789Long", "1234567890Short"}).long_name, "Long");
    EXPECT_EQ(names_of_team_file(Texts{"", "", "", "123456789Long", "1234567890Short"}).short_name, "Short");
    EXPECT_EQ(names_of_team_file(Texts{"", "", "", "longname"}).long_name, "");
    EXPECT_EQ(names_of_team_file(Texts{"", "", "", "longname=A"}).short_name, "");
    EXPECT_EQ(names_of_team_file({}).long_name, "");
}

TEST(TeamFile, PutsAPlayerBehindTheKeyOfAnotherLine) {
    EXPECT_EQ(with_player_of("p9=1,2,3,A", "p10=4,5,6,B=C"), "p9=4,5,6,B=C");
    EXPECT_EQ(with_player_of("no key", "p10=4,5,6,B"), "4,5,6,B");
    EXPECT_EQ(with_player_of("p9=1,2,3,A", "no key"), "p9=no key");
    EXPECT_EQ(with_player_of("p9=", "p1="), "p9=");
}

TEST(TeamFile, ImportsAsMuchOfANameAsTheDiscHolds) {
    EXPECT_EQ(split_player_line("p1=1,2,3,Abcdefghijkl", 0).imported_name(), "Abcdefghij");
    EXPECT_EQ(split_player_line("p1=1,2,3,Abc ", 0).imported_name(), "Abc ");
    EXPECT_EQ(split_player_line("p1=1,2,3,", 0).imported_name(), "");
}

TEST(TeamFile, SplitsALineAtItsFirstThreeCommas) {
    const PlayerLine line = split_player_line("p9=1,-2,3,De Rossi, D.", 8);
    EXPECT_EQ(line.words, (std::array<std::string, 3>{"1", "-2", "3"}));
    EXPECT_EQ(line.name, "De Rossi, D.");
    EXPECT_EQ(name_of_player_line("p9=1,-2,3,De Rossi, D."), "De Rossi, D.");
    EXPECT_EQ(split_player_line("p1=1,2,3,", 0).name, "");
}

TEST(TeamFile, LetsThePlaceDecideWhereTheFirstFieldBegins) {
    // The tenth line with the ordinal 9 loses the first digit, the ninth with 10 keeps the sign of equality.
    EXPECT_EQ(split_player_line("p9=635839574,1,2,A", 9).words[0], "35839574");
    EXPECT_EQ(split_player_line("p10=635839574,1,2,A", 9).words[0], "635839574");
    EXPECT_EQ(split_player_line("p10=635839574,1,2,A", 8).words[0], "=635839574");
    EXPECT_EQ(split_player_line("p9=635839574,1,2,A", 8).words[0], "635839574");
    EXPECT_EQ(split_player_line("xyz5,1,2,A", 0).words[0], "5");
    EXPECT_EQ(split_player_line("xyzw5,1,2,A", 22).words[0], "5");
}

TEST(TeamFile, RefusesLinesWithTooFewCommas) {
    for (const char* line : {"", "p1=1", "p1=1,2", "p1=1,2,3"}) {
        EXPECT_EQ(error_of_line(line, 0), error::invalid_call) << line;
        EXPECT_EQ(test::error_of([&] { name_of_player_line(line); }), error::invalid_call) << line;
    }
    EXPECT_EQ(error_of_line("p1=1,2,3,", 0), 0);
}

TEST(TeamFile, RefusesAFirstCommaBeforeTheFirstField) {
    EXPECT_EQ(error_of_line("p1,1,2,A", 0), error::invalid_call);
    EXPECT_EQ(error_of_line(",,,", 0), error::invalid_call);
    EXPECT_EQ(error_of_line("p1=,1,2,A", 9), error::invalid_call);
    EXPECT_EQ(split_player_line("p1=,1,2,A", 0).words[0], "");
    EXPECT_EQ(split_player_line("p10=,1,2,A", 9).words[0], "");
}

TEST(TeamFile, GivesTheGroupsOfWords) {
    EXPECT_EQ(groups_of_words({"635839574", "-758741619", "1415927664"}),
              (std::array<std::string, 3>{"56 24 E6 25", "8D 85 C6 D2", "70 57 65 54"}));
    EXPECT_EQ(groups_of_words({"0", "-2147483648", "-2"}),
              (std::array<std::string, 3>{"00 00 00 00", "00 00 00 80", "FE FF FF FF"}));
    EXPECT_EQ(groups_of_words({" 7 ", "+10", "007"}),
              (std::array<std::string, 3>{"07 00 00 00", "0A 00 00 00", "07 00 00 00"}));
    EXPECT_EQ(groups_of_words({"2147483647", "-2147483649", "1"}),
              (std::array<std::string, 3>{"FF FF FF 7F", "FF FF FF 7F", "01 00 00 00"}));
    EXPECT_EQ(groups_of_words({"00", "-0", " 0"}), (std::array<std::string, 3>{"", "", ""}));
}

TEST(TeamFile, RefusesWordsThatAreNone) {
    for (const char* word : {"", "x", "1.5", "1 2", "--1", "&H10", "-"}) {
        EXPECT_EQ(test::error_of([&] { groups_of_words({"1", word, "1"}); }), error::type_mismatch) << word;
    }
    for (const char* word :
         {"-1", "2147483648", "-2147483650", "4294967295", "99999999999999999999", "-99999999999999999999"}) {
        EXPECT_EQ(test::error_of([&] { groups_of_words({"1", "1", word}); }), error::overflow) << word;
    }
}

TEST(ConvPARAM, AddsAnEntryOfTheWords) {
    test::EditorRun run;
    frmKalco& form = run.form;
    form.Text1.set_text("635839574");
    form.Text2.set_text("-758741619");
    form.Text3.set_text("0");
    Conv_PARAM(form);
    EXPECT_EQ(form.listApp.items(), (Texts{"56 24 E6 25 8D 85 C6 D2 00 00 00 00"}));
    // An empty group leaves its blanks around it.
    form.Text2.set_text("00");
    Conv_PARAM(form);
    EXPECT_EQ(form.listApp.item(1), "56 24 E6 25  00 00 00 00");
    form.Text1.set_text("-0");
    Conv_PARAM(form);
    EXPECT_EQ(form.listApp.item(2), "  00 00 00 00");
    form.Text3.set_text("-1");
    EXPECT_EQ(test::error_of([&] { Conv_PARAM(form); }), error::overflow);
    EXPECT_EQ(form.listApp.count(), 3);
}

}  // namespace
}  // namespace kalco
