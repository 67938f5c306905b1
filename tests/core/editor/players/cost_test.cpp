#include <gtest/gtest.h>

#include "editor/players/player_save.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::padded_name;
using test::put;
using test::same_image;
using test::saved;

TEST(Cost, IsWrittenAsOneByte) {
    EditorRun run;
    for (const auto& [team, position] :
         {std::pair<int, std::int64_t>{0, 3067405}, {53, 3067405 + 23 * 53}, {95, 3069513}}) {
        run.choose_team(team);
        for (const int cost : {0, 1, 128, 249, 250}) {
            run.choose_player(2);
            run.type(run.form.txtML, std::to_string(cost));
            run.click(run.form.cmdSaveCar);
            EXPECT_EQ(run.disc.at(position + 2, 1), std::string(1, static_cast<char>(cost)));
            EXPECT_EQ(run.form.txtML.text(), std::to_string(cost));
        }
    }
}

TEST(Cost, TakesDigitsOnly) {
    EditorRun run;
    run.choose_team(0);
    run.type(run.form.txtML, "1a2 -3.4");
    EXPECT_EQ(run.form.txtML.text(), "123");
    run.type(run.form.txtML, "2000");
    EXPECT_EQ(run.form.txtML.text(), "200");
    for (TextBox* box : {&run.form.txtAlt, &run.form.txtEta}) {
        run.type(*box, "x1y6z05");
        EXPECT_EQ(box->text(), "160");
    }
}

TEST(Cost, HoldsTheFocusAboveItsLimit) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(0);
    run.type(form.txtML, "251");
    run.log.clear();
    EXPECT_EQ(user::click(form, form.cmdSaveCar), user::Outcome::focus_kept);
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].text, "Inserire in Costo ML un valore\r\n     compreso fra 0 e 250");
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_TRUE(run.log.empty());
    EXPECT_EQ(form.focused(), &form.txtML);
    ASSERT_TRUE(form.txtML.has_selection_request());
    const TextBox::Selection selection = form.txtML.take_selection();
    EXPECT_EQ(selection.start, 0);
    EXPECT_EQ(selection.length, 3);
    EXPECT_EQ(user::pick(form, form.cboSeqSQ, 3), user::Outcome::focus_kept);
    EXPECT_EQ(form.cboSeqSQ.row(), 0);
    EXPECT_EQ(user::select_tab(form, tab::kickers), user::Outcome::focus_kept);
    EXPECT_EQ(form.SSTab1.tab(), tab::players);
    run.type(form.txtML, "250");
    run.told();
    run.click(form.cmdSaveCar);
    EXPECT_EQ(run.told(), std::vector{saved});
}

TEST(Cost, KeepsTheNameThatTheFocusDidNotReach) {
    EditorRun run;
    put(run.disc.bytes, 388107, padded_name("ROSSI"));
    run.choose_team(0);
    run.choose_player(1);
    run.type(run.form.txtML, "251");
    EXPECT_EQ(user::type(run.form, run.form.txtName, "Bianchi"), user::Outcome::focus_kept);
    EXPECT_EQ(run.form.txtName.text(), "ROSSI") << "it had no focus to lose";
    EXPECT_EQ(run.form.focused(), &run.form.txtML);
    run.type(run.form.txtML, "25");
    EXPECT_EQ(user::focus(run.form, run.form.txtName), user::Outcome::done);
    EXPECT_EQ(user::focus(run.form, run.form.txtML), user::Outcome::done);
    EXPECT_EQ(run.form.txtName.text(), "Rossi");
}

TEST(Cost, FailsWithoutANumberOrBeyondAByte) {
    EditorRun run;
    run.choose_team(0);
    run.type(run.form.txtML, "");
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdSaveCar); }), error::type_mismatch);
    EXPECT_TRUE(run.told().empty()) << "an empty text loses the focus in silence";
    run.form.txtML.set_text("256");
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdSaveCar); }), error::overflow);
    EXPECT_TRUE(same_image(run.disc.bytes, test::filled_image()));
    run.form.txtML.set_text("255");
    run.click(run.form.cmdSaveCar);
    EXPECT_EQ(run.disc.at(3067405, 1), "\xFF");
}

TEST(SmallButtons, StepWithinTheLimits) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(0);
    const auto after = [&run](TextBox& box, CommandButton& button, const std::string& text) {
        run.type(box, text);
        run.click(button);
        return box.text();
    };
    EXPECT_EQ(after(form.txtAlt, form.cmdSottH, "156"), "155");
    EXPECT_EQ(after(form.txtAlt, form.cmdSottH, "155"), "155");
    EXPECT_EQ(after(form.txtAlt, form.cmdSottH, "100"), "100");
    EXPECT_EQ(after(form.txtAlt, form.cmdSottH, "219"), "218");
    EXPECT_EQ(after(form.txtAlt, form.cmdAddH, "209"), "210");
    EXPECT_EQ(after(form.txtAlt, form.cmdAddH, "210"), "210");
    EXPECT_EQ(after(form.txtAlt, form.cmdAddH, "219"), "219");
    EXPECT_EQ(after(form.txtAlt, form.cmdAddH, "0"), "1");
    EXPECT_EQ(after(form.txtEta, form.cmdSottEta, "16"), "15");
    EXPECT_EQ(after(form.txtEta, form.cmdSottEta, "15"), "15");
    EXPECT_EQ(after(form.txtEta, form.cmdAddEta, "45"), "46");
    EXPECT_EQ(after(form.txtEta, form.cmdAddEta, "46"), "46");
    EXPECT_EQ(after(form.txtEta, form.cmdAddEta, "0"), "1");
    EXPECT_EQ(test::error_of([&] { after(form.txtEta, form.cmdAddEta, ""); }), error::type_mismatch);
}

}  // namespace
}  // namespace kalco
