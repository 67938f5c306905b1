#include "ctl/script/json_lines.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/fake_platform.h"
#include "support/memory_storage.h"

namespace kalco::script {
namespace {

/// A line with " for each '.
std::string quoted(std::string text) {
    std::replace(text.begin(), text.end(), '\'', '"');
    return text;
}

class StateLines : public ::testing::Test {
protected:
    std::string shown(const std::string& name) {
        if (const Control* control = form.registry.find(name)) return json_line(control_state(*control));
        return json_line(variable_state(form, name));
    }

    test::Disc disc;
    test::FakePlatform platform;
    frmKalco form{platform, test::opener_of(disc)};
};

TEST_F(StateLines, HaveTheKeysOfEachKind) {
    form.txtName.set_text("ROSSI");
    form.txtName.set_max_length(10);
    form.Frame3.set_enabled(true);
    EXPECT_EQ(shown("txtName"), quoted("{'show': 'txtName', 'enabled': true, 'text': 'ROSSI', 'maxLength': 10}"));
    form.lblPos.set_caption("12");
    EXPECT_EQ(shown("lblPos"), quoted("{'show': 'lblPos', 'enabled': true, 'caption': '12'}"));
    form.lblGioc(3).set_caption("Bianchi");
    form.lblGioc(3).set_selected(true);
    form.lblGioc(3).move(1200, -15);
    EXPECT_EQ(shown("lblGioc(3)"), quoted("{'show': 'lblGioc(3)', 'enabled': true, 'caption': 'Bianchi', "
                                          "'selected': true, 'left': 1200, 'top': -15}"));
    EXPECT_EQ(shown("lblNum(99)"), quoted("{'show': 'lblNum(99)', 'enabled': true, 'inUse': false}"));
    form.imgStile.set_picture("A1");
    EXPECT_EQ(shown("imgStile"), quoted("{'show': 'imgStile', 'enabled': true, 'picture': 'A1'}"));
    EXPECT_EQ(shown("imgScarpa"), quoted("{'show': 'imgScarpa', 'enabled': true, 'picture': ''}"));
    form.pbFZ(1).set_value(7);
    form.pbFZ(1).set_caption("7");
    EXPECT_EQ(shown("pbFZ(1)"), quoted("{'show': 'pbFZ(1)', 'enabled': true, 'value': 7, 'caption': '7'}"));
    EXPECT_EQ(shown("cmdCrea"), quoted("{'show': 'cmdCrea', 'enabled': false, 'caption': '&Salva'}"));
    EXPECT_EQ(shown("opCPC(0)"), quoted("{'show': 'opCPC(0)', 'enabled': true, 'value': false}"));
    EXPECT_EQ(shown("OpNREC"), quoted("{'show': 'OpNREC', 'enabled': false, 'value': true}"));
    EXPECT_EQ(shown("fraKick"), quoted("{'show': 'fraKick', 'enabled': false}"));
    EXPECT_EQ(shown("SSTab1"), quoted("{'show': 'SSTab1', 'enabled': true, 'tab': 0}"));
}

TEST_F(StateLines, HoldTheRowsOfLists) {
    form.Frame3.set_enabled(true);
    form.cboVel.set_items({"12", "13"});
    EXPECT_EQ(shown("cboVel"),
              quoted("{'show': 'cboVel', 'enabled': true, 'text': '', 'row': -1, 'items': ['12', '13']}"));
    form.cboVel.set_text("99");
    EXPECT_EQ(shown("cboVel"),
              quoted("{'show': 'cboVel', 'enabled': true, 'text': '99', 'row': -1, 'items': ['12', '13']}"));
    EXPECT_EQ(shown("listDat"), quoted("{'show': 'listDat', 'enabled': true, 'row': -1, 'items': []}"));
    form.listDat.assign({"a", "b"});
    form.listDat.select(1);
    EXPECT_EQ(shown("listDat"), quoted("{'show': 'listDat', 'enabled': true, 'row': 1, 'items': ['a', 'b']}"));
}

TEST_F(StateLines, TellTheStateOfTheFramesAround) {
    const std::string off = quoted("{'show': 'txtSQ', 'enabled': false, 'text': '', 'maxLength': 0}");
    EXPECT_EQ(shown("txtSQ"), off);
    form.Frame3.set_enabled(true);
    EXPECT_NE(shown("txtSQ"), off);
    form.txtSQ.set_enabled(false);
    EXPECT_EQ(shown("txtSQ"), off);
}

TEST_F(StateLines, EndWithAHintThatIsNotEmpty) {
    form.fraKick.set_hint("Un cenno");
    EXPECT_EQ(shown("fraKick"), quoted("{'show': 'fraKick', 'enabled': false, 'hint': 'Un cenno'}"));
    form.fraKick.set_hint("");
    EXPECT_EQ(shown("fraKick"), quoted("{'show': 'fraKick', 'enabled': false}"));
}

TEST_F(StateLines, ShowListsThatAreNeverOnTheScreen) {
    form.listApp.add("56 24");
    EXPECT_EQ(shown("listApp"), quoted("{'show': 'listApp', 'enabled': true, 'row': -1, 'items': ['56 24']}"));
}

TEST_F(StateLines, EscapeWhatIsNotAscii) {
    form.listApp.assign({"\xE0\xFF", "\x01\"\\\x7F", "\x80"});
    EXPECT_EQ(shown("listApp"), quoted("{'show': 'listApp', 'enabled': true, 'row': -1, 'items': "
                                       "['\\u00e0\\u00ff', '\\u0001\\\"\\\\\\u007f', '\\u0080']}"));
}

TEST_F(StateLines, ReadBackAsTheTextOfEveryByte) {
    std::string all;
    for (int code = 1; code <= 0xFF; ++code) all += static_cast<char>(code);
    form.Text7.set_text(all);
    const std::string line = shown("Text7");
    for (const char c : line) EXPECT_TRUE(static_cast<unsigned char>(c) < 0x80);
    EXPECT_EQ(Json::parse(line)["text"], json_text(all));
}

TEST_F(StateLines, PrintTheRunState) {
    form.ImagePath = "/disc/\xC3\xA0.bin";
    form.ImportPending = 1;
    form.SelectedMarker = 11;
    form.FormationX[2] = 7;
    form.FormationY[11] = -8;
    form.PackedNumberText = "0102";
    EXPECT_EQ(shown("ImagePath"), quoted("{'show': 'ImagePath', 'value': '/disc/\\u00e0.bin'}"));
    EXPECT_EQ(shown("ImportPending"), quoted("{'show': 'ImportPending', 'value': 1}"));
    EXPECT_EQ(shown("ImportPendingML"), quoted("{'show': 'ImportPendingML', 'value': 0}"));
    EXPECT_EQ(shown("SelectedMarker"), quoted("{'show': 'SelectedMarker', 'value': 11}"));
    EXPECT_EQ(shown("FormationX(2)"), quoted("{'show': 'FormationX(2)', 'value': 7}"));
    EXPECT_EQ(shown("FormationY(11)"), quoted("{'show': 'FormationY(11)', 'value': -8}"));
    EXPECT_EQ(shown("PackedNumberText"), quoted("{'show': 'PackedNumberText', 'value': '0102'}"));
}

TEST_F(StateLines, KnowNoOtherNames) {
    for (const char* name :
         {"FormationX(1)", "FormationX(12)", "FormationX", "FormationY()", "imagepath", "", "lblNum"}) {
        EXPECT_TRUE(variable_state(form, name).is_null()) << name;
    }
}

}  // namespace
}  // namespace kalco::script
