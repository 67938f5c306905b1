#include "editor/players/player_fields.h"

#include <gtest/gtest.h>

#include "editor/window/general.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using test::EditorRun;
using Texts = std::vector<std::string>;

Texts letters(char last) {
    Texts texts;
    for (char c = 'A'; c <= last; ++c) texts.emplace_back(1, c);
    return texts;
}

/// Shows three words as the click on a player does, without a message.
void decode(frmKalco& form, const std::string& first, const std::string& second, const std::string& third) {
    form.Text1.set_text(first);
    form.Text2.set_text(second);
    form.Text3.set_text(third);
    DecodePlayer(form);
}

Texts words(const frmKalco& form) {
    return {form.Text1.text(), form.Text2.text(), form.Text3.text()};
}

TEST(PlayerFields, OfferTheTextsOfTheTables) {
    EditorRun run;
    frmKalco& form = run.form;
    EXPECT_EQ(form.cboRuolo.items(),
              (Texts{"Portiere", "Terzino", "Difensore Centrale", "Centrocampista Difensivo", "Centrocampista Laterale",
                     "Trequartista", "Attaccante Laterale", "Centravanti"}));
    EXPECT_EQ(form.cboOutSide.items(), (Texts{"Si", "No"}));
    EXPECT_EQ(form.cboPelle.items(), (Texts{"A - Bianco", "B - Giallo", "C - Marrone", "D - Nero"}));
    EXPECT_EQ(form.cboFisico.items().size(), 8U);
    EXPECT_EQ(form.cboFisico.items()[1], "B 60\xF7"
                                         "65 Kg");
    EXPECT_EQ(form.cboCapelli.items().size(), 32U);
    EXPECT_EQ(form.cboCapelli.items()[31], "P1");
    EXPECT_EQ(form.cboColCap.items(), letters('H'));
    EXPECT_EQ(form.cboStlBar.items(), letters('G'));
    EXPECT_EQ(form.cboColBar.items(), letters('G'));
    EXPECT_EQ(form.cboScarpa.items(), letters('H'));
    EXPECT_EQ(form.cboPiede.items(), (Texts{"Destro", "Sinistro", "Ambi"}));
    const Texts skills{"12", "13", "14", "15", "16", "17", "18", "19"};
    for (ComboBox* combo : skill_combos(form)) EXPECT_EQ(combo->items(), skills) << combo->name();
}

TEST(PlayerFields, ShowTheKnownPlayer) {
    EditorRun run;
    frmKalco& form = run.form;
    decode(form, "635839574", "-758741619", "1415927664");
    EXPECT_EQ(form.cboRuolo.text(), "Centravanti");
    EXPECT_EQ(form.cboRuolo.row(), 7);
    EXPECT_EQ(form.cboCapelli.text(), "B3");
    EXPECT_EQ(form.imgStile.picture(), "B3");
    EXPECT_EQ(form.cboColCap.text(), "C");
    EXPECT_EQ(form.imgColCap.picture(), "C");
    EXPECT_EQ(form.cboStlBar.text(), "B");
    EXPECT_EQ(form.imgStBar.picture(), "BB");
    EXPECT_EQ(form.cboColBar.text(), "D");
    EXPECT_EQ(form.imgColBar.picture(), "DD1");
    EXPECT_EQ(form.cboScarpa.text(), "C");
    EXPECT_EQ(form.imgScarpa.picture(), "CS");
    EXPECT_EQ(form.txtAlt.text(), "178");
    EXPECT_EQ(form.txtNum.text(), "10");
    EXPECT_EQ(form.cboOutSide.text(), "No");
    EXPECT_EQ(form.cboPelle.text(), "B - Giallo");
    EXPECT_EQ(form.cboFisico.text(), "D 70\xF7"
                                     "75 Kg");
    EXPECT_EQ(form.txtEta.text(), "27");
    EXPECT_EQ(form.cboPiede.text(), "Sinistro");
    const std::vector<std::pair<ComboBox*, const char*>> skills{
        {&form.cboReaz, "13"},  {&form.cboEquil, "14"}, {&form.cboRes, "15"},     {&form.cboDribbl, "16"},
        {&form.cboVel, "17"},   {&form.cboAcc, "16"},   {&form.cboAttacco, "18"}, {&form.cboDifesa, "12"},
        {&form.cboPot, "18"},   {&form.cboPrec, "17"},  {&form.cboPass, "15"},    {&form.cboTecn, "17"},
        {&form.cboTesta, "14"}, {&form.cboElev, "13"},  {&form.cboCurv, "15"},    {&form.cboPosit, "16"}};
    for (const auto& [combo, text] : skills) EXPECT_EQ(combo->text(), text) << combo->name();
    FillBlankFields(form);
    EXPECT_EQ(words(form), (Texts{"635839574", "-758741619", "1415927664"}));
}

TEST(PlayerFields, ShowTextsOutsideTheLists) {
    EditorRun run;
    decode(run.form, "7340033", "0", "134217728");
    EXPECT_EQ(run.form.cboPosit.text(), "20");
    EXPECT_EQ(run.form.cboPosit.row(), -1);
    EXPECT_EQ(run.form.cboScarpa.text(), "A");
    EXPECT_EQ(run.form.imgScarpa.picture(), "AS");
}

TEST(PlayerFields, KeepWhatTheDecoderSkips) {
    EditorRun run;
    frmKalco& form = run.form;
    for (const char* word : {"7348224", "7471104"}) {
        decode(form, "635839574", "-758741619", "1415927664");
        decode(form, word, "0", "0");
        EXPECT_EQ(form.cboStlBar.text(), "A");
        EXPECT_EQ(form.cboColBar.text(), "A");
        EXPECT_EQ(form.imgStBar.picture(), "");
        EXPECT_EQ(form.imgColBar.picture(), "");
        EXPECT_EQ(form.cboColCap.text(), "C");
        EXPECT_EQ(form.imgColCap.picture(), "C");
        EXPECT_EQ(form.cboCapelli.text(), "B3");
        EXPECT_EQ(form.imgStile.picture(), "B3");
        EXPECT_EQ(form.cboRuolo.text(), "Centravanti");
        EXPECT_EQ(form.cboPelle.text(), "A - Bianco");
        EXPECT_EQ(form.imgScarpa.picture(), "AS");
    }
}

TEST(PlayerFields, KeepWhatTheDecoderDoesNotReach) {
    EditorRun run;
    frmKalco& form = run.form;
    decode(form, "635839574", "-758741619", "1415927664");
    const int number = test::error_of([&] { decode(form, "0", "0", "0"); });
    EXPECT_NE(number, 0);
    EXPECT_NE(number, error::invalid_call);
    EXPECT_EQ(form.cboOutSide.text(), "No");
    EXPECT_EQ(form.txtNum.text(), "1");
    EXPECT_EQ(form.txtAlt.text(), "155");
    EXPECT_EQ(form.cboStlBar.text(), "A");
    EXPECT_EQ(form.cboColBar.text(), "A");
    for (const ImageBox* image : {&form.imgStBar, &form.imgColBar, &form.imgScarpa}) EXPECT_EQ(image->picture(), "");
    EXPECT_EQ(form.imgStile.picture(), "B3");
    EXPECT_EQ(form.imgColCap.picture(), "C");
    EXPECT_EQ(form.cboRuolo.text(), "Centravanti");
    EXPECT_EQ(form.cboScarpa.text(), "C");
    EXPECT_EQ(form.txtEta.text(), "27");
    EXPECT_EQ(form.cboAttacco.text(), "18");
    EXPECT_EQ(form.cboPiede.text(), "Sinistro");
}

TEST(PlayerFields, ShowBeardsAboveTheTableAsTheFirst) {
    EditorRun run;
    // Stored 7 in both beard fields.
    decode(run.form, std::to_string(7340032 + 7 * 131072 + 7 * 8192 + 1), "0", "0");
    EXPECT_EQ(run.form.cboStlBar.text(), "A");
    EXPECT_EQ(run.form.cboColBar.text(), "A");
    EXPECT_EQ(run.form.imgStBar.picture(), "AA");
    EXPECT_EQ(run.form.imgColBar.picture(), "AA1");
    // A style without a colour: no picture of a colour.
    decode(run.form, std::to_string(7340032 + 3 * 8192 + 1), "0", "0");
    EXPECT_EQ(run.form.imgStBar.picture(), "DD");
    EXPECT_EQ(run.form.cboColBar.text(), "A");
    EXPECT_EQ(run.form.imgColBar.picture(), "");
}

TEST(PlayerFields, RaiseNoClickWhileTheyAreFilled) {
    EditorRun run;
    frmKalco& form = run.form;
    int clicks = 0;
    for (ComboBox* combo : {&form.cboCapelli, &form.cboColCap, &form.cboScarpa, &form.cboStlBar, &form.cboColBar}) {
        combo->click = [&clicks] { ++clicks; };
    }
    decode(form, "635839574", "-758741619", "1415927664");
    decode(form, "7340033", "1", "1");
    EXPECT_EQ(clicks, 0);
}

TEST(PlayerFields, ShowThePicturesOfPickedLooks) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(0);
    for (const std::string& style : form.cboCapelli.items()) {
        run.pick_text(form.cboCapelli, style);
        EXPECT_EQ(form.imgStile.picture(), style);
    }
    for (const std::string& colour : form.cboColCap.items()) {
        run.pick_text(form.cboColCap, colour);
        EXPECT_EQ(form.imgColCap.picture(), colour);
    }
    for (const std::string& boots : form.cboScarpa.items()) {
        run.pick_text(form.cboScarpa, boots);
        EXPECT_EQ(form.imgScarpa.picture(), boots + "S");
    }
}

TEST(PlayerFields, ShowNoBeardColourWithoutABeard) {
    EditorRun run;
    frmKalco& form = run.form;
    run.choose_team(0);
    for (const std::string& style : letters('G')) {
        run.pick_text(form.cboStlBar, "B");
        run.pick_text(form.cboColBar, "F");
        EXPECT_EQ(form.imgColBar.picture(), "FF1");
        run.pick_text(form.cboStlBar, style);
        EXPECT_EQ(form.imgStBar.picture(), style + style);
        EXPECT_EQ(form.imgColBar.picture(), style == "A" ? "" : "FF1");
    }
    for (const std::string& colour : letters('G')) {
        run.pick_text(form.cboStlBar, "C");
        run.pick_text(form.cboColBar, colour);
        EXPECT_EQ(form.imgColBar.picture(), colour + colour + "1");
        run.pick_text(form.cboStlBar, "A");
        run.pick_text(form.cboColBar, colour);
        EXPECT_EQ(form.imgColBar.picture(), "");
        form.cboStlBar.set_text("");
        run.pick_text(form.cboColBar, colour);
        EXPECT_EQ(form.imgColBar.picture(), "");
    }
}

TEST(PackedFields, StartFromDefaults) {
    EditorRun run;
    frmKalco& form = run.form;
    FillBlankFields(form);
    EXPECT_EQ(form.txtAlt.text(), "155");
    EXPECT_EQ(form.txtEta.text(), "0");
    EXPECT_EQ(form.txtNum.text(), "0");
    for (const ComboBox* combo : skill_combos(form)) EXPECT_EQ(combo->text(), "12") << combo->name();
    // An empty field for out of role packs like "Si".
    EXPECT_EQ(words(form), (Texts{"-2140143616", "0", "0"}));
    form.cboOutSide.set_text("No");
    FillBlankFields(form);
    EXPECT_EQ(words(form), (Texts{"7340032", "0", "0"}));
    form.cboOutSide.set_text("no");
    FillBlankFields(form);
    EXPECT_EQ(words(form), (Texts{"-2140143616", "0", "0"}));
}

TEST(PackedFields, ReplaceZeroesAndSmallHeights) {
    EditorRun run;
    frmKalco& form = run.form;
    FillBlankFields(form);
    const Texts least = words(form);
    for (const char* height : {"0", "1", "154", "155"}) {
        form.txtAlt.set_text(height);
        FillBlankFields(form);
        EXPECT_EQ(words(form), least) << height;
    }
    form.txtNum.set_text("1");
    form.txtEta.set_text("15");
    for (ComboBox* combo : skill_combos(form)) combo->set_text("0");
    FillBlankFields(form);
    EXPECT_EQ(words(form), least);
    // Only zero is replaced: an age below 15 counts below 0.
    form.txtEta.set_text("14");
    FillBlankFields(form);
    EXPECT_EQ(form.Text2.text(), "-32");
    form.txtEta.set_text("15");
    form.cboDifesa.set_text("11");
    FillBlankFields(form);
    EXPECT_EQ(form.Text3.text(), "-1");
}

TEST(PackedFields, CountUnknownTextsAsZero) {
    EditorRun run;
    frmKalco& form = run.form;
    FillBlankFields(form);
    const Texts least = words(form);
    for (ComboBox* combo : {&form.cboRuolo, &form.cboCapelli, &form.cboColCap, &form.cboStlBar, &form.cboColBar,
                            &form.cboPelle, &form.cboFisico, &form.cboScarpa, &form.cboPiede}) {
        combo->set_text("Z9");
    }
    FillBlankFields(form);
    EXPECT_EQ(words(form), least);
}

TEST(PackedFields, LetASkillAboveNineteenRunOver) {
    EditorRun run;
    frmKalco& form = run.form;
    form.cboPosit.set_text("20");
    FillBlankFields(form);
    EXPECT_EQ(form.Text3.text(), "134217728");
    form.cboAttacco.set_text("20");
    FillBlankFields(form);
    EXPECT_EQ(form.Text2.text(), "0");
}

TEST(PackedFields, FailOnASkillOrNumberThatIsNone) {
    EditorRun run;
    frmKalco& form = run.form;
    form.cboVel.set_text("x");
    EXPECT_EQ(test::error_of([&] { FillBlankFields(form); }), error::type_mismatch);
    form.cboVel.set_text("13");
    form.txtNum.set_text("n");
    EXPECT_EQ(test::error_of([&] { FillBlankFields(form); }), error::type_mismatch);
    form.txtNum.set_text(" 2 ");
    EXPECT_EQ(test::error_of([&] { FillBlankFields(form); }), 0);
}

}  // namespace
}  // namespace kalco
