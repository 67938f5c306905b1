#include "editor/teamfiles/transfers.h"

#include <gtest/gtest.h>

#include "support/editor_run.h"
#include "support/team_files.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::exported;
using Texts = std::vector<std::string>;
const Texts missing{"Devi selezionare l'altro Giocatore"};
const Texts too_few{"Attenzione puoi aprire solo\r\n     files di 23 giocatori"};

/// Line `row` of a file, with the words and the name of another player.
std::string line_of(int row, int team, int player) {
    return 'p' + std::to_string(row + 1) + '=' + test::text_of_words(test::player_record(team, player)) +
           test::player_name(team, player);
}

class Transfers : public ::testing::Test {
protected:
    Transfers() { EXPECT_EQ(user::select_tab(run.form, tab::transfers), user::Outcome::done); }

    void open(CommandButton& button, const std::string& contents) {
        const std::string name = "team" + std::to_string(++files_) + ".DAT";
        run.platform.choices.push_back(run.home.write(name, contents));
        run.click(button);
    }
    void open_both() {
        open(form.cmdTeam1, test::team_file(10, 23, "Italia", "ITA"));
        open(form.cmdteam2, test::team_file(20, 23, "Ungheria", "UNG"));
    }
    void choose(ListBox& list, int row) { EXPECT_EQ(user::pick(form, list, row), user::Outcome::done); }
    std::string states() const {
        std::string text;
        for (const Control* control : std::initializer_list<const Control*>{
                 &form.cmdTeam1, &form.cmdteam2, &form.ListVende, &form.ListCompra, &form.fraScambio, &form.cmdTransfer,
                 &form.cmdSave1, &form.cmdSave2}) {
            text += control->enabled() ? '1' : '0';
        }
        return text;
    }

    EditorRun run;
    frmKalco& form = run.form;

private:
    int files_ = 0;
};

TEST_F(Transfers, StartWithOneButton) {
    EXPECT_EQ(states(), "10100000");
    EXPECT_TRUE(form.OpNREC.value());
    EXPECT_FALSE(form.OpRec.value());
    EXPECT_EQ(form.cmdTransfer.caption(), "<---------  --------->");
    EXPECT_EQ(form.cmdTransfer.hint(), "Trasferisci");
    EXPECT_EQ(form.cmdSave1.caption(), "SaveTeam&1");
    EXPECT_EQ(form.cmdSave2.caption(), "SaveTeam&2");
    EXPECT_EQ(form.fraScambio.caption(), "Tipo di Scambio");
    EXPECT_TRUE(run.home.has("Transfer"));
}

TEST_F(Transfers, OpenTheFirstTeam) {
    open(form.cmdTeam1, test::team_file(10, 23, "Citt\xE0 alta", "CIT"));
    ASSERT_EQ(run.platform.dialogs.size(), 2U);
    EXPECT_EQ(run.platform.dialogs[1].filter, "*.DAT|*.DAT");
    EXPECT_EQ(run.platform.dialogs[1].initial_directory, run.home.path());
    EXPECT_EQ(form.txtSquadra1.text(), "CITT\xC0 ALTA");
    ASSERT_EQ(form.listTras1.count(), 28);
    EXPECT_EQ(form.listTras1.item(3), "longname=Citt\xE0 alta");
    ASSERT_EQ(form.ListVende.count(), 23);
    for (int i = 0; i < 23; ++i) EXPECT_EQ(form.ListVende.item(i), ' ' + test::player_name(10, i));
    EXPECT_EQ(form.ListVende.row(), -1);
    EXPECT_EQ(states(), "11110000");
    EXPECT_EQ(form.ListCompra.count(), 0);
    EXPECT_TRUE(run.told().empty());
}

TEST_F(Transfers, OpenTheSecondTeam) {
    open_both();
    EXPECT_EQ(form.txtSquadra2.text(), "UNGHERIA");
    EXPECT_EQ(form.listTras2.count(), 28);
    EXPECT_EQ(form.ListCompra.item(22), ' ' + test::player_name(20, 22));
    EXPECT_EQ(states(), "11111000");
    choose(form.ListVende, 0);
    EXPECT_EQ(states(), "11111101") << "a click on a player enables the transfer and the second save";
}

TEST_F(Transfers, ShowNamesBehindTheThirdComma) {
    std::string file = test::head_of_team_file("X", "X");
    for (int i = 0; i < 23; ++i) file += "any=text,1,,De Rossi, D. = " + std::to_string(i) + "\r\n";
    open(form.cmdTeam1, file);
    EXPECT_EQ(form.ListVende.item(4), " De Rossi, D. = 4");
    EXPECT_EQ(form.ListVende.count(), 23);
}

TEST_F(Transfers, EmptyTheSideOnACancelledDialog) {
    open_both();
    run.platform.choices.push_back("");
    run.click(form.cmdTeam1);
    EXPECT_EQ(form.listTras1.count(), 0);
    EXPECT_EQ(form.ListVende.count(), 0);
    EXPECT_EQ(form.txtSquadra1.text(), "ITALIA");
    EXPECT_EQ(form.ListCompra.count(), 23);
    EXPECT_EQ(states(), "11111000");
}

TEST_F(Transfers, RefuseFilesBelowTwentyThreePlayers) {
    for (const int players : {0, 1, 22}) {
        open(form.cmdTeam1, test::team_file(10, players, "Corta", "COR"));
        ASSERT_EQ(run.platform.messages.size(), 1U);
        EXPECT_EQ(run.platform.messages[0].icon, Icon::stop);
        EXPECT_EQ(run.told(), too_few);
        EXPECT_EQ(form.ListVende.count(), 0);
        EXPECT_EQ(form.txtSquadra1.text(), "");
        EXPECT_EQ(form.listTras1.count(), players + 5) << "the lines stay";
        EXPECT_EQ(states(), "10100000");
    }
    open(form.cmdTeam1, "");
    EXPECT_EQ(run.told(), too_few);
    EXPECT_EQ(form.listTras1.count(), 0);
    open(form.cmdTeam1, test::team_file(10, 23));
    open(form.cmdteam2, test::team_file(10, 22));
    EXPECT_EQ(run.told(), too_few);
    EXPECT_EQ(form.ListCompra.count(), 0);
    EXPECT_EQ(form.txtSquadra2.text(), "");
    EXPECT_EQ(form.ListVende.count(), 23);
    EXPECT_EQ(states(), "11110000");
}

TEST_F(Transfers, AreSilentAboutFilesThatCannotBeRead) {
    open_both();
    for (const std::string& path : {run.home.path("missing.DAT"), run.home.path()}) {
        run.platform.choices.push_back(path);
        run.click(form.cmdTeam1);
        EXPECT_TRUE(run.told().empty());
        EXPECT_EQ(form.listTras1.count(), 0);
        EXPECT_EQ(form.ListVende.count(), 0);
        EXPECT_EQ(form.txtSquadra1.text(), "ITALIA");
    }
}

TEST_F(Transfers, KeepLinesBeyondTheRoster) {
    open(form.cmdTeam1, test::team_file(95, 25, "Lunga", "LUN"));
    EXPECT_EQ(form.listTras1.count(), 30);
    EXPECT_EQ(form.ListVende.count(), 23);
    form.cmdSave1.set_enabled(true);
    run.click(form.cmdSave1);
    EXPECT_EQ(run.home.read("Transfer/LUNGA.DAT"), test::team_file(95, 25, "Lunga", "LUN"));
}

TEST_F(Transfers, CopyAPlayerOneWay) {
    open_both();
    choose(form.ListVende, 4);
    choose(form.ListCompra, 17);
    const Texts first = form.listTras1.items();
    Texts second = form.listTras2.items();
    int clicks = 0;
    form.ListCompra.click = [&clicks] { ++clicks; };
    run.click(form.cmdTransfer);
    second[22] = line_of(17, 10, 4);
    EXPECT_EQ(form.listTras2.items(), second);
    EXPECT_EQ(form.listTras1.items(), first);
    EXPECT_EQ(form.ListCompra.item(17), ' ' + test::player_name(10, 4));
    EXPECT_EQ(form.ListVende.item(4), ' ' + test::player_name(10, 4));
    EXPECT_EQ(form.ListVende.row(), 4);
    EXPECT_EQ(form.ListCompra.row(), 17);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(form.ListCompra.count(), 23);
    EXPECT_FALSE(form.cmdSave1.enabled());
    EXPECT_TRUE(run.told().empty());
    // The same player once more, into another row.
    choose(form.ListCompra, 0);
    run.click(form.cmdTransfer);
    second[5] = line_of(0, 10, 4);
    EXPECT_EQ(form.listTras2.items(), second);
}

TEST_F(Transfers, SwapPlayersBothWays) {
    open_both();
    run.click(form.OpRec);
    EXPECT_TRUE(form.cmdSave1.enabled());
    choose(form.ListVende, 22);
    choose(form.ListCompra, 0);
    const Texts first = form.listTras1.items();
    const Texts second = form.listTras2.items();
    const Texts sold = form.ListVende.items();
    const Texts bought = form.ListCompra.items();
    run.click(form.cmdTransfer);
    Texts swapped_first = first;
    swapped_first[27] = line_of(22, 20, 0);
    Texts swapped_second = second;
    swapped_second[5] = line_of(0, 10, 22);
    EXPECT_EQ(form.listTras1.items(), swapped_first);
    EXPECT_EQ(form.listTras2.items(), swapped_second);
    EXPECT_EQ(form.ListVende.item(22), ' ' + test::player_name(20, 0));
    EXPECT_EQ(form.ListCompra.item(0), ' ' + test::player_name(10, 22));
    EXPECT_EQ(form.ListVende.row(), 22);
    EXPECT_EQ(form.ListCompra.row(), 0);
    run.click(form.cmdTransfer);
    EXPECT_EQ(form.listTras1.items(), first) << "twice gives back the first state";
    EXPECT_EQ(form.listTras2.items(), second);
    EXPECT_EQ(form.ListVende.items(), sold);
    EXPECT_EQ(form.ListCompra.items(), bought);
}

TEST_F(Transfers, KeepTheKeyUpToTheFirstEqualsSign) {
    std::string first = test::head_of_team_file("Uno", "U");
    std::string second = test::head_of_team_file("Due", "D");
    for (int i = 0; i < 23; ++i) {
        first += "key" + std::to_string(i) + "=1=2,3,4,Name=" + std::to_string(i) + "\r\n";
        second += "x" + std::to_string(i) + "=9,9,9,Other\r\n";
    }
    open(form.cmdTeam1, first);
    open(form.cmdteam2, second);
    choose(form.ListVende, 3);
    choose(form.ListCompra, 5);
    run.click(form.OpRec);
    run.click(form.cmdTransfer);
    EXPECT_EQ(form.listTras2.item(10), "x5=1=2,3,4,Name=3");
    EXPECT_EQ(form.listTras1.item(8), "key3=9,9,9,Other");
}

TEST_F(Transfers, TakeALineWithoutAKeyWhole) {
    std::string bare = test::head_of_team_file("Uno", "U");
    std::string keyed = test::head_of_team_file("Due", "D");
    for (int i = 0; i < 23; ++i) {
        bare += std::to_string(i) + ",2,3,Bare\r\n";
        keyed += "x" + std::to_string(i) + "=9,9,9,Keyed\r\n";
    }
    open(form.cmdTeam1, bare);
    open(form.cmdteam2, keyed);
    choose(form.ListVende, 3);
    choose(form.ListCompra, 5);
    run.click(form.OpRec);
    run.click(form.cmdTransfer);
    EXPECT_EQ(form.listTras2.item(10), "x5=3,2,3,Bare");
    EXPECT_EQ(form.listTras1.item(8), "9,9,9,Keyed");
    open(form.cmdteam2, bare);
    choose(form.ListVende, 4);
    choose(form.ListCompra, 6);
    run.click(form.cmdTransfer);
    EXPECT_EQ(form.listTras2.item(11), "4,2,3,Bare");
    EXPECT_EQ(form.listTras1.item(9), "6,2,3,Bare");
}

TEST_F(Transfers, AskForTheMissingPlayer) {
    open_both();
    choose(form.ListVende, 2);
    const Texts second = form.listTras2.items();
    run.click(form.cmdTransfer);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_EQ(run.told(), missing);
    EXPECT_EQ(form.listTras2.items(), second);
    EXPECT_EQ(form.ListCompra.count(), 23);
    run.click(form.OpRec);
    run.click(form.cmdTransfer);
    EXPECT_EQ(run.told(), missing);
    choose(form.ListCompra, 2);
    open(form.cmdTeam1, test::team_file(30, 23));
    EXPECT_TRUE(form.cmdTransfer.enabled()) << "opening again disables nothing";
    const Texts first = form.listTras1.items();
    run.click(form.cmdTransfer);
    EXPECT_EQ(run.told(), missing);
    EXPECT_EQ(form.listTras1.items(), first);
    EXPECT_EQ(form.listTras2.items(), second);
}

TEST_F(Transfers, LetTheTypeDecideOnTheFirstSave) {
    open_both();
    choose(form.ListVende, 2);
    choose(form.ListCompra, 2);
    run.click(form.cmdTransfer);
    EXPECT_FALSE(form.cmdSave1.enabled());
    run.click(form.OpNREC);
    EXPECT_FALSE(form.cmdSave1.enabled());
    run.click(form.OpRec);
    EXPECT_TRUE(form.cmdSave1.enabled());
    EXPECT_FALSE(form.OpNREC.value());
    form.cmdSave1.set_enabled(false);
    run.click(form.OpRec);
    EXPECT_FALSE(form.cmdSave1.enabled()) << "it was selected already";
    form.cmdSave1.set_enabled(true);
    run.click(form.OpNREC);
    EXPECT_FALSE(form.cmdSave1.enabled());
    EXPECT_FALSE(form.OpRec.value());
}

TEST_F(Transfers, SaveBothTeams) {
    open_both();
    choose(form.ListVende, 1);
    run.click(form.cmdSave2);
    EXPECT_EQ(run.platform.messages.at(0).icon, Icon::information);
    EXPECT_EQ(run.told(), Texts{exported});
    EXPECT_EQ(run.home.read("Transfer/UNGHERIA.DAT"), test::team_file(20, 23, "Ungheria", "UNG"));
    run.click(form.OpRec);
    choose(form.ListCompra, 1);
    run.click(form.cmdTransfer);
    run.home.write("Transfer/ITALIA.DAT", std::string(50000, 'x'));
    run.click(form.cmdSave1);
    run.click(form.cmdSave2);
    EXPECT_EQ(run.told().size(), 2U);
    std::string first;
    for (const std::string& line : form.listTras1.items()) first += line + "\r\n";
    EXPECT_EQ(run.home.read("Transfer/ITALIA.DAT"), first);
    EXPECT_NE(first.find(line_of(1, 20, 1) + "\r\n"), std::string::npos);
    EXPECT_TRUE(run.log.empty()) << "the image is not used";
}

TEST_F(Transfers, SaveWhatTheFirstTabImports) {
    open_both();
    run.click(form.OpRec);
    choose(form.ListVende, 6);
    choose(form.ListCompra, 8);
    run.click(form.cmdTransfer);
    run.click(form.cmdSave1);
    EXPECT_EQ(user::select_tab(form, tab::players), user::Outcome::done);
    run.choose_team(40);
    run.platform.choices.push_back(run.home.path("Transfer/ITALIA.DAT"));
    run.click(form.cmdImp);
    EXPECT_EQ(form.listDat.item(6), test::player_name(20, 8));
    EXPECT_EQ(form.listDat.item(5), test::player_name(10, 5));
    EXPECT_EQ(form.txtSqHEX.text(), "Italia");
}

TEST_F(Transfers, TellWhatPreventsASave) {
    open_both();
    choose(form.ListVende, 1);
    form.txtSquadra2.set_text("A/B");
    run.click(form.cmdSave2);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::stop);
    EXPECT_EQ(run.told(), Texts{"Nome o numero di file non valido"});
    form.txtSquadra2.set_text("Due");
    std::filesystem::remove_all(run.home.path("Transfer"));
    run.click(form.cmdSave2);
    EXPECT_EQ(run.told(), Texts{"Errore di accesso al percorso/file"});
    EXPECT_FALSE(run.home.has("Transfer"));
    EXPECT_EQ(user::select_tab(form, tab::numbers), user::Outcome::done);
    EXPECT_EQ(user::select_tab(form, tab::transfers), user::Outcome::done);
    run.click(form.cmdSave2);
    EXPECT_EQ(run.told(), Texts{exported});
    EXPECT_TRUE(run.home.has("Transfer/Due.DAT"));
}

TEST_F(Transfers, TellADeviceInTheFilesPlace) {
    open_both();
    choose(form.ListVende, 1);
    std::filesystem::create_symlink("/dev/full", run.home.path("Transfer/UNGHERIA.DAT"));
    run.click(form.cmdSave2);
    EXPECT_EQ(run.told(), Texts{"Errore di accesso al percorso/file"});
}

TEST_F(Transfers, KeepTheListsWhenTheTabIsLeft) {
    open_both();
    choose(form.ListVende, 3);
    for (const int other : {tab::players, tab::league, tab::kickers, tab::numbers}) {
        EXPECT_EQ(user::select_tab(form, other), user::Outcome::done);
    }
    EXPECT_EQ(user::select_tab(form, tab::transfers), user::Outcome::done);
    EXPECT_EQ(form.ListVende.count(), 23);
    EXPECT_EQ(form.ListVende.row(), 3);
    EXPECT_EQ(form.listTras2.count(), 28);
    EXPECT_EQ(states(), "11111101");
}

}  // namespace
}  // namespace kalco
