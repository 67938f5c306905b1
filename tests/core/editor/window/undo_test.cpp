// Taking saves back and making them again, as the user sees it.

#include <gtest/gtest.h>

#include <random>

#include "disc/image/opening.h"
#include "support/editor_run.h"
#include "support/every_save.h"
#include "support/fake_files.h"
#include "support/random_story.h"
#include "support/shelf.h"

namespace kalco {
namespace {

using test::Desk;
using test::EditorRun;
using test::same_image;
using Text = std::optional<std::string>;

const test::TemporaryHome& story_home() {
    static const test::TemporaryHome directory;
    return directory;
}

TEST(Undo, GivesTheOldImageBackForEverySave) {
    for (const test::EverySave& save : test::every_save()) {
        if (save.name == "undo" || save.name == "redo") continue;
        test::Disc disc;
        disc.bytes = test::filled_image();
        Desk desk(story_home(), test::opener_of(disc), "disc.bin");
        save.prepare(desk);
        const std::string before = disc.bytes;
        save.save(desk);
        const std::string after = disc.bytes;
        const Text what = user::undo(desk.form);
        ASSERT_TRUE(what) << save.name;
        EXPECT_NE(what->find(": "), std::string::npos) << save.name << " is named: " << *what;
        EXPECT_TRUE(same_image(disc.bytes, before)) << save.name;
        EXPECT_EQ(user::redo(desk.form), what);
        EXPECT_TRUE(same_image(disc.bytes, after)) << save.name;
    }
}

TEST(Undo, LeadsFromTheEndOfAnyStoryToItsStart) {
    int saves = 0;
    for (unsigned seed = 0; seed < 12; ++seed) {
        std::mt19937 random(seed);
        test::Disc disc;
        disc.bytes = test::filled_image();
        Desk desk(story_home(), test::opener_of(disc), "disc.bin");
        test::RandomStory story(desk, [&random] { return static_cast<unsigned>(random()); });
        std::vector<std::string> states{disc.bytes};
        for (int action = 0; action < 1500; ++action) {
            // What an action wrote before a run-time error stays, as one save.
            const int writes = disc.writes;
            static_cast<void>(test::error_of([&story] { story.act(); }));
            if (!desk.form.image.is_open()) break;
            if (disc.writes != writes && disc.bytes != states.back()) states.push_back(disc.bytes);
        }
        if (!desk.form.image.is_open()) continue;
        for (std::size_t k = states.size() - 1; k > 0; --k) {
            ASSERT_TRUE(user::undo(desk.form)) << seed;
            ASSERT_TRUE(same_image(disc.bytes, states[k - 1])) << seed;
        }
        EXPECT_EQ(user::undo(desk.form), std::nullopt);
        for (std::size_t k = 1; k < states.size(); ++k) {
            ASSERT_TRUE(user::redo(desk.form)) << seed;
            ASSERT_TRUE(same_image(disc.bytes, states[k])) << seed;
        }
        EXPECT_EQ(user::redo(desk.form), std::nullopt);
        saves += static_cast<int>(states.size()) - 1;
    }
    EXPECT_GT(saves, 50) << "the stories save enough to tell something";
}

TEST(Undo, NamesTheTeamAndThePlayer) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(3);
    run.type(run.form.txtName, "Favussolo");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(user::undo(run.form), Text("Giocatore: " + run.form.cboSeqSQ.items()[10] + ", Favussolo"));
}

TEST(Undo, ReadsTheListsOfTheStartAnew) {
    EditorRun run;
    run.choose_team(95);
    run.choose_player(30);
    const std::string name = run.form.listNC.item(30);
    run.type(run.form.txtName, "Nuovo");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.form.listNC.item(30), "Nuovo");
    user::undo(run.form);
    const int names = run.NAMES_GIOC_NAZ;
    user::read_anew(run.form);
    EXPECT_EQ(run.NAMES_GIOC_NAZ, names + 1);
    EXPECT_EQ(run.form.listNC.item(30), name);
    EXPECT_EQ(run.form.ListAppOrigName.item(30), name);
    EXPECT_EQ(run.form.listDat.item(30), name) << "and the chosen team";
    EXPECT_EQ(run.form.focused(), &run.form.cboSeqSQ) << "as a user would";
}

TEST(Undo, ChoosesTheTeamOfTheShownTabAgain) {
    EditorRun run;
    frmKalco& form = run.form;
    const auto chosen_again = [&form](int tab, ComboBox& combo) {
        user::select_tab(form, tab);
        user::pick(form, combo, 5);
        user::focus(form, form.SSTab1);
        int clicks = 0;
        const Event click = combo.click;
        combo.click = [&] {
            ++clicks;
            raise(click);
        };
        user::read_anew(form);
        EXPECT_EQ(clicks, 1) << combo.name();
        EXPECT_EQ(combo.row(), 5);
        combo.set_text({});
        user::read_anew(form);
        EXPECT_EQ(clicks, 1) << "no team is chosen in " << combo.name();
        combo.click = click;
    };
    chosen_again(tab::players, form.cboSeqSQ);
    chosen_again(tab::league, form.cboSqNC);
    chosen_again(tab::kickers, form.cboSquadra);
    chosen_again(tab::formations, form.cboSeqSQ2);
    chosen_again(tab::numbers, form.cboSQNum);
    user::select_tab(form, tab::transfers);
    user::read_anew(form);
    EXPECT_EQ(form.focused(), &form.SSTab1) << "the transfers have no team of the image";
}

TEST(Undo, DoesNothingWithoutASave) {
    EditorRun run;
    run.choose_team(10);
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(user::undo(run.form), std::nullopt) << "the save changed nothing";
    EXPECT_EQ(user::redo(run.form), std::nullopt);
}

TEST(Undo, IsAboutTheOpenImageAlone) {
    test::Shelf shelf;
    shelf.discs["a.bin"].bytes = shelf.discs["b.bin"].bytes = test::filled_image();
    Desk desk(story_home(), shelf.opener(), "a.bin");
    const test::EverySave& save = test::every_save()[0];
    const auto open = [&desk](const std::string& path) {
        desk.platform.choices.push_back(path);
        user::click(desk.form, desk.form.cmdOpen);
    };
    save.prepare(desk);
    save.save(desk);
    open("a.bin");
    EXPECT_TRUE(user::undo(desk.form)) << "the same image again";
    EXPECT_TRUE(same_image(shelf.discs["a.bin"].bytes, test::filled_image()));
    user::redo(desk.form);
    open("b.bin");
    EXPECT_EQ(user::undo(desk.form), std::nullopt);
    open("a.bin");
    EXPECT_EQ(user::undo(desk.form), std::nullopt);
    EXPECT_FALSE(same_image(shelf.discs["a.bin"].bytes, test::filled_image()));
}

// What is told at an opening.

class Told : public ::testing::Test {
protected:
    static constexpr auto journal = "disc.bin.kalco-journal";

    Told() { files.put("disc.bin", test::filled_image()); }
    std::vector<test::FakePlatform::Message> at_start() {
        files.end_process();
        const auto opener = [this](const std::string& path) {
            return open_for_saves(files, path, Failures::Kind::run_time);
        };
        Desk desk(story_home(), opener, "disc.bin");
        open = desk.form.image.is_open();
        return desk.platform.messages;
    }
    void interrupt() {
        try {
            Image image(
                [this](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); });
            image.open("disc.bin");
            image.write(1, "x");
            files.plan(8, {test::CallFault::Kind::killed_after, 0});
            image.commit();
        } catch (const test::Killed&) {
        }
    }

    test::FakeFiles files;
    bool open = false;
};

TEST_F(Told, NothingWhenAllIsWell) {
    EXPECT_TRUE(at_start().empty());
    EXPECT_TRUE(open);
}

TEST_F(Told, ThatASaveWasTakenBack) {
    interrupt();
    ASSERT_TRUE(files.has(journal));
    const auto messages = at_start();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].icon, Icon::information);
    EXPECT_NE(messages[0].text.find("annullato"), std::string::npos);
    EXPECT_TRUE(open);
    EXPECT_TRUE(at_start().empty()) << "once";
}

TEST_F(Told, ThatAForeignFileRefusesSaves) {
    files.put(journal, "a text");
    const auto messages = at_start();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].icon, Icon::warning);
    EXPECT_TRUE(open);
}

TEST_F(Told, ThatAnotherImagesJournalKeepsTheImageShut) {
    interrupt();
    std::string other = files.bytes("disc.bin");
    other[5] = static_cast<char>(other[5] ^ 1);
    files.put("disc.bin", other);
    const auto messages = at_start();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].icon, Icon::stop);
    EXPECT_FALSE(open);
    EXPECT_EQ(files.bytes("disc.bin"), other);
}

}  // namespace
}  // namespace kalco
