#include "editor/window/tabs.h"

#include <gtest/gtest.h>

#include "support/disc_tables.h"
#include "support/editor_run.h"
#include "support/snapshot.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::Snapshot;

const std::vector<std::string> columns{"opCPC", "opCPL", "opCAD", "opCAS", "opRIG", "opCAP"};

std::string member(const std::string& array, int index) {
    return array + '(' + std::to_string(index) + ')';
}

/// The name of a team in its first table.
std::string t1_name(int team) {
    return test::table_name(team).substr(
        0, static_cast<std::size_t>(test::printed_teams[static_cast<std::size_t>(team)].lengths[0]));
}

void reset_kickers(Snapshot& state) {
    state.set_items("listAtt", {});
    state.set_text("txtAtt", "");
    state.set_text("cboSquadra", "");
    for (int i = 1; i <= 11; ++i) state.set_text(member("txtNM", i), "");
    for (const std::string& column : columns) {
        for (int i = 1; i <= 10; ++i) state[member(column, i)]["value"] = false;
    }
}

void reset_numbers(Snapshot& state) {
    for (int number = 1; number <= 99; ++number) state[member("lblNum", number)]["inUse"] = false;
    state.set_items("ListName", {});
    state.set_items("ListNum", {});
    state.set_text("txtNumMod", "");
    state.set_text("cboSQNum", "");
    state.set_text("txtSqSel", "");
    state.set_enabled({"cmdModNum", "cmdSaveNum"}, false);
}

void reset_no_contact(Snapshot& state) {
    state.set_enabled({"cmdImpNC", "cmdSaveNC", "listNC"}, false);
}

void reset_links(Snapshot& state) {
    state.set_items("listSQLink", {});
}

void enter_league(Snapshot& state) {
    std::vector<std::string> teams{"first", "second", "third"};
    for (int team = 0; team <= 62; ++team) teams.push_back(t1_name(team));
    state.set_items("listSQLink", teams, 1);
    reset_kickers(state);
    reset_numbers(state);
}

void enter_kickers(Snapshot& state) {
    std::vector<std::string> teams;
    for (int team = 0; team <= 94; ++team) {
        if (team < 54 || team > 62) teams.push_back(t1_name(team));
    }
    teams.emplace_back("Squadra Default ML");
    state.set_items("listAtt", teams);
    reset_links(state);
    reset_numbers(state);
    reset_no_contact(state);
    state.set_enabled({"fraKick"}, false);
}

void enter_formations(Snapshot& state) {
    for (int k = 2; k <= 11; ++k) state[member("lblGioc", k)]["selected"] = false;
    for (const char* name : {"txtSqHEX2", "cboSeqSQ2", "cboRL", "cboMod"}) state.set_text(name, "");
    state.set_enabled({"fraCord", "cboRL", "Frame6", "fraImpExp", "cmdSalva"}, false);
    state["lblNameG"]["caption"] = "";
    for (int i = 1; i <= 5; ++i) {
        state[member("pbFZ", i)]["value"] = 0;
        state[member("pbFZ", i)]["caption"] = "";
        state[member("cmdPiu", i)]["enabled"] = false;
        state[member("cmdMeno", i)]["enabled"] = false;
    }
    reset_numbers(state);
    reset_no_contact(state);
    reset_links(state);
    reset_kickers(state);
}

/// What the table of tabs tells of the entry into a tab; all other controls stay as they are.
Snapshot entered(Snapshot state, int tab) {
    state["SSTab1"]["tab"] = tab;
    switch (tab) {
        case tab::league: enter_league(state); break;
        case tab::kickers: enter_kickers(state); break;
        case tab::formations: enter_formations(state); break;
        case tab::numbers:
            state["txtNumMod"]["maxLength"] = 2;
            reset_links(state);
            reset_kickers(state);
            reset_no_contact(state);
            state.set_enabled({"cmdModNum", "cmdImpNum", "cmdExpNum", "cmdSaveNum"}, false);
            break;
        default:
            reset_links(state);
            reset_kickers(state);
            reset_numbers(state);
            if (tab == tab::transfers) reset_no_contact(state);
            break;
    }
    return state;
}

class EveryTabChange : public ::testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(EveryTabChange, ResetsWhatTheTableTells) {
    const auto [from, to] = GetParam();
    for (const int first_option : {0, 5, 10}) {
        EditorRun run;
        run.form.slots.Read_Bar = [] {};
        user::select_tab(run.form, from);
        test::disturb(run.form);
        for (auto* column :
             {&run.form.opCPC, &run.form.opCPL, &run.form.opCAD, &run.form.opCAS, &run.form.opRIG, &run.form.opCAP}) {
            (*column)(first_option).set_value(true);
        }
        // The list of tab 2 is not cleared on its own entry, but every other tab has cleared it before.
        if (to == tab::kickers) run.form.listAtt.clear();
        const Snapshot expected = entered(Snapshot(run.form), to);
        EXPECT_EQ(user::select_tab(run.form, to), user::Outcome::done);
        EXPECT_TRUE(Snapshot(run.form).is(expected)) << from << " to " << to;
        EXPECT_TRUE(test::same_image(run.disc.bytes, test::filled_image()));
        EXPECT_EQ(run.told(), std::vector<std::string>{});
    }
}

std::vector<std::tuple<int, int>> all_changes() {
    std::vector<std::tuple<int, int>> changes;
    for (int from = 0; from < 6; ++from) {
        for (int to = 0; to < 6; ++to) {
            if (from != to) changes.emplace_back(from, to);
        }
    }
    return changes;
}

INSTANTIATE_TEST_SUITE_P(Tabs, EveryTabChange, ::testing::ValuesIn(all_changes()));

TEST(TabChange, ToTheTabThatIsShownDoesNothing) {
    for (int tab = 0; tab < 6; ++tab) {
        EditorRun run;
        user::select_tab(run.form, tab);
        user::focus(run.form, run.form.cmdOpen);
        test::disturb(run.form);
        std::filesystem::remove_all(run.home.path("Export"));
        const Snapshot before(run.form);
        EXPECT_EQ(user::select_tab(run.form, tab), user::Outcome::done);
        EXPECT_TRUE(Snapshot(run.form).is(before));
        EXPECT_EQ(run.form.focused(), &run.form.cmdOpen);
        EXPECT_FALSE(run.home.has("Export"));
    }
}

TEST(TabChange, MakesDirectoriesForTheTabsThatNeedThem) {
    EditorRun run;
    EXPECT_TRUE(run.home.has("Export"));
    std::filesystem::remove_all(run.home.path("Export"));
    for (const int tab : {tab::league, tab::kickers, tab::formations, tab::numbers}) {
        user::select_tab(run.form, tab);
        EXPECT_TRUE(std::filesystem::is_empty(run.home.path())) << tab;
    }
    user::select_tab(run.form, tab::transfers);
    EXPECT_TRUE(run.home.has("Transfer"));
    EXPECT_FALSE(run.home.has("Export"));
    user::select_tab(run.form, tab::players);
    EXPECT_TRUE(run.home.has("Export"));
    run.home.write("Export/kept.DAT", "x");
    user::select_tab(run.form, tab::transfers);
    user::select_tab(run.form, tab::players);
    EXPECT_EQ(run.home.read("Export/kept.DAT"), "x");
}

TEST(TabChange, FailsWhereADirectoryCannotBeMade) {
    EditorRun run;
    user::select_tab(run.form, tab::league);
    std::filesystem::remove_all(run.home.path());
    EXPECT_EQ(test::error_of([&] { user::select_tab(run.form, tab::transfers); }), error::path_access);
}

TEST(TabChange, CountsTheNamesOnceOnASecondVisit) {
    EditorRun run;
    for (const int between : {tab::players, tab::kickers, tab::transfers, tab::formations, tab::numbers}) {
        user::select_tab(run.form, tab::league);
        EXPECT_EQ(run.form.listSQLink.count(), 63);
        user::select_tab(run.form, between);
        EXPECT_EQ(run.form.listSQLink.count(), 0);
    }
    for (const int between : {tab::players, tab::league, tab::transfers, tab::formations, tab::numbers}) {
        user::select_tab(run.form, tab::kickers);
        EXPECT_EQ(run.form.listAtt.count(), 87);
        EXPECT_EQ(run.form.listAtt.item(86), "Squadra Default ML");
        user::select_tab(run.form, between);
        EXPECT_EQ(run.form.listAtt.count(), 0);
    }
}

TEST(TabChange, ReadsTheNamesAsTheyStandInTheImage) {
    EditorRun run;
    const auto position = test::table_position(10, 0);
    run.disc.put(position, std::string("AB CD\0F", 7));
    run.disc.put(test::table_position(11, 0), "1234567");
    user::select_tab(run.form, tab::league);
    EXPECT_EQ(run.form.listSQLink.item(10), "AB CD");
    EXPECT_EQ(run.form.listSQLink.item(11), "1234567");
}

TEST(TabChange, RunsReadBarBetweenTheBarsAndTheOtherResets) {
    EditorRun run;
    user::select_tab(run.form, tab::numbers);
    test::disturb(run.form);
    int runs = 0;
    run.form.slots.Read_Bar = [&] {
        ++runs;
        EXPECT_FALSE(run.form.cmdSalva.enabled());
        EXPECT_EQ(run.form.pbFZ(5).caption(), "");
        EXPECT_EQ(run.form.ListNum.count(), 3);
        EXPECT_EQ(run.form.listSQLink.count(), 3);
        EXPECT_EQ(run.form.listAtt.count(), 3);
        EXPECT_TRUE(run.form.listNC.enabled());
    };
    user::select_tab(run.form, tab::formations);
    EXPECT_EQ(runs, 1);
}

TEST(TabChange, KeepsTheTeamOfTheFirstTab) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(4);
    const std::string player = run.form.txtName.text();
    for (int tab = 1; tab < 6; ++tab) user::select_tab(run.form, tab);
    user::select_tab(run.form, tab::players);
    EXPECT_EQ(run.form.cboSeqSQ.row(), 10);
    EXPECT_EQ(run.form.listDat.row(), 4);
    EXPECT_EQ(run.form.listApp.count(), 23);
    EXPECT_EQ(run.form.txtName.text(), player);
    EXPECT_TRUE(run.form.Frame3.enabled());
}

TEST(TabChange, LosesTheFocusFirst) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtName, "ab cd");
    run.form.SSTab1.got_focus = [&] { EXPECT_EQ(run.form.SSTab1.tab(), tab::players); };
    user::select_tab(run.form, tab::league);
    EXPECT_EQ(run.form.txtName.text(), "Ab Cd");
    EXPECT_EQ(run.form.focused(), &run.form.SSTab1);
}

TEST(TabChange, IsNotCarriedOutWhenTheFocusIsTakenBack) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(2);
    run.type(run.form.txtML, "251");
    EXPECT_EQ(user::select_tab(run.form, tab::league), user::Outcome::focus_kept);
    EXPECT_EQ(run.form.SSTab1.tab(), tab::players);
    EXPECT_EQ(run.form.listSQLink.count(), 0);
    EXPECT_EQ(run.form.focused(), &run.form.txtML);
    EXPECT_EQ(run.told(), std::vector<std::string>{"Inserire in Costo ML un valore\r\n     compreso fra 0 e 250"});
}

TEST(TabChange, FailsOnTheNamesWithoutAnImage) {
    for (const int tab : {tab::league, tab::kickers}) {
        EditorRun run;
        run.form.image.close();
        EXPECT_EQ(test::error_of([&] { user::select_tab(run.form, tab); }), error::bad_file_name) << tab;
    }
}

TEST(Tabs, HaveTheirCaptions) {
    EditorRun run;
    const std::vector<std::string> captions{"Squadre && Giocatori", "&Links Master League", "&Kickers && Capitani",
                                            "Trasferimenti",        "&Formazioni && Barre", "Numeri Maglia"};
    EXPECT_EQ(run.form.SSTab1.captions(), captions);
    EXPECT_EQ(run.form.SSTab1.tab(), 0);
}

}  // namespace
}  // namespace kalco
