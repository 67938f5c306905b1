#include "editor/window/frmKalco.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "editor/editor.h"
#include "support/fake_platform.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

class Window : public ::testing::Test {
protected:
    /// The names of a frame's controls; of an array, the array's name.
    std::set<std::string> held_by(const Frame& frame) const {
        std::set<std::string> names;
        for (const Control* each : editor.form.registry.all()) {
            if (each->frame() == &frame) names.insert(each->name().substr(0, each->name().find('(')));
        }
        return names;
    }

    using Names = std::set<std::string>;
    test::Disc disc;
    test::FakePlatform platform;
    Editor editor{platform, test::opener_of(disc)};
    frmKalco& form = editor.form;
};

TEST_F(Window, HoldsItsControlsInTheirFrames) {
    EXPECT_EQ(held_by(form.Frame8), (Names{"listSQLink", "listDefault", "txtNmLgML", "txtNmShML", "cmdLink"}));
    EXPECT_EQ(held_by(form.Frame9), (Names{"cboSqNC", "listNC", "listAppNameNC", "lblNaz", "lblIndNaz", "lblNumGioc",
                                           "lblNameML", "cmdImpNC", "cmdSaveNC", "cmdNuevo", "cmdHelp"}));
    EXPECT_EQ(held_by(form.fraKick), (Names{"cmdCrea", "cmdExpKick", "cmdImpKick"}));
    EXPECT_EQ(held_by(form.Frame6), (Names{"lblGioc", "cboMod", "cmdModifica"}));
    EXPECT_EQ(held_by(form.fraCord), (Names{"cmdUp", "cmdDown", "cmdLeft", "cmdRight"}));
    EXPECT_EQ(held_by(form.fraImpExp), (Names{"cmdExport", "cmdImport"}));
    EXPECT_EQ(held_by(form.fraScambio), (Names{"OpNREC", "OpRec"}));
    EXPECT_EQ(form.fraScambio.caption(), "Tipo di Scambio");
    EXPECT_EQ(form.cboRL.frame(), nullptr);
}

TEST_F(Window, KeepsTheColumnsOfSetPiecesApart) {
    std::set<const Frame*> frames;
    for (const auto* column : {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP}) {
        const Frame* const frame = (*column)(0).frame();
        ASSERT_NE(frame, nullptr);
        EXPECT_NE(frame, &form.fraKick);
        EXPECT_EQ(frame->frame(), nullptr);
        EXPECT_EQ(held_by(*frame).size(), 1U);
        EXPECT_EQ(column->first(), 0);
        EXPECT_EQ(column->last(), 10);
        frames.insert(frame);
    }
    EXPECT_EQ(frames.size(), 6U);
}

TEST_F(Window, HoldsAllOfTheFirstTabInItsFrame) {
    const Names outside{"cboSeqSQ", "cmdNew", "Frame3"};
    for (const Control* each : form.registry.all()) {
        if (each->tab() != tab::players) continue;
        EXPECT_EQ(each->frame() == &form.Frame3, outside.count(each->name()) == 0) << each->name();
    }
}

TEST_F(Window, ShowsNeverWhatItOnlyKeeps) {
    const Names kept{"Text1",
                     "Text2",
                     "Text3",
                     "Text4",
                     "Text5",
                     "Text6",
                     "Text7",
                     "txtHex",
                     "txtNum",
                     "listApp",
                     "listAppIMP",
                     "ListFile",
                     "listApp2",
                     "ListAppOrigName",
                     "listHexNC",
                     "listAppNC",
                     "ListAppIDX",
                     "listNameGiocNaz",
                     "listHexLinkNames",
                     "listTras1",
                     "listTras2"};
    for (const Control* each : form.registry.all()) {
        EXPECT_EQ(each->on_screen(), kept.count(each->name()) == 0) << each->name();
    }
}

TEST_F(Window, StartsWithTheseControlsSwitchedOff) {
    Names off;
    for (const Control* each : form.registry.all()) {
        if (!each->enabled()) off.insert(each->name());
    }
    EXPECT_EQ(off, (Names{"Frame3", "listNC", "cmdImpNC", "cmdSaveNC", "fraKick", "cmdteam2", "ListCompra",
                          "cmdTransfer", "cmdSave1", "cmdSave2", "fraScambio"}));
}

TEST_F(Window, KeepsOpenInReachOnEveryTab) {
    EXPECT_EQ(form.cmdOpen.tab(), Place::outside_tabs);
    EXPECT_EQ(form.cmdOpen.frame(), nullptr);
    EXPECT_EQ(form.cmdOpen.caption(), "Apri Immagine CD");
    EXPECT_EQ(form.cmdNew.caption(), "New");
}

TEST_F(Window, CaptionsItsButtons) {
    const std::map<std::string, std::string> captions{
        {"cmdOpen", "Apri Immagine CD"},
        {"cmdNew", "New"},
        {"cmdName", "Modifica Nomi Squadre"},
        {"cmdSottH", "-"},
        {"cmdAddH", "+"},
        {"cmdSottEta", "-"},
        {"cmdAddEta", "+"},
        {"cmdSaveCar", "Salva"},
        {"cmdExp", "Exporta Squadra"},
        {"cmdImp", "Importa Squadra"},
        {"cmdImpML", "Importa Squadra Default ML"},
        {"cmdLink", "Link"},
        {"cmdImpNC", "Importa Squadra"},
        {"cmdSaveNC", "Salva Modifica"},
        {"cmdNuevo", "New"},
        {"cmdHelp", "Help"},
        {"cmdCrea", "&Salva"},
        {"cmdExpKick", "&Export Kickers"},
        {"cmdImpKick", "&Import Kickers"},
        {"cmdTeam1", "Apri Squadra 1..."},
        {"cmdteam2", "Apri Squadra 2..."},
        {"cmdTransfer", "<---------  --------->"},
        {"cmdSave1", "SaveTeam&1"},
        {"cmdSave2", "SaveTeam&2"},
        {"cmdModifica", "Salva &Modifica "},
        {"cmdUp", ""},
        {"cmdLeft", ""},
        {"cmdRight", ""},
        {"cmdDown", ""},
        {"cmdMeno(1)", "-"},
        {"cmdMeno(2)", "-"},
        {"cmdMeno(3)", "-"},
        {"cmdMeno(4)", "-"},
        {"cmdMeno(5)", "-"},
        {"cmdPiu(1)", "+"},
        {"cmdPiu(2)", "+"},
        {"cmdPiu(3)", "+"},
        {"cmdPiu(4)", "+"},
        {"cmdPiu(5)", "+"},
        {"cmdSalva", "Salva Barre"},
        {"cmdExport", "Export Fomazioni && Barre"},
        {"cmdImport", "Import Fomazioni && Barre"},
        {"cmdModNum", "Modifica Numero"},
        {"cmdSaveNum", "Salva Modifica"},
        {"cmdImpNum", "Importa Numeri"},
        {"cmdExpNum", "Exporta Numeri"},
    };
    std::map<std::string, std::string> shown;
    for (const Control* each : form.registry.all()) {
        if (each->kind() != Kind::command_button) continue;
        shown[each->name()] = static_cast<const CommandButton*>(each)->caption();
    }
    EXPECT_EQ(shown, captions);
}

TEST_F(Window, StartsWithTheseTexts) {
    EXPECT_EQ(form.lblNumGioc.caption(), "0");
    EXPECT_EQ(form.cmdHelp.caption(), "Help");
    EXPECT_EQ(form.listDefault.count(), 32);
    ASSERT_EQ(form.cboSqNC.items().size(), 32U);
    for (int row = 0; row < 32; ++row) {
        const bool blank = row < 2 || row >= 27;
        EXPECT_EQ(form.cboSqNC.items()[static_cast<std::size_t>(row)].ends_with(' '), blank) << row;
    }
}

TEST_F(Window, StartsWithoutARunState) {
    EXPECT_EQ(form.ImagePath, "");
    EXPECT_EQ(form.ImportPending, 0);
    EXPECT_EQ(form.ImportPendingML, 0);
    EXPECT_EQ(form.SelectedMarker, 0);
    EXPECT_EQ(form.PackedNumberText, "");
    EXPECT_EQ(form.letters.code(), "");
    EXPECT_EQ(form.focused(), nullptr);
    EXPECT_FALSE(form.ended);
    EXPECT_FALSE(form.image.is_open());
}

TEST_F(Window, LimitsWhatIsTypedFromTheStart) {
    EXPECT_EQ(form.txtAlt.max_length(), 3);
    EXPECT_EQ(form.txtEta.max_length(), 3);
    for (const TextBox* box : {&form.txtAlt, &form.txtEta, &form.txtML, &form.txtNumMod}) {
        ASSERT_TRUE(box->key_filter) << box->name();
        for (int code = 0; code <= 0xFF; ++code) {
            const bool digit = code >= '0' && code <= '9';
            EXPECT_EQ(box->key_filter(static_cast<char>(code)), digit) << box->name() << ' ' << code;
        }
    }
    EXPECT_FALSE(form.txtName.key_filter);
}

TEST_F(Window, ReopensItsImageAndFlushesIt) {
    form.ImagePath = "disc.bin";
    form.image.open("disc.bin");
    form.image.write(1, "x");
    form.reopen_image();
    EXPECT_EQ(disc.flushes, 1);
    EXPECT_TRUE(form.image.is_open());
    EXPECT_EQ(form.image.read(1, 1), "x");
}

TEST_F(Window, InformsWithAnOrdinaryBox) {
    form.inform("Fatto");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Fatto");
    EXPECT_EQ(platform.messages[0].icon, Icon::information);
    EXPECT_EQ(platform.messages[0].buttons, Buttons::ok);
}

}  // namespace
}  // namespace kalco
