#include "editor/window/shell.h"

#include <gtest/gtest.h>

#include "editor/editor.h"
#include "editor/window/general.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/filled_disc.h"
#include "support/outcome.h"
#include "support/shelf.h"
#include "support/snapshot.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using test::error_of;
using test::Snapshot;
using Texts = std::vector<std::string>;

/// An editor with two images; the routines of the lists are noted in `runs`.
class Shell : public ::testing::Test {
protected:
    Shell() {
        shelf.discs["a.bin"].bytes = test::filled_image();
        shelf.discs["b.bin"].bytes = std::string(1000, 'b');
        platform.home = home.path();
        note(form.slots.NAMES_GIOC_NAZ, "NAMES_GIOC_NAZ");
        note(form.slots.NAME_NO_CONTACT, "NAME_NO_CONTACT");
        note(form.slots.CONTR_NAME_NC, "CONTR_NAME_NC");
    }

    void note(Event& slot, const char* name) {
        slot = [this, name, routine = slot] {
            runs.emplace_back(name);
            EXPECT_EQ(form.ImportPending, 0);
            EXPECT_EQ(form.txtName.max_length(), 10);
            routine();
        };
    }

    void start(const std::string& path) {
        platform.choices.push_back(path);
        user::start(form);
    }
    void open(const std::string& path) {
        platform.choices.push_back(path);
        EXPECT_EQ(user::click(form, form.cmdOpen), user::Outcome::done);
    }
    bool has_export() const { return home.has("Export"); }

    const Texts all_lists{"NAMES_GIOC_NAZ", "NAME_NO_CONTACT", "CONTR_NAME_NC"};
    test::Shelf shelf;
    test::FakePlatform platform;
    test::TemporaryHome home;
    Editor editor{platform, shelf.opener()};
    frmKalco& form = editor.form;
    Texts runs;
};

using StartUp = Shell;
using CmdOpen = Shell;
using CmdNew = Shell;
using ClearFrame = Shell;

TEST_F(StartUp, OpensTheChosenImage) {
    form.ImportPending = 1;
    start("a.bin");
    EXPECT_FALSE(form.ended);
    EXPECT_EQ(form.ImagePath, "a.bin");
    EXPECT_EQ(shelf.opened, Texts{"a.bin"});
    EXPECT_TRUE(shelf.discs["a.bin"].held);
    EXPECT_TRUE(has_export());
    EXPECT_EQ(form.SSTab1.tab(), 0);
    EXPECT_EQ(form.txtName.max_length(), 10);
    EXPECT_EQ(form.txtML.max_length(), 3);
    EXPECT_EQ(form.ImportPending, 0);
    EXPECT_EQ(form.ImportPendingML, 0);
    EXPECT_EQ(runs, all_lists);
    EXPECT_EQ(form.listNC.count(), 462);
    EXPECT_EQ(form.ListAppOrigName.items(), form.listNC.items());
    EXPECT_EQ(form.listNameGiocNaz.count(), 63 * 23 + 1);
    EXPECT_EQ(shelf.discs["a.bin"].writes, 0);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(StartUp, ShowsItsDialogInTheProgramsDirectory) {
    start("a.bin");
    ASSERT_EQ(platform.dialogs.size(), 1U);
    EXPECT_EQ(platform.dialogs[0].filter,
              "Image CDRWIN (*.bin)|*.bin| Image CloneCD (*.img)|*.img| All Files (*.*)|*.*");
    EXPECT_EQ(platform.dialogs[0].initial_directory, home.path());
}

TEST_F(StartUp, EndsWithoutAWordWhenItsDialogIsCancelled) {
    start("");
    EXPECT_EQ(form.ended, Ending::cancelled);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(shelf.opened.empty());
    EXPECT_FALSE(has_export());
    EXPECT_TRUE(runs.empty());
}

TEST_F(StartUp, TellsThatAnotherProgramHoldsTheImage) {
    shelf.discs["a.bin"].held = true;
    start("a.bin");
    EXPECT_EQ(form.ended, Ending::denied);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Accesso negato, Immagine CD gi\xE0 aperta");
    EXPECT_EQ(platform.messages[0].icon, Icon::stop);
    EXPECT_EQ(platform.messages[0].buttons, Buttons::ok);
    EXPECT_FALSE(has_export());
    EXPECT_TRUE(runs.empty());
}

TEST_F(StartUp, GoesOnWithoutAnImageAfterAnyOtherFailure) {
    for (const int number : {error::file_not_found, error::path_access, error::device_io}) {
        shelf.failures["x.bin"] = number;
        start("x.bin");
        EXPECT_FALSE(form.ended) << number;
        EXPECT_EQ(form.ImagePath, "x.bin");
        EXPECT_FALSE(form.image.is_open());
        EXPECT_TRUE(platform.messages.empty());
        EXPECT_FALSE(has_export());
        EXPECT_EQ(form.txtName.max_length(), 0);
        EXPECT_TRUE(runs.empty());
    }
    // The first read is the end.
    EXPECT_EQ(error_of([&] { user::pick(form, form.cboSeqSQ, 0); }), error::bad_file_name);
    EXPECT_EQ(error_of([&] { user::select_tab(form, tab::league); }), error::bad_file_name);
}

TEST_F(StartUp, LeavesOutWhatFollowsADirectoryThatCannotBeMade) {
    platform.home = home.path("missing");
    start("a.bin");
    EXPECT_FALSE(form.ended);
    EXPECT_TRUE(form.image.is_open());
    EXPECT_EQ(form.txtName.max_length(), 0);
    EXPECT_TRUE(runs.empty());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(StartUp, TakesAFileThatIsNoImage) {
    start("b.bin");
    EXPECT_FALSE(form.ended);
    EXPECT_EQ(runs, all_lists);
    EXPECT_EQ(form.listNC.count(), 462);
    EXPECT_EQ(form.listNC.item(461), "");
}

TEST_F(StartUp, LeavesAnExistingDirectoryAlone) {
    std::filesystem::create_directory(home.path("Export"));
    home.write("Export/kept.DAT", "x");
    start("a.bin");
    EXPECT_EQ(home.read("Export/kept.DAT"), "x");
}

TEST_F(StartUp, TellsThatTheDirectoryIsMissingAndStopsThere) {
    platform.home = home.path("missing");
    start("a.bin");
    EXPECT_EQ(platform.missed, Texts{home.path("missing/Export")});
    EXPECT_FALSE(form.ended);
    EXPECT_TRUE(form.image.is_open());
    EXPECT_EQ(form.txtName.max_length(), 0);
    EXPECT_TRUE(runs.empty());
    open("b.bin");
    EXPECT_EQ(platform.missed.size(), 2U);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(CmdOpen, GoesOverToAnotherImage) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    user::select_tab(form, tab::formations);
    runs.clear();
    test::disturb(form);
    std::filesystem::remove_all(home.path("Export"));
    form.ImportPending = 1;
    form.ImportPendingML = 1;
    form.SelectedMarker = 5;
    form.PackedNumberText = "00";
    open("b.bin");

    EXPECT_FALSE(form.ended);
    EXPECT_EQ(form.ImagePath, "b.bin");
    EXPECT_FALSE(shelf.discs["a.bin"].held);
    EXPECT_TRUE(shelf.discs["b.bin"].held);
    EXPECT_TRUE(has_export());
    EXPECT_EQ(form.SSTab1.tab(), 0);
    EXPECT_EQ(form.txtName.max_length(), 10);
    EXPECT_EQ(form.txtML.max_length(), 3);
    EXPECT_EQ(form.ImportPending, 0);
    EXPECT_EQ(form.ImportPendingML, 1);
    EXPECT_EQ(runs, all_lists);
    EXPECT_EQ(form.listNC.item(461), "");
    EXPECT_EQ(form.listApp2.count(), 0);
    // The tab was changed, with its own resets.
    EXPECT_EQ(form.ListNum.count(), 0);
    EXPECT_EQ(form.listAtt.count(), 0);
    EXPECT_EQ(form.listSQLink.count(), 0);
    // New was pressed.
    EXPECT_EQ(form.lblPos.caption(), "1");
    EXPECT_EQ(form.listDat.count() + form.listApp.count(), 0);
    EXPECT_EQ(form.cboSeqSQ.row(), -1);
    EXPECT_EQ(form.txtEta.text(), "15");
    EXPECT_EQ(form.txtAlt.text(), "155");
    EXPECT_EQ(form.imgStile.picture(), "");
    EXPECT_FALSE(form.Frame3.enabled());
    EXPECT_TRUE(form.cboSeqSQ.enabled());
    // What neither tells of stays.
    EXPECT_EQ(form.ListVende.count(), 3);
    EXPECT_EQ(form.lblNameG.caption(), "label");
    EXPECT_EQ(form.SelectedMarker, 5);
    EXPECT_EQ(form.PackedNumberText, "00");
    EXPECT_EQ(shelf.discs["a.bin"].writes + shelf.discs["b.bin"].writes, 0);
}

TEST_F(CmdOpen, OpensTheSameImageAgain) {
    start("a.bin");
    open("a.bin");
    EXPECT_FALSE(form.ended);
    EXPECT_EQ(shelf.opened, (Texts{"a.bin", "a.bin"}));
    EXPECT_TRUE(form.image.is_open());
    EXPECT_EQ(form.listNC.count(), 462);
}

TEST_F(CmdOpen, ClearsTheListOfBarsBeforeItsDialog) {
    start("a.bin");
    form.listApp2.assign({"x"});
    platform.choices.clear();
    EXPECT_THROW(user::click(form, form.cmdOpen), std::logic_error);
    EXPECT_EQ(form.listApp2.count(), 0);
    EXPECT_EQ(platform.dialogs.back().filter, platform.dialogs.front().filter);
    EXPECT_EQ(platform.dialogs.back().initial_directory, home.path());
}

TEST_F(CmdOpen, KeepsTheImageButLosesThePathWhenItIsCancelled) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    user::pick(form, form.listDat, 3);
    form.listApp2.assign({"x"});
    form.ImportPendingML = 1;
    form.ImportPending = 1;
    Snapshot expected(form);
    runs.clear();
    open("");
    EXPECT_EQ(form.ImagePath, "");
    EXPECT_TRUE(shelf.discs["a.bin"].held);
    expected.set_items("listApp2", {});
    EXPECT_TRUE(Snapshot(form).is(expected));
    EXPECT_EQ(form.ImportPending, 1);
    EXPECT_TRUE(runs.empty());
    EXPECT_TRUE(platform.messages.empty());
    // It can still be read.
    user::pick(form, form.cboSeqSQ, 11);
    EXPECT_EQ(form.listDat.item(0), test::player_name(11, 0));
}

TEST_F(CmdOpen, EndsTheNextSaveWhenItWasCancelled) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    open("");
    user::type(form, form.txtName, "Nuovo");
    EXPECT_EQ(error_of([&] { user::click(form, form.cmdSaveCar); }), error::path_access);
    EXPECT_FALSE(form.image.is_open());
    // Nothing that was written before is lost.
    EXPECT_NE(shelf.discs["a.bin"].bytes, test::filled_image());
    EXPECT_EQ(shelf.discs["a.bin"].flushes, 1);
}

TEST_F(CmdOpen, FindsItsWayBackAfterACancelledDialog) {
    start("a.bin");
    open("");
    open("b.bin");
    EXPECT_EQ(form.ImagePath, "b.bin");
    EXPECT_FALSE(shelf.discs["a.bin"].held);
    EXPECT_TRUE(shelf.discs["b.bin"].held);
}

TEST_F(CmdOpen, TellsThatAnotherProgramHoldsTheImage) {
    start("a.bin");
    shelf.discs["b.bin"].held = true;
    runs.clear();
    open("b.bin");
    EXPECT_EQ(form.ended, Ending::denied);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Accesso negato, Immagine CD gi\xE0 aperta");
    EXPECT_EQ(platform.messages[0].icon, Icon::stop);
    EXPECT_FALSE(shelf.discs["a.bin"].held);
    EXPECT_TRUE(runs.empty());
}

TEST_F(CmdOpen, LeavesTheStepsBehindAnyOtherFailure) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    user::select_tab(form, tab::transfers);
    user::focus(form, form.cmdOpen);
    runs.clear();
    std::filesystem::remove_all(home.path("Export"));
    const Snapshot before(form);
    open("missing.bin");
    EXPECT_FALSE(form.ended);
    EXPECT_EQ(form.ImagePath, "missing.bin");
    EXPECT_FALSE(shelf.discs["a.bin"].held);
    EXPECT_FALSE(form.image.is_open());
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(Snapshot(form).is(before));
    EXPECT_FALSE(has_export());
    EXPECT_TRUE(runs.empty());
}

TEST_F(CmdOpen, IsNotCarriedOutWhileTheCostIsWrong) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    user::type(form, form.txtML, "999");
    EXPECT_EQ(user::click(form, form.cmdOpen), user::Outcome::focus_kept);
    EXPECT_EQ(platform.dialogs.size(), 1U);
}

/// What "New" leaves; all controls that it does not tell of stay.
Snapshot after_new(Snapshot state, const frmKalco& form) {
    state["lblPos"]["caption"] = "1";
    for (const char* list : {"listDat", "listAppIMP", "ListFile", "listApp"}) state.set_items(list, {});
    for (const Control* control : form.registry.all()) {
        const bool text = control->kind() == Kind::text_box || control->kind() == Kind::combo_box;
        if (text) state.set_text(control->name(), "");
    }
    state.set_text("txtEta", "15");
    state.set_text("txtAlt", "155");
    for (const char* image : {"imgColBar", "imgColCap", "imgScarpa", "imgStBar", "imgStile"}) {
        state[image]["picture"] = "";
    }
    // Their change events set their own limits.
    state["txtSqHEX"]["maxLength"] = 0;
    state["txtSqShort"]["maxLength"] = 3;
    return state;
}

TEST_F(CmdNew, EmptiesTheFieldsOfAllTabs) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    test::disturb(form);
    form.ImportPending = 1;
    form.ImportPendingML = 1;
    runs.clear();
    const Snapshot expected = after_new(Snapshot(form), form);
    EXPECT_EQ(user::click(form, form.cmdNew), user::Outcome::done);
    EXPECT_TRUE(Snapshot(form).is(expected));
    EXPECT_EQ(form.ImportPending, 1);
    EXPECT_EQ(form.ImportPendingML, 1);
    EXPECT_EQ(form.ImagePath, "a.bin");
    EXPECT_TRUE(form.Frame3.enabled());
    EXPECT_TRUE(runs.empty());
    EXPECT_EQ(shelf.discs["a.bin"].writes, 0);
}

TEST_F(CmdNew, IsInReachBeforeATeamIsChosen) {
    start("a.bin");
    EXPECT_FALSE(form.Frame3.enabled());
    EXPECT_EQ(user::click(form, form.cmdNew), user::Outcome::done);
    EXPECT_FALSE(form.Frame3.enabled());
}

TEST_F(ClearFrame, EmptiesThePlayerFieldsAlone) {
    test::disturb(form);
    Snapshot expected(form);
    Clear_Frame(form);
    for (const char* list : {"listAppIMP", "ListFile", "listApp"}) expected.set_items(list, {});
    expected.set_text("txtSQ", "");
    expected.set_text("txtEta", "15");
    expected.set_text("txtAlt", "155");
    expected.set_text("txtName", "");
    for (const char* combo :
         {"cboRuolo",  "cboPelle",   "cboFisico", "cboCapelli", "cboColCap", "cboStlBar", "cboColBar",
          "cboScarpa", "cboOutSide", "cboPiede",  "cboAttacco", "cboDifesa", "cboEquil",  "cboRes",
          "cboVel",    "cboAcc",     "cboPass",   "cboPot",     "cboPrec",   "cboElev",   "cboTesta",
          "cboTecn",   "cboDribbl",  "cboCurv",   "cboPosit",   "cboReaz"}) {
        expected.set_text(combo, "");
    }
    for (const char* image : {"imgColBar", "imgColCap", "imgScarpa", "imgStBar", "imgStile"}) {
        expected[image]["picture"] = "";
    }
    EXPECT_TRUE(Snapshot(form).is(expected));
}

TEST_F(Shell, ClosesTheImageAndNothingMore) {
    start("a.bin");
    user::pick(form, form.cboSeqSQ, 10);
    user::type(form, form.txtName, "unsaved");
    user::close(form);
    EXPECT_EQ(form.ended, Ending::closed);
    EXPECT_FALSE(shelf.discs["a.bin"].held);
    EXPECT_EQ(shelf.discs["a.bin"].bytes, test::filled_image());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Shell, TellsAWriteThatIsLostAtTheEnd) {
    start("a.bin");
    form.image.write(1, "x");
    EXPECT_EQ(error_of([&] { user::close(form); }), 0);
    EXPECT_EQ(shelf.discs["a.bin"].flushes, 1);
}

}  // namespace
}  // namespace kalco
