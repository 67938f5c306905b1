#include "editor/window/user.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/memory_storage.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using user::Outcome;

/// The window without any handlers.
class UserActions : public ::testing::Test {
protected:
    UserActions() {
        platform.home = home.path();
        form.Frame3.set_enabled(true);
    }

    /// Appends a word to `log` for each event of a control.
    template <typename T>
    void follow(T& control) {
        control.got_focus = [this, &control] { log.push_back(control.name() + " got"); };
        control.lost_focus = [this, &control] { log.push_back(control.name() + " lost"); };
        if constexpr (requires { control.click; }) {
            control.click = [this, &control] { log.push_back(control.name() + " click"); };
        }
        if constexpr (requires { control.double_click; }) {
            control.double_click = [this, &control] { log.push_back(control.name() + " double"); };
        }
        if constexpr (requires { control.change; }) {
            control.change = [this, &control] { log.push_back(control.name() + " change"); };
        }
    }

    std::vector<std::string> logged() { return std::exchange(log, {}); }

    using Log = std::vector<std::string>;
    test::Disc disc;
    test::TemporaryHome home;
    test::FakePlatform platform;
    frmKalco form{platform, test::opener_of(disc)};
    Log log;
};

TEST_F(UserActions, MoveTheFocusBeforeTheClick) {
    follow(form.txtName);
    follow(form.cmdName);
    user::focus(form, form.txtName);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::done);
    EXPECT_EQ(logged(), (Log{"txtName got", "txtName lost", "cmdName got", "cmdName click"}));
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::done);
    EXPECT_EQ(logged(), (Log{"cmdName click"}));
    EXPECT_EQ(form.focused(), &form.cmdName);
}

TEST_F(UserActions, SelectRowsWithTheFocus) {
    form.listDat.assign({"a", "b"});
    form.cboVel.set_items({"12", "13"});
    follow(form.listDat);
    follow(form.cboVel);
    EXPECT_EQ(user::pick(form, form.listDat, 1), Outcome::done);
    EXPECT_EQ(user::pick(form, form.listDat, 1), Outcome::done);
    EXPECT_EQ(logged(), (Log{"listDat got", "listDat click", "listDat click"}));
    EXPECT_EQ(user::pick(form, form.cboVel, 1), Outcome::done);
    EXPECT_EQ(logged(), (Log{"listDat lost", "cboVel got", "cboVel click"}));
    EXPECT_EQ(form.cboVel.text(), "13");
}

TEST_F(UserActions, PickBeforeADoubleClick) {
    form.listDat.assign({"a", "b"});
    form.cboVel.set_items({"12", "13"});
    follow(form.listDat);
    follow(form.cboVel);
    EXPECT_EQ(user::double_click(form, form.listDat, 1), Outcome::done);
    EXPECT_EQ(logged(), (Log{"listDat got", "listDat click", "listDat double"}));
    EXPECT_EQ(user::press_again(form, form.listDat), Outcome::done);
    EXPECT_EQ(logged(), (Log{"listDat double"}));
    EXPECT_EQ(user::double_click(form, form.cboVel, 1), Outcome::done);
    EXPECT_EQ(logged(), (Log{"listDat lost", "cboVel got", "cboVel click"}));
}

TEST_F(UserActions, AreRefusedByWhatIsSwitchedOff) {
    follow(form.cmdName);
    form.cmdName.set_enabled(false);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::disabled);
    form.cmdName.set_enabled(true);
    form.Frame3.set_enabled(false);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::disabled);
    EXPECT_EQ(user::focus(form, form.cmdName), Outcome::disabled);
    EXPECT_EQ(user::type(form, form.txtName, "x"), Outcome::disabled);
    EXPECT_EQ(user::pick(form, form.cboVel, 0), Outcome::disabled);
    EXPECT_EQ(user::double_click(form, form.listDat, 0), Outcome::disabled);
    EXPECT_EQ(user::press_again(form, form.listDat), Outcome::disabled);
    EXPECT_EQ(user::edit(form, form.txtName, "x"), Outcome::disabled);
    EXPECT_TRUE(logged().empty());
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_EQ(form.focused(), nullptr);
}

TEST_F(UserActions, AreRefusedByWhatIsNotOnTheScreen) {
    EXPECT_EQ(user::click(form, form.cmdHelp), Outcome::hidden);
    EXPECT_EQ(user::click(form, form.lblPos), Outcome::hidden);
    EXPECT_EQ(user::focus(form, form.listApp), Outcome::hidden);
    EXPECT_EQ(user::type(form, form.txtNum, "5"), Outcome::hidden);
    form.cmdName.set_visible(false);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::hidden);
    form.cmdName.set_visible(true);
    form.Frame3.set_visible(false);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::hidden);
    EXPECT_EQ(form.focused(), nullptr);
}

TEST_F(UserActions, ReachTheControlsOfTheShownTabAndThoseOutside) {
    for (int tab = 0; tab < 6; ++tab) {
        form.SSTab1.select(tab);
        EXPECT_EQ(user::reach(form, form.cmdOpen), Outcome::done);
        EXPECT_EQ(user::reach(form, form.SSTab1), Outcome::done);
        EXPECT_EQ(user::reach(form, form.cboSeqSQ), tab == tab::players ? Outcome::done : Outcome::hidden);
        EXPECT_EQ(user::reach(form, form.cmdHelp), tab == tab::league ? Outcome::done : Outcome::hidden);
        EXPECT_EQ(user::reach(form, form.cboSquadra), tab == tab::kickers ? Outcome::done : Outcome::hidden);
        EXPECT_EQ(user::reach(form, form.cmdTeam1), tab == tab::transfers ? Outcome::done : Outcome::hidden);
        EXPECT_EQ(user::reach(form, form.cboSeqSQ2), tab == tab::formations ? Outcome::done : Outcome::hidden);
        EXPECT_EQ(user::reach(form, form.cboSQNum), tab == tab::numbers ? Outcome::done : Outcome::hidden);
    }
}

TEST_F(UserActions, LeaveTheFocusWithLabelsAndMarkers) {
    form.SSTab1.select(tab::formations);
    follow(form.cboSeqSQ2);
    auto& marker = form.lblGioc(3);
    marker.press = [&] { log.emplace_back("press"); };
    marker.click = [&] { log.emplace_back("click"); };
    user::focus(form, form.cboSeqSQ2);
    EXPECT_EQ(user::click(form, marker), Outcome::done);
    EXPECT_EQ(user::click(form, form.lblNameG), Outcome::done);
    EXPECT_EQ(logged(), (Log{"cboSeqSQ2 got", "press", "click"}));
    EXPECT_EQ(form.focused(), &form.cboSeqSQ2);
}

TEST_F(UserActions, SelectAnOptionOnlyOnce) {
    form.SSTab1.select(tab::transfers);
    form.fraScambio.set_enabled(true);
    follow(form.OpRec);
    follow(form.OpNREC);
    EXPECT_TRUE(form.OpNREC.value());
    user::click(form, form.OpRec);
    EXPECT_EQ(logged(), (Log{"OpRec got", "OpRec click"}));
    EXPECT_FALSE(form.OpNREC.value());
    user::click(form, form.OpRec);
    EXPECT_TRUE(logged().empty());
    EXPECT_TRUE(form.OpRec.value());
}

TEST_F(UserActions, TypeOverTheOldTextInOneChange) {
    form.txtName.set_text("Old");
    follow(form.txtName);
    EXPECT_EQ(user::type(form, form.txtName, "New name"), Outcome::done);
    EXPECT_EQ(form.txtName.text(), "New name");
    EXPECT_EQ(logged(), (Log{"txtName got", "txtName change"}));
    user::type(form, form.txtName, "");
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_EQ(logged(), (Log{"txtName change"}));
}

TEST_F(UserActions, TypeUpToTheMaximumLength) {
    form.txtName.set_max_length(4);
    user::type(form, form.txtName, "abcdefg");
    EXPECT_EQ(form.txtName.text(), "abcd");
    form.txtName.set_max_length(0);
    user::type(form, form.txtName, "abcdefghijklm");
    EXPECT_EQ(form.txtName.text(), "abcdefghijklm");
}

TEST_F(UserActions, DropControlCharactersAndWhatTheFilterRefuses) {
    std::string every;
    std::string printable;
    for (int code = 0; code <= 0xFF; ++code) {
        every += static_cast<char>(code);
        const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
        if (!control) printable += static_cast<char>(code);
        EXPECT_EQ(user::accepts_key(form.txtName, static_cast<char>(code)), !control) << code;
    }
    user::type(form, form.txtName, every);
    EXPECT_EQ(form.txtName.text(), printable);
    // A dropped character takes no room.
    form.txtName.key_filter = [](char c) { return c >= '0' && c <= '9'; };
    form.txtName.set_max_length(3);
    user::type(form, form.txtName, "a1\n2b34");
    EXPECT_EQ(form.txtName.text(), "123");
}

TEST_F(UserActions, TakeOverAnEditOfAView) {
    form.txtName.set_text("Old");
    follow(form.txtName);
    EXPECT_EQ(user::edit(form, form.txtName, "Old"), Outcome::done);
    EXPECT_EQ(logged(), (Log{"txtName got"}));
    EXPECT_EQ(user::edit(form, form.txtName, "Ol"), Outcome::done);
    EXPECT_EQ(form.txtName.text(), "Ol");
    EXPECT_EQ(logged(), (Log{"txtName change"}));
}

TEST_F(UserActions, AreNotCarriedOutWhenTheFocusIsTakenBack) {
    form.listDat.assign({"a", "b"});
    follow(form.cmdName);
    follow(form.listDat);
    follow(form.txtSQ);
    form.txtName.lost_focus = [&] {
        log.emplace_back("taken back");
        form.set_focus(form.txtName);
    };
    user::focus(form, form.txtName);
    EXPECT_EQ(user::click(form, form.cmdName), Outcome::focus_kept);
    EXPECT_EQ(user::pick(form, form.listDat, 1), Outcome::focus_kept);
    EXPECT_EQ(user::double_click(form, form.listDat, 1), Outcome::focus_kept);
    EXPECT_EQ(user::type(form, form.txtSQ, "x"), Outcome::focus_kept);
    EXPECT_EQ(user::edit(form, form.txtSQ, "x"), Outcome::focus_kept);
    EXPECT_EQ(user::focus(form, form.txtSQ), Outcome::focus_kept);
    EXPECT_EQ(user::select_tab(form, 1), Outcome::focus_kept);
    EXPECT_EQ(logged(), Log(7, "taken back"));
    EXPECT_EQ(form.focused(), &form.txtName);
    EXPECT_EQ(form.listDat.row(), -1);
    EXPECT_EQ(form.txtSQ.text(), "");
    EXPECT_EQ(form.SSTab1.tab(), 0);
    // Its own actions go on.
    EXPECT_EQ(user::type(form, form.txtName, "x"), Outcome::done);
    EXPECT_EQ(form.txtName.text(), "x");
}

TEST_F(UserActions, FollowAFocusThatMovesOn) {
    follow(form.txtSQ);
    form.txtName.got_focus = [&] { form.set_focus(form.txtSQ); };
    EXPECT_EQ(user::focus(form, form.txtName), Outcome::focus_kept);
    EXPECT_EQ(form.focused(), &form.txtSQ);
    EXPECT_EQ(logged(), (Log{"txtSQ got"}));
}

TEST_F(UserActions, KeepTheFocusOfAControlThatIsSwitchedOff) {
    follow(form.cmdName);
    form.cmdName.click = [&] { form.cmdName.set_enabled(false); };
    user::click(form, form.cmdName);
    EXPECT_EQ(form.focused(), &form.cmdName);
    EXPECT_EQ(logged(), (Log{"cmdName got"}));
    user::focus(form, form.cmdNew);
    EXPECT_EQ(logged(), (Log{"cmdName lost"}));
}

TEST_F(UserActions, LoseTheFocusBeforeTheTabChanges) {
    form.txtName.lost_focus = [&] { log.push_back("lost on tab " + std::to_string(form.SSTab1.tab())); };
    form.SSTab1.change = [&] { log.push_back("tab " + std::to_string(form.SSTab1.tab())); };
    user::focus(form, form.txtName);
    EXPECT_EQ(user::select_tab(form, 3), Outcome::done);
    EXPECT_EQ(logged(), (Log{"lost on tab 0", "tab 3"}));
    EXPECT_EQ(form.focused(), &form.SSTab1);
}

TEST_F(UserActions, CloseTheImageWithoutAQuestion) {
    platform.choices.emplace_back("disc.bin");
    user::start(form);
    EXPECT_TRUE(disc.held);
    user::close(form);
    EXPECT_FALSE(disc.held);
    EXPECT_EQ(form.ended, Ending::closed);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(disc.writes, 0);
}

}  // namespace
}  // namespace kalco
