#include "editor/formations/pitch.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"
#include "disc/codec/hextext.h"
#include "disc/formation.h"

namespace kalco {
namespace {

using namespace formation_tests;

using Texts = std::vector<std::string>;

TEST(PitchEntry, ClearsTheTab) {
    FormationTab tab;
    EXPECT_FALSE(tab.form.Frame6.enabled());
    EXPECT_FALSE(tab.form.fraCord.enabled());
    EXPECT_FALSE(tab.form.cboRL.enabled());
    EXPECT_FALSE(tab.form.fraImpExp.enabled());
    EXPECT_TRUE(tab.refuses(tab.form.lblGioc(2)));
    EXPECT_TRUE(tab.refuses(tab.form.cmdModifica));
    EXPECT_TRUE(tab.refuses(tab.form.cmdExport));
    EXPECT_EQ(tab.form.cboSeqSQ2.items().size(), 87U);
    EXPECT_EQ(tab.form.cboRL.items(), Texts(role_labels.begin(), role_labels.end()));
    EXPECT_EQ(tab.form.cboMod.items().size(), 16U);

    tab.choose(10);
    tab.click(tab.form.lblGioc(4));
    tab.pick(tab.form.cboMod, 3);
    tab.click(tab.form.lblGioc(5));
    tab.select_tab(tab::kickers);
    tab.select_tab(tab::formations);
    EXPECT_EQ(selected_marker(tab.form), 0);
    EXPECT_EQ(tab.form.txtSqHEX2.text(), "");
    EXPECT_EQ(tab.form.cboSeqSQ2.row(), -1);
    EXPECT_EQ(tab.form.cboRL.text(), "");
    EXPECT_EQ(tab.form.cboMod.text(), "");
    EXPECT_EQ(tab.form.lblNameG.caption(), "");
    EXPECT_FALSE(tab.form.Frame6.enabled() || tab.form.fraCord.enabled() || tab.form.cboRL.enabled() ||
                 tab.form.fraImpExp.enabled());
}

class PitchOfEveryRow : public ::testing::TestWithParam<int> {};

TEST_P(PitchOfEveryRow, ShowsTheRecord) {
    const int row = GetParam();
    FormationTab tab;
    tab.choose(row);
    expect_record_shown(tab, record_of_row(row));
    EXPECT_EQ(tab.form.SelectedMarker, row);
    EXPECT_EQ(selected_marker(tab.form), 0);
    EXPECT_TRUE(tab.form.Frame6.enabled());
    EXPECT_EQ(tab.form.fraImpExp.enabled(), row != 86);
    EXPECT_FALSE(tab.form.fraCord.enabled() || tab.form.cboRL.enabled());
    EXPECT_EQ(tab.form.cboRL.text() + tab.form.cboMod.text() + tab.form.lblNameG.caption(), "");
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST_P(PitchOfEveryRow, SavesItsOwnRecordAndNothingElse) {
    const int row = GetParam();
    const int module = row % 16;
    FormationTab tab;
    tab.choose(row);
    tab.pick(tab.form.cboMod, module);
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    tab.click(tab.form.lblGioc(7));
    tab.pick(tab.form.cboRL, 2);
    tab.click(tab.form.cmdRight);
    tab.click(tab.form.cmdRight);
    tab.click(tab.form.cmdUp);
    tab.click(tab.form.cmdModifica);

    const ModuleRow& rows = module_rows[static_cast<std::size_t>(module)];
    std::string bytes = bytes_of_digits(std::string(rows.roles) + std::string(rows.x) + std::string(rows.y));
    bytes[5] = 0x04;
    bytes[15] = static_cast<char>(bytes[15] + 2);
    bytes[25] = static_cast<char>(bytes[25] - 1);
    std::string expected = filled_image();
    put(expected, printed_formation(row), bytes);
    EXPECT_TRUE(same_image(tab.disc.bytes, expected));
    EXPECT_EQ(tab.told(), Texts{saved});
    EXPECT_EQ(tab.disc.flushes, 1);
    EXPECT_TRUE(tab.form.image.is_open());

    EXPECT_EQ(tab.form.SelectedMarker, 11);
    EXPECT_EQ(selected_marker(tab.form), 0);
    EXPECT_FALSE(tab.form.fraCord.enabled() || tab.form.cboRL.enabled());
    EXPECT_EQ(tab.form.cboRL.text() + tab.form.cboMod.text() + tab.form.lblNameG.caption(), "");
    EXPECT_EQ(tab.form.cboSeqSQ2.row(), row);
    EXPECT_TRUE(tab.form.Frame6.enabled());
}

TEST_P(PitchOfEveryRow, SavesWhatItReadUnchanged) {
    FormationTab tab;
    tab.choose(GetParam());
    tab.click(tab.form.cmdModifica);
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    EXPECT_FALSE(tab.log.empty());
    EXPECT_EQ(tab.disc.writes, 0) << "nothing reaches the disk";
}

INSTANTIATE_TEST_SUITE_P(Rows, PitchOfEveryRow, ::testing::Range(0, 87));

TEST(PitchName, IsTheFullWidthNameOfTheRow) {
    FormationTab tab;
    const std::vector<std::pair<int, std::string>> names{{0, "Ireland"},  {3, "England"}, {4, "Porto"}, {32, "Egypt"},
                                                         {60, "AstonVi"}, {85, "BocaJ"},  {86, ""}};
    for (const auto& [row, name] : names) {
        tab.choose(row);
        EXPECT_EQ(tab.form.txtSqHEX2.text(), name) << row;
    }
}

TEST(PitchName, OfPortugalIsDecodedInOneWalk) {
    std::string image = filled_image();
    // The single blank is doubled once in the joined bytes, so that the rest keeps in step.
    put(image, 2003621, bytes_of_digits("82602082"));
    put(image, 2003929, bytes_of_digits("618262000000"));
    FormationTab tab(image);
    tab.choose(4);
    EXPECT_EQ(tab.form.txtSqHEX2.text(), "A BC  ");
}

TEST(PitchName, ThatBeginsWithABlankEndsTheProgram) {
    std::string image = filled_image();
    put(image, 2003549, " ");
    FormationTab tab(image);
    EXPECT_EQ(error_of([&] { tab.choose(10); }), 5);
}

TEST(PitchMarkers, ShowTheirSelectionAndRole) {
    FormationTab tab;
    tab.choose(10);
    for (int k = first_marker; k <= last_marker; ++k) {
        tab.click(tab.form.lblGioc(k));
        EXPECT_EQ(selected_marker(tab.form), k);
        EXPECT_EQ(tab.form.SelectedMarker, k);
        EXPECT_EQ(tab.form.cboRL.text(), tab.form.lblGioc(k).caption());
        EXPECT_TRUE(tab.form.fraCord.enabled() && tab.form.cboRL.enabled());
    }
}

TEST(PitchMarkers, ArePressedBeforeTheyAreClicked) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.lblGioc(3));
    lblGioc_MouseDown(tab.form, 8);
    EXPECT_EQ(selected_marker(tab.form), 8);
    EXPECT_EQ(tab.form.SelectedMarker, 3);
}

TEST(PitchRole, ChangesTheCaptionAlone) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.lblGioc(6));
    for (int row = 0; row < 20; ++row) {
        tab.pick(tab.form.cboRL, row);
        EXPECT_EQ(tab.form.lblGioc(6).caption(), role_labels[static_cast<std::size_t>(row)]);
        EXPECT_EQ(Invert_Mod(tab.form), role_code(role_labels[static_cast<std::size_t>(row)]));
    }
    Formation record = record_of_row(10);
    record.roles[at(6)] = 0x15;
    expect_record_shown(tab, record);
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
}

TEST(PitchModule, LaysItsColumns) {
    FormationTab tab;
    tab.choose(10);
    for (int row = 0; row < 16; ++row) {
        tab.click(tab.form.lblGioc(4));
        tab.pick(tab.form.cboMod, row);
        const ModuleRow& module = module_rows[static_cast<std::size_t>(row)];
        const std::string digits = std::string(module.roles).append(module.x).append(module.y);
        expect_record_shown(tab, unpack_formation(bytes_of_digits(digits)));
        EXPECT_EQ(selected_marker(tab.form), 0);
        EXPECT_EQ(tab.form.lblNameG.caption() + tab.form.cboRL.text(), "");
        EXPECT_FALSE(tab.form.fraCord.enabled() || tab.form.cboRL.enabled());
        EXPECT_EQ(tab.form.cboMod.text(), module.name);
    }
    EXPECT_EQ(tab.form.lblGioc(2).caption(), "DC SX");
    EXPECT_EQ(tab.form.FormationX[2], 9);
    EXPECT_EQ(tab.form.FormationY[2], 32);
    EXPECT_EQ(tab.form.lblGioc(11).caption(), "CA DX");
    EXPECT_EQ(tab.form.FormationX[11], 43);
    EXPECT_EQ(tab.form.FormationY[11], 66);
}

TEST(PitchModule, ReachesTheImageOnlyBySaving) {
    FormationTab tab;
    tab.choose(10);
    tab.pick(tab.form.cboMod, 15);
    tab.choose(11);
    expect_record_shown(tab, record_of_row(11));
    tab.choose(10);
    expect_record_shown(tab, record_of_row(10));
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    EXPECT_EQ(tab.told(), Texts{});
}

TEST(PitchModule, WithoutANameIsEmpty) {
    FormationTab tab;
    tab.choose(10);
    const ModuleTexts texts = Conf_MOD(tab.form);
    EXPECT_EQ(texts.roles + texts.x + texts.y, "");
    cboMod_Click(tab.form);
    EXPECT_EQ(tab.captions(), "???,???,???,???,???,???,???,???,???,???");
    EXPECT_EQ(tab.form.FormationX[11] + tab.form.lblGioc(11).left(), 0);
}

TEST(PitchSave, WithoutATeamDoesNothing) {
    FormationTab tab;
    cmdModifica_Click(tab.form);
    cboSeqSQ2_Click(tab.form);
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.told(), Texts{});
    EXPECT_FALSE(tab.form.Frame6.enabled());
}

TEST(PitchSave, LeavesTheOldImageAtAFailingWrite) {
    for (const int row : {10, 32, 86}) {
        const int writes = row == 32 ? 2 : 1;
        for (int failing = 1; failing <= writes; ++failing) {
            for (const int failure : {error::disk_full, error::device_io}) {
                FormationTab tab;
                tab.choose(row);
                tab.pick(tab.form.cboMod, 4);
                tab.disc.failing_write = failing;
                tab.disc.failure = failure;
                EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdModifica); }), failure);
                EXPECT_EQ(tab.told(), Texts{});
                EXPECT_TRUE(same_image(tab.disc.bytes, filled_image())) << row;
            }
        }
    }
}

TEST(PitchSave, AfterACancelledOpenWritesAndThenEndsTheProgram) {
    FormationTab tab;
    tab.choose(10);
    tab.pick(tab.form.cboMod, 4);
    tab.platform.choices.emplace_back("");
    tab.click(tab.form.cmdOpen);
    EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdModifica); }), 75);
    EXPECT_EQ(tab.told(), Texts{saved});
    std::string expected = filled_image();
    put(expected, printed_formation(10),
        bytes_of_digits(std::string(module_rows[4].roles) + std::string(module_rows[4].x) +
                        std::string(module_rows[4].y)));
    EXPECT_TRUE(same_image(tab.disc.bytes, expected));
}

TEST(PitchOfAShortImage, ShowsZeroesAndGrowsByASave) {
    FormationTab tab(std::string(100, 'A'));
    tab.choose(10);
    EXPECT_EQ(tab.captions(), "???,???,???,???,???,???,???,???,???,???");
    EXPECT_EQ(tab.form.lblGioc(2).left() + tab.form.lblGioc(11).top(), 0);
    tab.pick(tab.form.cboMod, 0);
    tab.click(tab.form.cmdModifica);
    EXPECT_EQ(tab.disc.bytes.size(), 2303701U + 300U + 29U);
    EXPECT_EQ(tab.disc.at(1, 100), std::string(100, 'A'));
}

}  // namespace
}  // namespace kalco
