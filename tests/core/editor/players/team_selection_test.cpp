#include "editor/players/team_selection.h"

#include <gtest/gtest.h>

#include "disc/codec/hextext.h"
#include "support/disc_tables.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::put;
using Texts = std::vector<std::string>;

/// The record that the list shows: by the rule of the table, but for the shifted ones of one team.
std::string shown_record(int team, int player) {
    if (team == 31 && player >= 13) {
        return player == 22 ? test::player_record(32, 0) : test::player_record(31, player + 1);
    }
    return test::player_record(team, player);
}

void expect_roster(const frmKalco& form, int team, int players) {
    ASSERT_EQ(form.listDat.count(), players) << team;
    ASSERT_EQ(form.listApp.count(), players) << team;
    for (int player = 0; player < players; ++player) {
        EXPECT_EQ(form.listDat.item(player), test::player_name(team, player)) << team << ", " << player;
        EXPECT_EQ(form.listApp.item(player), hex_line(shown_record(team, player))) << team << ", " << player;
        EXPECT_EQ(form.listApp.item(player).size(), 35U);
    }
}

TEST(TeamSelection, ReadsTheRosterOfEveryTeam) {
    EditorRun run;
    for (int team = 0; team < 63; ++team) {
        run.choose_team(team);
        expect_roster(run.form, team, 23);
        EXPECT_EQ(run.form.listDat.row(), 0);
        EXPECT_EQ(run.form.txtName.text(), test::player_name(team, 0));
        EXPECT_EQ(run.form.txtSqDec.text(),
                  test::table_name(team).substr(
                      0, static_cast<std::size_t>(test::printed_teams[static_cast<std::size_t>(team)].lengths[0])));
        EXPECT_EQ(run.form.txtSqShort.text(), test::short_name(team));
        EXPECT_EQ(run.form.txtSqHEX.text().substr(0, test::full_width_name(team).size()), test::full_width_name(team));
        EXPECT_EQ(run.form.txtSQ.text(), run.form.txtSqHEX.text());
        EXPECT_EQ(run.form.old_names.full_width, run.form.txtSqHEX.text());
        EXPECT_EQ(run.form.old_names.short_name, run.form.txtSqShort.text());
        EXPECT_EQ(run.form.old_names.table_name, run.form.txtSqDec.text());
    }
    EXPECT_TRUE(run.log.empty());
}

TEST(TeamSelection, ReadsTheListOfThePool) {
    EditorRun run;
    run.choose_team(95);
    expect_roster(run.form, 95, 462);
    EXPECT_EQ(run.form.txtSqHEX.text(), "");
    EXPECT_EQ(run.form.txtSqDec.text(), "");
    EXPECT_EQ(run.form.txtSqShort.text(), "");
    EXPECT_EQ(run.form.txtSQ.text(), "");
    EXPECT_EQ(run.form.old_names.short_name, "");
}

TEST(TeamSelection, ShowsTheNeighboursPlayerAsTheShiftedTeamsLast) {
    EditorRun run;
    run.choose_team(31);
    EXPECT_EQ(run.form.listDat.item(22), test::player_name(31, 22));
    EXPECT_EQ(run.form.listApp.item(22), hex_line(test::player_record(32, 0)));
    EXPECT_EQ(run.form.listApp.item(12), hex_line(test::player_record(31, 12)));
    EXPECT_EQ(run.form.listApp.item(13), hex_line(test::player_record(31, 14)));
}

TEST(TeamSelection, EnablesTheControlsByClass) {
    EditorRun run;
    frmKalco& form = run.form;
    EXPECT_FALSE(form.Frame3.enabled());
    const auto states = [&form] {
        std::string text;
        for (const Control* control :
             std::initializer_list<const Control*>{&form.cmdName, &form.cmdImpML, &form.cmdExp, &form.cmdSaveCar,
                                                   &form.cmdImp, &form.listDat, &form.txtML, &form.lblMl}) {
            text += control->enabled() ? '1' : '0';
        }
        return text;
    };
    for (int team = 95; team >= 0; --team) {
        run.choose_team(team);
        const char* expected = team == 95 ? "01010111" : team >= 63 ? "10000000" : team >= 54 ? "10111100" : "10111111";
        EXPECT_EQ(states(), expected) << team;
        EXPECT_TRUE(form.Frame3.enabled());
    }
}

TEST(TeamSelection, ShowsAClubByItsLinks) {
    EditorRun run;
    run.choose_team(10);
    run.form.listAppIMP.add("x");
    run.form.ListFile.add("x");
    const std::string cost = run.form.txtML.text();
    run.choose_team(63);
    EXPECT_EQ(run.form.listDat.row(), -1);
    EXPECT_GE(run.form.listDat.count(), 23) << "names by its links, fillers for the others";
    for (const ListBox* list : {&run.form.listApp, &run.form.listAppIMP, &run.form.ListFile}) {
        EXPECT_EQ(list->count(), 0) << list->name();
    }
    EXPECT_EQ(run.form.txtName.text(), "");
    EXPECT_EQ(run.form.txtAlt.text(), "155");
    EXPECT_EQ(run.form.txtEta.text(), "15");
    EXPECT_EQ(run.form.cboRuolo.text(), "");
    EXPECT_EQ(run.form.cboAttacco.text(), "");
    EXPECT_EQ(run.form.imgStile.picture(), "");
    EXPECT_EQ(run.form.txtML.text(), cost);
    EXPECT_EQ(run.form.txtSqHEX.text(), "Manch");
    EXPECT_EQ(run.form.txtSQ.text(), "Manch");
    EXPECT_EQ(run.form.txtSqShort.text(), "MAN");
    EXPECT_EQ(run.form.old_names.full_width, "Manch");
    EXPECT_EQ(user::click(run.form, run.form.cmdSaveCar), user::Outcome::disabled);
    EXPECT_EQ(user::pick(run.form, run.form.listDat, 0), user::Outcome::disabled);
}

TEST(TeamSelection, ClearsOnlyTheOrdinaryFlag) {
    EditorRun run;
    for (const int team : {0, 60, 70, 95}) {
        run.form.ImportPending = 1;
        run.form.ImportPendingML = 1;
        run.choose_team(team);
        EXPECT_EQ(run.form.ImportPending, 0) << team;
        EXPECT_EQ(run.form.ImportPendingML, 1) << team;
    }
}

TEST(TeamSelection, RunsOnceWhenItIsChosenInCode) {
    EditorRun run;
    run.choose_team(3);
    int runs = 0;
    const Event click = run.form.cboSeqSQ.click;
    run.form.cboSeqSQ.click = [&] {
        ++runs;
        click();
    };
    select_team(run.form, Team(3));
    EXPECT_EQ(runs, 0) << "the same team is read again directly";
    select_team(run.form, Team(4));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(run.form.cboSeqSQ.row(), 4);
    put(run.disc.bytes, 388107, test::padded_name("Zeta"));
    select_team(run.form, Team(0));
    EXPECT_EQ(run.form.listDat.item(1), "Zeta");
}

TEST(TeamSelection, FailsOnANameThatBeginsWithABlank) {
    std::string image = test::filled_image();
    put(image, 2003549, " ");
    EditorRun run(image);
    EXPECT_EQ(test::error_of([&] { user::pick(run.form, run.form.cboSeqSQ, 10); }), error::invalid_call);
}

TEST(TeamSelection, ShowsNothingOfAShortImage) {
    EditorRun run("only a few bytes");
    run.choose_team(20);
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_EQ(run.form.listDat.item(22), "");
    EXPECT_EQ(run.form.listApp.item(0), "00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_TRUE(run.told().empty());
    EXPECT_EQ(run.form.txtSqShort.text(), "");
    EXPECT_EQ(run.disc.bytes, "only a few bytes");
}

TEST(PlayerClick, ShowsThePlayer) {
    EditorRun run;
    frmKalco& form = run.form;
    EXPECT_FALSE(form.Label34.visible());
    EXPECT_FALSE(form.lblPos.visible());
    run.choose_team(10);
    form.listApp.replace(4, "56 24 E6 25 8D 85 C6 D2 70 57 65 54");
    form.cmdSaveCar.set_enabled(false);
    run.choose_player(4);
    EXPECT_TRUE(form.cmdSaveCar.enabled());
    EXPECT_TRUE(form.Label34.visible());
    EXPECT_TRUE(form.lblPos.visible());
    EXPECT_EQ(form.lblPos.caption(), "5");
    EXPECT_EQ(form.txtName.text(), test::player_name(10, 4));
    EXPECT_EQ(form.Text1.text(), "635839574");
    EXPECT_EQ(form.Text2.text(), "-758741619");
    EXPECT_EQ(form.Text3.text(), "1415927664");
    EXPECT_EQ(form.Text4.text(), "56 24 E6 25");
    EXPECT_EQ(form.Text5.text(), "8D 85 C6 D2");
    EXPECT_EQ(form.Text6.text(), "70 57 65 54");
    EXPECT_EQ(form.txtAlt.text(), "178");
    EXPECT_EQ(form.txtML.text(), std::to_string(test::player_cost(10, 4)));
}

TEST(PlayerClick, ReadsTheCostWhereTheTeamHasOne) {
    EditorRun run;
    for (const int team : {0, 53}) {
        run.choose_team(team);
        for (int player = 0; player < 23; ++player) {
            run.choose_player(player);
            EXPECT_EQ(run.form.txtML.text(), std::to_string(test::player_cost(team, player)));
        }
    }
    const std::string last = run.form.txtML.text();
    for (const int team : {54, 62}) {
        run.choose_team(team);
        EXPECT_EQ(run.form.txtML.text(), last);
        run.choose_player(9);
        EXPECT_EQ(run.form.txtML.text(), last);
    }
    run.choose_team(95);
    for (const int row : {0, 147, 148, 319, 320, 408, 461}) {
        run.choose_player(row);
        EXPECT_EQ(run.form.txtML.text(), std::to_string(test::player_cost(95, row)));
        EXPECT_EQ(run.form.lblPos.caption(), std::to_string(row + 1));
    }
    put(run.disc.bytes, 3069513, "\xFF");
    run.choose_player(0);
    EXPECT_EQ(run.form.txtML.text(), "255");
}

TEST(PlayerClick, TellsAShortEntry) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(10);
    run.choose_player(2);
    const std::string cost = form.txtML.text();
    const std::string role = form.cboRuolo.text();
    form.listApp.replace(3, "56 24 E6 25 8D 85");
    put(run.disc.bytes, 3067405 + 230 + 3, "\x11");
    run.choose_player(3);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].text, "Attenzione probabile errore nei parametri del giocatore");
    EXPECT_EQ(run.platform.messages[0].icon, Icon::stop);
    EXPECT_EQ(run.platform.messages[0].buttons, Buttons::ok);
    EXPECT_EQ(form.txtName.text(), test::player_name(10, 3));
    EXPECT_EQ(form.Text1.text(), "635839574");
    EXPECT_EQ(form.txtML.text(), cost) << "the cost is not read then";
    EXPECT_EQ(form.cboRuolo.text(), role);
    form.listApp.replace(3, "");
    run.choose_player(3);
    EXPECT_EQ(run.told().size(), 2U);
    EXPECT_EQ(form.Text4.text(), "");
}

TEST(PlayerClick, IsSilentAboutAnEmptyRecord) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(2);
    const std::string cost = run.form.txtML.text();
    run.form.listApp.replace(3, "00 00 00 00 00 00 00 00 00 00 00 00");
    run.choose_player(3);
    EXPECT_TRUE(run.told().empty());
    EXPECT_EQ(run.form.txtAlt.text(), "155");
    EXPECT_EQ(run.form.Text1.text(), "0");
    EXPECT_EQ(run.form.txtML.text(), cost);
}

TEST(PlayerClick, LeavesTheCostWithoutATeam) {
    EditorRun run;
    run.choose_team(10);
    run.click(run.form.cmdNew);
    run.platform.choices.push_back(run.home.write(
        "one.DAT",
        "[data]\r\nintro=\r\nid=n\r\nlongname=X\r\nshortname=Y\r\np1=635839574,-758741619,1415927664,Uno\r\n"));
    run.click(run.form.cmdImp);
    EXPECT_EQ(run.form.txtName.text(), "Uno");
    EXPECT_EQ(run.form.txtAlt.text(), "178");
    EXPECT_EQ(run.form.txtML.text(), "");
}

}  // namespace
}  // namespace kalco
