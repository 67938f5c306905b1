#include "editor/window/general.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/memory_storage.h"
#include "support/snapshot.h"

namespace kalco {
namespace {

std::string proper(std::string text) {
    ProperCase(text);
    return text;
}

TEST(ProperCaseOf, OneWordIsItsCapitalAndSmallLetters) {
    EXPECT_EQ(proper("ABCDE"), "Abcde");
    EXPECT_EQ(proper("abcde"), "Abcde");
    EXPECT_EQ(proper("a"), "A");
    EXPECT_EQ(proper("7UP"), "7up");
    EXPECT_EQ(proper("\xC9MILE"), "\xC9mile");
    EXPECT_EQ(proper("\xE9MIL\xC9"), "\xC9mil\xE9");
    EXPECT_EQ(proper("O'NEIL-X"), "O'neil-x");
}

TEST(ProperCaseOf, MoreWordsCapitalizesTheFirstTwo) {
    EXPECT_EQ(proper("AB CD EF"), "Ab Cd ef");
    EXPECT_EQ(proper("ab cd ef"), "Ab Cd ef");
    EXPECT_EQ(proper("a b"), "A B");
    EXPECT_EQ(proper("AB  CD"), "Ab  cd");
    EXPECT_EQ(proper("AB CD "), "Ab Cd ");
}

TEST(ProperCaseOf, AnEmptyWordLeavesTheText) {
    EXPECT_EQ(proper("ABC "), "ABC ");
    EXPECT_EQ(proper(" ABC"), " ABC");
    EXPECT_EQ(proper(" "), " ");
    EXPECT_EQ(proper(""), "");
}

class GeneralRoutines : public ::testing::Test {
protected:
    test::Disc disc;
    test::FakePlatform platform;
    frmKalco form{platform, test::opener_of(disc)};
};

TEST_F(GeneralRoutines, ClearTheTextBoxesBeforeTheComboBoxes) {
    test::disturb(form);
    test::Snapshot expected(form);
    for (const Control* control : form.registry.all()) {
        const bool text = control->kind() == Kind::text_box || control->kind() == Kind::combo_box;
        if (text) expected.set_text(control->name(), "");
    }
    bool combos_stood = false;
    form.txtSqSel.change = [&] { combos_stood = form.cboSeqSQ.text() == "combo" && form.cboVel.text() == "combo"; };
    ClearControls(form);
    EXPECT_TRUE(combos_stood);
    EXPECT_TRUE(test::Snapshot(form).is(expected));
    EXPECT_EQ(form.Text7.text() + form.txtNM(11).text() + form.txtNum.text(), "");
}

const std::vector<std::string> skills{"cboAcc",   "cboAttacco", "cboCurv",  "cboDifesa", "cboDribbl", "cboElev",
                                      "cboEquil", "cboPass",    "cboPosit", "cboPot",    "cboPrec",   "cboReaz",
                                      "cboRes",   "cboTecn",    "cboTesta", "cboVel"};

TEST_F(GeneralRoutines, FillBlankFieldsWithTheirDefaults) {
    test::Snapshot expected(form);
    expected.set_text("txtAlt", "155");
    expected.set_text("txtEta", "0");
    expected.set_text("txtNum", "0");
    for (const std::string& skill : skills) expected.set_text(skill, "12");
    fill_blank_player_fields(form);
    EXPECT_TRUE(test::Snapshot(form).is(expected));
}

TEST_F(GeneralRoutines, FillNoFieldThatHasAText) {
    form.txtAlt.set_text(" ");
    form.txtEta.set_text("0");
    form.txtNum.set_text("x");
    for (const std::string& skill : skills) static_cast<ComboBox*>(form.registry.find(skill))->set_text("19");
    const test::Snapshot before(form);
    fill_blank_player_fields(form);
    EXPECT_TRUE(test::Snapshot(form).is(before));
}

TEST_F(GeneralRoutines, ClearTheFivePictures) {
    test::disturb(form);
    clear_pictures(form);
    for (const Control* control : form.registry.all()) {
        if (control->kind() != Kind::image_box) continue;
        EXPECT_EQ(static_cast<const ImageBox*>(control)->picture(), "") << control->name();
    }
}

}  // namespace
}  // namespace kalco
