#include "editor/league/no_contact.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/editor/league/league_run.h"
#include "disc/player_codes.h"
#include "support/disc_tables.h"
#include "support/team_files.h"

namespace kalco {
namespace {

using namespace league_tests;
using test::player_name;

const std::string repeated = "Attenzione non puoi scegliere un gio-\n\rcatore gi\xE0 selezionato in precedenza";
const std::string complete = "OK hai selezionato i 23 Giocatori, ora\r\npuoi importare la squadra desiderata";
const std::string default_hint = "Non vengono selezionati i giocatori della squadra Default";
const std::string pick_hint = "Doppio click per selezionare il giocatore";

Texts numbers_of(const std::vector<int>& rows) {
    Texts texts;
    for (const int row : rows) texts.push_back(std::to_string(row));
    return texts;
}

/// The three lists of picks and the count hold these rows of the pool.
void expect_picks(const frmKalco& form, const std::vector<int>& rows) {
    Texts names;
    Texts codes;
    const Texts pool = pool_codes();
    for (const int row : rows) {
        names.push_back(form.listNC.item(row));
        codes.push_back(pool[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(form.listAppNameNC.items(), names);
    EXPECT_EQ(form.ListAppIDX.items(), numbers_of(rows));
    EXPECT_EQ(form.listAppNC.items(), codes);
    EXPECT_EQ(form.lblNumGioc.caption(), std::to_string(rows.size()));
}

/// A run with a club chosen.
class PickRun : public LeagueRun {
public:
    explicit PickRun(const std::vector<int>& rows = {}) {
        pick(form.cboSqNC, 3);
        pick_players(rows);
    }
};

TEST(Pool, IsReadWithItsNameOfTwoPieces) {
    LeagueRun run;
    ASSERT_EQ(run.form.listNC.count(), 462);
    for (int row = 0; row < 462; ++row) EXPECT_EQ(run.form.listNC.item(row), player_name(95, row)) << row;
    EXPECT_EQ(run.form.ListAppOrigName.items(), run.form.listNC.items());
    run.disc.bytes = with_pool_name(run.disc.bytes, 408, " Ab  ef h ");
    run.disc.bytes = with_pool_name(run.disc.bytes, 461, "  Last    ");
    NAME_NO_CONTACT(run.form);
    ASSERT_EQ(run.form.listNC.count(), 462);
    EXPECT_EQ(run.form.listNC.item(408), "Ab  ef h");
    EXPECT_EQ(run.form.listNC.item(461), "Last");
    EXPECT_EQ(run.form.ListAppOrigName.item(461), player_name(95, 461));
    CONTR_NAME_NC(run.form);
    EXPECT_EQ(run.form.ListAppOrigName.items(), run.form.listNC.items());
}

TEST(Pool, OfAnotherImageIsReadWhenItIsOpened) {
    LeagueRun run;
    run.disc.bytes = with_pool_name(run.disc.bytes, 5, "Other     ");
    run.platform.choices.emplace_back("other.bin");
    run.click(run.form.cmdOpen);
    EXPECT_EQ(run.form.listNC.item(5), "Other");
    EXPECT_EQ(run.form.ListAppOrigName.item(5), "Other");
}

TEST(Pool, HasItsLinkTableByTheRowOfTheClub) {
    LeagueRun run;
    ImagePos position1 = 12;
    ImagePos position2 = 34;
    OFF_ML_NC(run.form, position1, position2);
    EXPECT_EQ(position1, 12);
    for (int club = 0; club < 32; ++club) {
        run.pick(run.form.cboSqNC, club);
        OFF_ML_NC(run.form, position1, position2);
        EXPECT_EQ(position1, printed_link_position(club));
        EXPECT_EQ(position2, club < 6 ? 34 : 2013337) << club;
    }
}

TEST(NoContact, OffersTheClubsSomeWithABlankBehind) {
    LeagueRun run;
    ASSERT_EQ(run.form.cboSqNC.items().size(), 32U);
    for (int club = 0; club < 32; ++club) {
        const bool blank = club <= 1 || club >= 27;
        EXPECT_EQ(run.form.cboSqNC.items()[static_cast<std::size_t>(club)],
                  std::string(printed_club(club).row) + (blank ? " " : ""));
    }
}

TEST(NoContact, StartsWithoutAClub) {
    LeagueRun run;
    EXPECT_EQ(run.form.cboSqNC.row(), -1);
    EXPECT_EQ(run.form.lblNumGioc.caption(), "0");
    EXPECT_EQ(run.form.lblIndNaz.caption(), "Nazionalit\xE0 Giocatore : ");
    EXPECT_EQ(run.form.listAppNameNC.hint(), "Doppio Click per cancellare il giocatore");
    for (Control* control :
         std::initializer_list<Control*>{&run.form.listNC, &run.form.cmdImpNC, &run.form.cmdSaveNC}) {
        EXPECT_TRUE(run.refuses(*control)) << control->name();
    }
    run.pick(run.form.cboSqNC, 20);
    EXPECT_TRUE(run.form.listNC.enabled());
    EXPECT_EQ(run.form.lblNameML.caption(), "Milan  ");
    EXPECT_FALSE(run.form.cmdImpNC.enabled());
    EXPECT_FALSE(run.form.cmdSaveNC.enabled());
}

TEST(NoContact, TellsTheNationalityAndWhetherARowCanBePicked) {
    PickRun run;
    const Texts codes = pool_codes();
    for (int row = 0; row < 462; ++row) {
        run.pick(run.form.listNC, row);
        const bool is_default = std::any_of(test::printed_default_slots.begin(), test::printed_default_slots.end(),
                                            [row](const auto& slot) { return slot.row == row; });
        EXPECT_EQ(run.form.listNC.hint(), is_default ? default_hint : pick_hint) << row;
        EXPECT_EQ(run.form.listHexNC.row(), row);
        const std::string nation = codes[static_cast<std::size_t>(row)].substr(0, 2);
        EXPECT_EQ(run.form.lblNaz.caption(), nationality_of(nation).value_or("")) << row;
    }
    EXPECT_EQ(run.form.lblNaz.caption(), "Trinidad-Tobago");
    run.form.listHexNC.replace(4, "6417");
    run.pick(run.form.listNC, 4);
    EXPECT_EQ(run.form.lblNaz.caption(), "Trinidad-Tobago") << "an unknown code leaves the former text";
    run.pick(run.form.listNC, 3);
    EXPECT_EQ(run.form.lblNaz.caption(), "Ireland");
}

TEST(Picks, StandInTheOrderInWhichTheyWereMade) {
    PickRun run({5, 461, 0});
    expect_picks(run.form, {5, 461, 0});
    EXPECT_EQ(run.form.listHexNC.row(), 0);
    EXPECT_EQ(run.form.Text7.text(), "");
    EXPECT_TRUE(run.told().empty());
    EXPECT_FALSE(run.form.cmdImpNC.enabled());
}

TEST(Picks, LeaveOutTheDefaultTeam) {
    PickRun run({5});
    for (const auto& slot : test::printed_default_slots) {
        run.double_click(run.form.listNC, slot.row);
        EXPECT_EQ(run.form.listHexNC.row(), slot.row);
    }
    EXPECT_TRUE(run.told().empty());
    expect_picks(run.form, {5});
}

TEST(Picks, AreNotMadeTwice) {
    PickRun run({5, 6});
    run.double_click(run.form.listNC, 5);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(run.told(), Texts{repeated});
    expect_picks(run.form, {5, 6});
    // Row 46 is not the 4 and the 6.
    run.pick_players({4, 46, 56});
    EXPECT_TRUE(run.told().empty());
    expect_picks(run.form, {5, 6, 4, 46, 56});
}

TEST(Picks, TakeAMarkedRowWithItsMark) {
    PickRun run;
    run.form.listNC.replace(7, "Changed *");
    run.pick_players({7});
    EXPECT_EQ(run.form.listAppNameNC.items(), Texts{"Changed *"});
}

TEST(Picks, AreCompleteWithTheTwentyThird) {
    std::vector<int> rows = odd_picks();
    const int last = rows.back();
    rows.pop_back();
    PickRun run(rows);
    EXPECT_TRUE(run.told().empty());
    EXPECT_EQ(run.form.lblNumGioc.caption(), "22");
    EXPECT_TRUE(run.form.listNC.enabled());
    EXPECT_FALSE(run.form.cmdImpNC.enabled());
    EXPECT_EQ(run.form.Text7.text(), "");
    EXPECT_EQ(run.form.listAppNameNC.row(), -1);
    run.pick_players({last});
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_EQ(run.told(), Texts{complete});
    expect_picks(run.form, odd_picks());
    EXPECT_EQ(run.form.listAppNameNC.row(), 22);
    EXPECT_EQ(run.form.Text7.text(), joined_codes(odd_picks()));
    EXPECT_EQ(run.form.Text7.text().size(), 92U);
    EXPECT_TRUE(run.form.cmdImpNC.enabled());
    EXPECT_FALSE(run.form.cmdSaveNC.enabled());
    EXPECT_EQ(user::double_click(run.form, run.form.listNC, 20), user::Outcome::disabled);
    expect_picks(run.form, odd_picks());
}

TEST(Picks, AreNeverMoreThanTwentyThree) {
    PickRun run(odd_picks());
    run.told();
    run.pick(run.form.cboSqNC, 4);
    ASSERT_TRUE(run.form.listNC.enabled()) << "the choice of a club switches the list on again";
    run.pick_players({20, 3});
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(run.form.listNC.enabled());
    expect_picks(run.form, odd_picks());
    run.pick_players({148});
    EXPECT_EQ(run.told(), Texts{repeated});
    expect_picks(run.form, odd_picks());
    EXPECT_EQ(run.form.Text7.text(), joined_codes(odd_picks()));
}

TEST(Picks, AreTakenBack) {
    PickRun run({5, 461, 0});
    run.double_click(run.form.listAppNameNC, 1);
    expect_picks(run.form, {5, 0});
    EXPECT_EQ(run.form.listAppNameNC.row(), -1);
    listAppNameNC_DblClick(run.form);
    expect_picks(run.form, {5, 0});
    run.pick_players({461});
    expect_picks(run.form, {5, 0, 461});
    for (int i = 0; i < 3; ++i) run.double_click(run.form.listAppNameNC, 0);
    expect_picks(run.form, {});
    EXPECT_TRUE(run.told().empty());
}

TEST(Picks, TakenBackFromACompleteListKeepItsCodesAndTheImport) {
    PickRun run(odd_picks());
    run.told();
    run.double_click(run.form.listAppNameNC, 2);
    std::vector<int> rest = odd_picks();
    rest.erase(rest.begin() + 2);
    expect_picks(run.form, rest);
    EXPECT_TRUE(run.form.listNC.enabled());
    EXPECT_TRUE(run.form.cmdImpNC.enabled());
    EXPECT_EQ(run.form.Text7.text(), joined_codes(odd_picks()));
    run.pick_players({20});
    rest.push_back(20);
    EXPECT_EQ(run.told(), Texts{complete});
    expect_picks(run.form, rest);
    EXPECT_EQ(run.form.Text7.text(), joined_codes(rest));
    EXPECT_FALSE(run.form.listNC.enabled());
}

TEST(NoContact, ImportsATeamIntoTheListsOfTheFirstTab) {
    PickRun run(odd_picks());
    run.told();
    run.import(run.form.cmdImpNC, test::team_file(12, 23, "Nuova Squadra", "nuo"));
    EXPECT_TRUE(run.form.cmdSaveNC.enabled());
    EXPECT_EQ(run.form.ImportPending, 1);
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_EQ(run.form.listDat.item(22), player_name(12, 22));
    EXPECT_EQ(run.form.listApp.count(), 23);
    EXPECT_EQ(run.form.txtSqHEX.text(), "Nuova Squadra");
    EXPECT_EQ(run.form.txtSqDec.text(), "Nuova Squadra");
    EXPECT_EQ(run.form.txtSqShort.text(), "nuo");
    EXPECT_TRUE(run.log.empty());
}

TEST(NoContact, OffersTheSaveAlsoWhenNoFileWasChosen) {
    PickRun run(odd_picks());
    run.platform.choices.emplace_back();
    run.click(run.form.cmdImpNC);
    EXPECT_TRUE(run.form.cmdSaveNC.enabled());
    EXPECT_EQ(run.form.ImportPending, 1);
    EXPECT_EQ(run.form.listDat.count(), 0);
}

TEST(NoContact, StartsAnewWithoutAClub) {
    PickRun run(odd_picks());
    run.import(run.form.cmdImpNC, test::team_file(12, 23));
    run.told();
    run.pick(run.form.cboSqNC, 5);
    run.pick(run.form.listNC, 40);
    run.form.listNC.set_enabled(false);
    run.click(run.form.cmdNuevo);
    EXPECT_EQ(run.form.cboSqNC.row(), -1);
    EXPECT_EQ(run.form.cboSqNC.text(), "");
    // The choice of the first row has shown its club and switched the pool on.
    EXPECT_EQ(run.form.lblNameML.caption(), shown_club_name(0));
    EXPECT_TRUE(run.form.listNC.enabled());
    EXPECT_FALSE(run.form.cmdImpNC.enabled());
    EXPECT_FALSE(run.form.cmdSaveNC.enabled());
    EXPECT_EQ(run.form.listNC.row(), 0);
    EXPECT_EQ(run.form.lblNaz.caption(), "Ireland");
    expect_picks(run.form, {});
    EXPECT_EQ(run.form.Text7.text(), joined_codes(odd_picks())) << "only the lists are emptied";
    EXPECT_TRUE(run.told().empty());
    EXPECT_TRUE(run.log.empty());
}

TEST(NoContact, StartingAnewFromTheFirstRowsRaisesNoClicks) {
    PickRun run;
    run.pick(run.form.cboSqNC, 0);
    run.pick(run.form.listNC, 0);
    run.form.lblNameML.set_caption("kept");
    run.form.lblNaz.set_caption("kept");
    run.form.listNC.set_enabled(false);
    run.click(run.form.cmdNuevo);
    EXPECT_EQ(run.form.lblNameML.caption(), "kept");
    EXPECT_EQ(run.form.lblNaz.caption(), "kept");
    EXPECT_FALSE(run.form.listNC.enabled());
    EXPECT_EQ(run.form.cboSqNC.row(), -1);
}

TEST(NoContact, ExplainsTheMark) {
    LeagueRun run;
    run.click(run.form.cmdHelp);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_EQ(run.platform.messages[0].text,
              "Il simbolo * accanto al giocatore non viene sal- \n\rvato nella modifica, ma serve solo al momento \n\r"
              "per indicare i giocatori gi\xE0 selezionati. ");
}

TEST(NoContact, IsSwitchedOffByEveryTabButTheFirst) {
    for (const int other : {tab::players, tab::kickers, tab::transfers, tab::formations, tab::numbers}) {
        PickRun run(odd_picks());
        run.import(run.form.cmdImpNC, test::team_file(12, 23));
        run.pick(run.form.cboSqNC, 5);
        run.select_tab(other);
        run.select_tab(tab::league);
        const bool kept = other == tab::players;
        EXPECT_EQ(run.form.cmdImpNC.enabled(), kept) << other;
        EXPECT_EQ(run.form.cmdSaveNC.enabled(), kept) << other;
        EXPECT_EQ(run.form.listNC.enabled(), kept) << other;
        expect_picks(run.form, odd_picks());
    }
}

}  // namespace
}  // namespace kalco
