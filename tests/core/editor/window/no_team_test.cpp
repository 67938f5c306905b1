// Buttons that act on the chosen team of their tab, pressed while none is chosen.

#include <gtest/gtest.h>

#include "support/editor_run.h"
#include "support/snapshot.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::Snapshot;

struct TeamButton {
    const char* name;
    int tab;
};

void PrintTo(const TeamButton& button, std::ostream* out) {
    *out << button.name;
}

class WithoutATeam : public ::testing::TestWithParam<TeamButton> {
protected:
    /// Presses the button on its tab with everything switched on, and expects that nothing comes of it.
    void press(EditorRun& run) {
        auto& button = static_cast<CommandButton&>(*run.form.registry.find(GetParam().name));
        ASSERT_EQ(button.kind(), Kind::command_button);
        // The focus has its own work; the click alone is looked at.
        user::focus(run.form, button);
        run.log.clear();
        run.disc.flushes = 0;
        const Snapshot before(run.form);
        EXPECT_EQ(test::error_of([&] { EXPECT_EQ(user::click(run.form, button), user::Outcome::done); }), 0);
        EXPECT_TRUE(Snapshot(run.form).is(before));
        EXPECT_TRUE(run.log.empty());
        EXPECT_EQ(run.disc.flushes, 0);
        EXPECT_TRUE(test::same_image(run.disc.bytes, test::filled_image()));
        EXPECT_EQ(run.told(), std::vector<std::string>{});
        EXPECT_EQ(run.platform.dialogs.size(), 1U);
        for (const char* made : {"Moduli&Barre", "N\xC2\xB0 Maglia", "Kickers&Capitani"})
            EXPECT_FALSE(run.home.has(made));
        EXPECT_TRUE(std::filesystem::is_empty(run.home.path("Export")));
    }

    static void switch_everything_on(EditorRun& run) {
        user::select_tab(run.form, GetParam().tab);
        for (Control* control : run.form.registry.all()) control->set_enabled(true);
    }
};

TEST_P(WithoutATeam, NothingHappens) {
    EditorRun run;
    switch_everything_on(run);
    press(run);
}

TEST_P(WithoutATeam, NothingHappensToTheListsOfATeamThatIsGone) {
    EditorRun run;
    switch_everything_on(run);
    for (Control* control : run.form.registry.all()) {
        if (control->kind() == Kind::list_box) {
            auto& list = static_cast<ListBox&>(*control);
            list.assign(std::vector<std::string>(23, "1"));
            list.select_silently(3);
        }
    }
    for (TextBox* box : {&run.form.txtName, &run.form.txtML, &run.form.txtNumMod}) box->set_text("2");
    run.form.ImportPending = 1;
    run.form.ImportPendingML = 1;
    run.form.SelectedMarker = 3;
    press(run);
    EXPECT_EQ(run.form.ImportPending, 1);
    EXPECT_EQ(run.form.ImportPendingML, 1);
    EXPECT_EQ(run.form.SelectedMarker, 3);
}

INSTANTIATE_TEST_SUITE_P(
    TeamButtons, WithoutATeam,
    ::testing::Values(TeamButton{"cmdSaveCar", tab::players}, TeamButton{"cmdName", tab::players},
                      TeamButton{"cmdExp", tab::players}, TeamButton{"cmdSaveNC", tab::league},
                      TeamButton{"cmdCrea", tab::kickers}, TeamButton{"cmdExpKick", tab::kickers},
                      TeamButton{"cmdImpKick", tab::kickers}, TeamButton{"cmdModifica", tab::formations},
                      TeamButton{"cmdExport", tab::formations}, TeamButton{"cmdImport", tab::formations},
                      TeamButton{"cmdSalva", tab::formations}, TeamButton{"cmdPiu(1)", tab::formations},
                      TeamButton{"cmdMeno(5)", tab::formations}, TeamButton{"cmdModNum", tab::numbers},
                      TeamButton{"cmdSaveNum", tab::numbers}, TeamButton{"cmdImpNum", tab::numbers},
                      TeamButton{"cmdExpNum", tab::numbers}));

TEST(WithoutAnImport, ATeamFileFillsTheListsWithoutATeamToo) {
    EditorRun run;
    for (Control* control : run.form.registry.all()) control->set_enabled(true);
    run.form.txtML.set_text("7");
    std::string file = "[data]\r\nintro=\r\nid=n\r\nlongname=Nuova\r\nshortname=NUO\r\n";
    for (int i = 1; i <= 23; ++i) file += "p" + std::to_string(i) + "=635839574,-758741619,1415927664,Rossi\r\n";
    run.import(run.form.cmdImp, file);
    EXPECT_EQ(run.form.listDat.count(), 23);
    EXPECT_EQ(run.form.listDat.item(22), "Rossi");
    EXPECT_EQ(run.form.txtML.text(), "7");
    EXPECT_TRUE(run.log.empty());
}

}  // namespace
}  // namespace kalco
