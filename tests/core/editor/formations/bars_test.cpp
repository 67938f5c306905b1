#include "editor/formations/bars.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"
#include "disc/codec/hextext.h"

namespace kalco {
namespace {

using namespace formation_tests;

using Texts = std::vector<std::string>;

std::string bars_of(int row) {
    return bytes_at(filled_image(), printed_bars(row));
}

std::string image_with_bars(int row, const std::string& bars) {
    std::string image = filled_image();
    put(image, printed_bars(row), bars);
    return image;
}

bool steps_enabled(const FormationTab& tab) {
    const bool first = tab.form.cmdPiu(1).enabled();
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(tab.form.cmdPiu(i).enabled(), first) << i;
        EXPECT_EQ(tab.form.cmdMeno(i).enabled(), first) << i;
    }
    EXPECT_EQ(tab.form.cmdSalva.enabled(), first);
    return first;
}

TEST(BarsEntry, ReadsEveryRowAndShowsNone) {
    FormationTab tab;
    ASSERT_EQ(tab.form.listApp2.count(), 86);
    for (int row = 0; row < 86; ++row) EXPECT_EQ(tab.form.listApp2.item(row), hex_digits(bars_of(row))) << row;
    EXPECT_EQ(tab.bar_values(), "0 0 0 0 0");
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_FALSE(steps_enabled(tab));
    EXPECT_TRUE(tab.refuses(tab.form.cmdPiu(1)));
    EXPECT_TRUE(tab.refuses(tab.form.cmdSalva));
}

TEST(BarsEntry, AppendsTheRowsAgainAndClearsTheBars) {
    FormationTab tab;
    tab.choose(10);
    tab.select_tab(tab::numbers);
    tab.select_tab(tab::formations);
    EXPECT_EQ(tab.form.listApp2.count(), 172);
    EXPECT_EQ(tab.form.listApp2.item(86 + 85), tab.form.listApp2.item(85));
    EXPECT_EQ(tab.bar_values(), "0 0 0 0 0");
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_FALSE(steps_enabled(tab));
}

class BarsOfEveryRow : public ::testing::TestWithParam<int> {};

TEST_P(BarsOfEveryRow, AreShownSteppedAndSaved) {
    const int row = GetParam();
    std::string bars = bars_of(row);
    FormationTab tab;
    tab.choose(row);
    std::string shown;
    for (const char value : bars) shown += (shown.empty() ? "" : " ") + std::to_string(value);
    EXPECT_EQ(tab.bar_values(), shown);
    EXPECT_EQ(tab.bar_captions(), shown);
    EXPECT_TRUE(steps_enabled(tab));

    for (int i = 1; i <= 5; ++i) {
        char& value = bars[static_cast<std::size_t>(i - 1)];
        const bool lower = value > 5;
        tab.click(lower ? tab.form.cmdMeno(i) : tab.form.cmdPiu(i));
        value = static_cast<char>(lower ? value - 1 : value + 1);
        EXPECT_EQ(tab.form.pbFZ(i).value(), value);
        EXPECT_EQ(tab.form.pbFZ(i).caption(), std::to_string(value));
        EXPECT_EQ(tab.form.listApp2.item(row), hex_digits(bars));
    }
    EXPECT_EQ(tab.form.listApp2.count(), 86);
    EXPECT_EQ(tab.disc.writes, 0);
    tab.click(tab.form.cmdSalva);
    EXPECT_TRUE(same_image(tab.disc.bytes, image_with_bars(row, bars)));
    EXPECT_EQ(tab.told(), Texts{saved});
    EXPECT_EQ(tab.disc.flushes, 1);
    EXPECT_EQ(tab.form.listApp2.count(), 86);
    EXPECT_EQ(tab.form.listApp2.item(row), hex_digits(bars));
    EXPECT_EQ(tab.form.cboSeqSQ2.row(), row);
}

INSTANTIATE_TEST_SUITE_P(Rows, BarsOfEveryRow, ::testing::Range(0, 86));

TEST(BarsOfTheDefaultTeam, AreNone) {
    FormationTab tab;
    tab.choose(10);
    tab.choose(86);
    EXPECT_EQ(tab.bar_values(), "0 0 0 0 0");
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_FALSE(steps_enabled(tab));
    cmdPiu_Click(tab.form, 1);
    cmdMeno_Click(tab.form, 5);
    cmdSalva_Click(tab.form);
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.told(), Texts{});
}

TEST(BarsSave, WritesTheSplitRowInTwoPieces) {
    FormationTab tab(image_with_bars(3, bytes_of_digits("0508070608")));
    tab.choose(3);
    tab.click(tab.form.cmdPiu(5));
    EXPECT_EQ(tab.form.listApp2.item(3), "0508070609");
    tab.click(tab.form.cmdSalva);
    EXPECT_EQ(hex_digits(tab.disc.at(2328200, 1)), "05");
    EXPECT_EQ(hex_digits(tab.disc.at(2328505, 4)), "08070609");
    EXPECT_TRUE(same_image(tab.disc.bytes, image_with_bars(3, bytes_of_digits("0508070609"))));
}

TEST(BarsStep, IsHeldBetween0And10) {
    FormationTab tab(image_with_bars(10, bytes_of_digits("0901000A05")));
    tab.choose(10);
    tab.click(tab.form.cmdPiu(1));
    EXPECT_EQ(tab.form.listApp2.item(10), "0A01000A05");
    EXPECT_EQ(tab.form.pbFZ(1).caption(), "10");
    tab.click(tab.form.cmdPiu(1));
    tab.click(tab.form.cmdMeno(2));
    tab.click(tab.form.cmdMeno(2));
    tab.click(tab.form.cmdMeno(3));
    tab.click(tab.form.cmdPiu(4));
    EXPECT_EQ(tab.form.listApp2.item(10), "0A00000A05");
    EXPECT_EQ(tab.bar_values(), "10 0 0 10 5");
    EXPECT_EQ(tab.bar_captions(), "10 0 0 10 5");
}

TEST(BarsStep, TakesEveryStoredByte) {
    for (int stored = 0; stored < 256; ++stored) {
        const std::string bars{static_cast<char>(stored), 4, static_cast<char>(stored), 4, 4};
        const int held = std::min(stored, 10);
        FormationTab tab(image_with_bars(20, bars));
        tab.choose(20);
        EXPECT_EQ(tab.form.pbFZ(1).value(), held);
        EXPECT_EQ(tab.form.pbFZ(1).caption(), std::to_string(stored));
        EXPECT_EQ(tab.form.listApp2.item(20), hex_digits(bars));
        tab.click(tab.form.cmdMeno(1));
        const int lower = std::max(held - 1, 0);
        EXPECT_EQ(tab.form.pbFZ(1).caption(), std::to_string(lower));
        // A bar that was not stepped keeps its caption, but its held value goes into the row.
        EXPECT_EQ(tab.form.pbFZ(3).caption(), std::to_string(stored));
        const std::string row{static_cast<char>(lower), 4, static_cast<char>(held), 4, 4};
        EXPECT_EQ(tab.form.listApp2.item(20), hex_digits(row));
        tab.click(tab.form.cmdSalva);
        EXPECT_TRUE(same_image(tab.disc.bytes, image_with_bars(20, row)));
    }
}

TEST(BarsSave, WithoutAStepWritesTheStoredBytes) {
    const std::string bars = bytes_of_digits("FF10807F0B");
    FormationTab tab(image_with_bars(20, bars));
    tab.choose(20);
    tab.click(tab.form.cmdSalva);
    EXPECT_TRUE(same_image(tab.disc.bytes, image_with_bars(20, bars)));
    EXPECT_EQ(tab.log.size(), 1U);
}

TEST(UnsavedBars, SurviveAnotherTeamAndAnotherTab) {
    FormationTab tab(image_with_bars(10, bytes_of_digits("0505050505")));
    tab.choose(10);
    tab.click(tab.form.cmdPiu(2));
    tab.choose(11);
    tab.choose(10);
    EXPECT_EQ(tab.bar_captions(), "5 6 5 5 5");
    tab.select_tab(tab::transfers);
    tab.select_tab(tab::formations);
    tab.choose(10);
    EXPECT_EQ(tab.bar_captions(), "5 6 5 5 5");
    tab.click(tab.form.cmdMeno(1));
    EXPECT_EQ(tab.form.listApp2.item(10), "0406050505");
    EXPECT_EQ(tab.form.listApp2.item(96), "0505050505");
    EXPECT_EQ(tab.form.listApp2.count(), 172);
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(UnsavedBars, OfOtherTeamsAreDroppedByASave) {
    FormationTab tab(image_with_bars(10, bytes_of_digits("0505050505")));
    tab.choose(10);
    tab.click(tab.form.cmdPiu(2));
    tab.select_tab(tab::transfers);
    tab.select_tab(tab::formations);
    tab.choose(11);
    tab.click(tab.form.cmdSalva);
    EXPECT_EQ(tab.form.listApp2.count(), 86);
    tab.choose(10);
    EXPECT_EQ(tab.bar_captions(), "5 5 5 5 5");
}

TEST(UnsavedBars, AreNotSavedWithTheFormation) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.cmdPiu(2));
    const std::string row = tab.form.listApp2.item(10);
    tab.click(tab.form.cmdModifica);
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    EXPECT_EQ(tab.form.listApp2.item(10), row);
}

TEST(UnsavedBars, AreDroppedWhenAnotherImageIsOpened) {
    FormationTab tab(image_with_bars(10, bytes_of_digits("0505050505")));
    tab.choose(10);
    tab.click(tab.form.cmdPiu(2));
    tab.platform.choices.emplace_back("other.bin");
    tab.click(tab.form.cmdOpen);
    EXPECT_EQ(tab.form.listApp2.count(), 0);
    EXPECT_EQ(tab.form.SSTab1.tab(), tab::players);
    tab.select_tab(tab::formations);
    EXPECT_EQ(tab.form.listApp2.count(), 86);
    tab.choose(10);
    EXPECT_EQ(tab.bar_captions(), "5 5 5 5 5");
}

TEST(BarsWithoutARow, ShowAsNoneAndStayAlone) {
    FormationTab tab;
    tab.choose(10);
    const std::string captions = tab.bar_captions();
    tab.platform.choices.emplace_back("");
    tab.click(tab.form.cmdOpen);
    EXPECT_EQ(tab.form.listApp2.count(), 0);
    // The tab still shows the team, but there is no row to step or save.
    tab.click(tab.form.cmdPiu(1));
    tab.click(tab.form.cmdMeno(1));
    tab.click(tab.form.cmdSalva);
    EXPECT_EQ(tab.bar_captions(), captions);
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.told(), Texts{});
    tab.choose(11);
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_EQ(tab.bar_values(), "0 0 0 0 0");
    EXPECT_FALSE(steps_enabled(tab));
}

TEST(BarsWithoutATeam, DoNothing) {
    FormationTab tab;
    cmdPiu_Click(tab.form, 1);
    cmdMeno_Click(tab.form, 1);
    cmdSalva_Click(tab.form);
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.told(), Texts{});
    EXPECT_EQ(tab.bar_captions(), "    ");
    EXPECT_EQ(error_of([&] { tab.choose(10), cmdPiu_Click(tab.form, 6); }), 340);
}

TEST(BarsSave, LeavesTheOldImageAtAFailingWrite) {
    for (const int row : {3, 10, 85}) {
        for (int failing = 1; failing <= (row == 3 ? 2 : 1); ++failing) {
            FormationTab tab(image_with_bars(row, bytes_of_digits("0101010101")));
            tab.choose(row);
            for (int i = 1; i <= 5; ++i) tab.click(tab.form.cmdPiu(i));
            tab.disc.failing_write = failing;
            EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdSalva); }), 61);
            EXPECT_EQ(tab.told(), Texts{});
            EXPECT_TRUE(same_image(tab.disc.bytes, image_with_bars(row, bytes_of_digits("0101010101"))));
        }
    }
}

}  // namespace
}  // namespace kalco
