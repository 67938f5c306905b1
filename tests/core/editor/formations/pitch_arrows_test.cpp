#include "editor/formations/pitch.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"
#include "disc/codec/hextext.h"
#include "disc/formation.h"

namespace kalco {
namespace {

using namespace formation_tests;

using Texts = std::vector<std::string>;

/// One marker stands at the place; the others do not matter.
Formation record_with(int marker, int x, int y) {
    Formation record = record_of_row(10);
    record.x[at(marker)] = static_cast<std::uint8_t>(x);
    record.y[at(marker)] = static_cast<std::uint8_t>(y);
    return record;
}

struct Stop {
    int moves;
    int value;
    int place;
};

/// Moves a marker from X or Y until the arrow refuses.
Stop run_into(CommandButton frmKalco::*arrow, int x, int y) {
    static FormationTab tab;
    tab.disc.bytes = image_with(10, record_with(5, x, y));
    tab.select_tab(0);
    tab.select_tab(kalco::tab::formations);
    tab.choose(10);
    tab.click(tab.form.lblGioc(5));
    CommandButton& button = tab.form.*arrow;
    const bool sideways = &button == &tab.form.cmdLeft || &button == &tab.form.cmdRight;
    Formation record = record_with(5, x, y);
    const int moves = tab.press_until_refused(button);
    const PitchMarker& marker = tab.form.lblGioc(5);
    EXPECT_EQ(sideways ? marker.top() : marker.left(), sideways ? screen_top(y) : screen_left(x));
    EXPECT_EQ(sideways ? tab.form.FormationY[5] : tab.form.FormationX[5], sideways ? y : x);
    for (int k = first_marker; k <= last_marker; ++k) {
        if (k == 5) continue;
        EXPECT_EQ(tab.form.FormationX[static_cast<std::size_t>(k)], record.x[at(k)]);
        EXPECT_EQ(tab.form.lblGioc(k).left(), screen_left(record.x[at(k)]));
    }
    EXPECT_EQ(tab.told(), Texts{});
    return {moves, sideways ? tab.form.FormationX[5] : tab.form.FormationY[5], sideways ? marker.left() : marker.top()};
}

void expect_stop(const Stop& stop, int moves, int value, int place) {
    EXPECT_EQ(stop.moves, moves);
    EXPECT_EQ(stop.value, value);
    EXPECT_EQ(stop.place, place);
}

TEST(PitchArrows, DriftAndStopAtTheKnownPlaces) {
    expect_stop(run_into(&frmKalco::cmdRight, 9, 52), 39, 48, 4900);
    expect_stop(run_into(&frmKalco::cmdDown, 9, 52), 57, 109, 3383);
    expect_stop(run_into(&frmKalco::cmdLeft, 1, 52), 0, 1, 102);
    expect_stop(run_into(&frmKalco::cmdUp, 9, 1), 0, 1, 31);
    expect_stop(run_into(&frmKalco::cmdLeft, 0, 52), 0, 0, 0);
    expect_stop(run_into(&frmKalco::cmdUp, 9, 0), 0, 0, 0);
    expect_stop(run_into(&frmKalco::cmdRight, 0, 52), 48, 48, 4896);
    expect_stop(run_into(&frmKalco::cmdDown, 9, 0), 109, 109, 3379);
    expect_stop(run_into(&frmKalco::cmdRight, 47, 52), 1, 48, 4920);  // 4817.5 goes to 4818
    expect_stop(run_into(&frmKalco::cmdRight, 48, 52), 0, 48, 4920);
    expect_stop(run_into(&frmKalco::cmdDown, 9, 112), 0, 112, 3480);
    // From far away the screen place reaches the limit after the value has passed 0.
    expect_stop(run_into(&frmKalco::cmdLeft, 255, 52), 256, -1, 26);
}

TEST(PitchArrows, LookAtTheScreenPlaceFromEveryValue) {
    for (int value = 0; value <= 255; value += 3) {
        const auto expect = [value](CommandButton frmKalco::*arrow, bool sideways, int direction) {
            int place = sideways ? screen_left(value) : screen_top(value);
            const int step = sideways ? 102 : 31;
            int moves = 0;
            while (direction < 0 ? place > step : place < (sideways ? 4819 : 3379)) {
                place += direction * step;
                ++moves;
            }
            const Stop stop = sideways ? run_into(arrow, value, 52) : run_into(arrow, 9, value);
            expect_stop(stop, moves, value + direction * moves, place);
        };
        expect(&frmKalco::cmdLeft, true, -1);
        expect(&frmKalco::cmdRight, true, 1);
        expect(&frmKalco::cmdUp, false, -1);
        expect(&frmKalco::cmdDown, false, 1);
    }
}

TEST(PitchArrows, RefuseAtTheLimitItself) {
    FormationTab tab(image_with(10, record_with(5, 50, 52)));
    tab.choose(10);
    tab.click(tab.form.lblGioc(5));
    for (int i = 0; i < 3; ++i) tab.click(tab.form.cmdLeft);
    ASSERT_EQ(tab.form.lblGioc(5).left(), 4819);
    tab.click(tab.form.cmdRight);
    EXPECT_EQ(tab.form.lblGioc(5).left(), 4819);
    EXPECT_EQ(tab.form.FormationX[5], 47);
}

TEST(PitchArrows, LoseTheirDriftWhenTheRecordIsReadAgain) {
    FormationTab tab(image_with(10, record_with(5, 9, 52)));
    tab.choose(10);
    tab.click(tab.form.lblGioc(5));
    tab.press_until_refused(tab.form.cmdDown);
    tab.click(tab.form.cmdModifica);
    EXPECT_EQ(tab.form.lblGioc(5).top(), 3383);
    tab.choose(10);
    EXPECT_EQ(tab.form.FormationY[5], 109);
    EXPECT_EQ(tab.form.lblGioc(5).top(), 3387);
}

TEST(PitchArrows, WriteAValueBelowZeroAsEightDigits) {
    for (const int row : {10, 32}) {
        Formation record = record_of_row(row);
        record.x[9] = 255;
        FormationTab tab(image_with(row, record));
        tab.choose(row);
        tab.click(tab.form.lblGioc(11));
        EXPECT_EQ(tab.press_until_refused(tab.form.cmdLeft), 256);
        const std::string before = tab.disc.bytes;
        tab.click(tab.form.cmdModifica);
        const std::string bytes = pack_formation(record);
        const std::string text = bytes.substr(0, 19) + bytes_of_digits("FFFFFFFF") + bytes.substr(20);
        ASSERT_EQ(text.size(), 33U);
        EXPECT_TRUE(same_image(tab.disc.bytes, image_after(before, row, text))) << row;
    }
}

TEST(PitchArrows, AreOffUntilAMarkerIsClicked) {
    FormationTab tab;
    tab.choose(5);  // a row that is also the number of a marker
    for (CommandButton* arrow : {&tab.form.cmdLeft, &tab.form.cmdRight, &tab.form.cmdUp, &tab.form.cmdDown}) {
        EXPECT_TRUE(tab.refuses(*arrow));
    }
    EXPECT_EQ(user::pick(tab.form, tab.form.cboRL, 0), user::Outcome::disabled);
    expect_record_shown(tab, record_of_row(5));
    tab.click(tab.form.lblGioc(5));
    tab.click(tab.form.cmdModifica);
    EXPECT_TRUE(tab.refuses(tab.form.cmdLeft));
    tab.click(tab.form.lblGioc(5));
    tab.pick(tab.form.cboMod, 0);
    EXPECT_TRUE(tab.refuses(tab.form.cmdLeft));
}

TEST(PitchArrows, OnANumberThatIsNoMarkerAreError340) {
    FormationTab tab;
    tab.choose(10);
    for (const int number : {-1, 0, 1, 12, 53, 86}) {
        tab.form.SelectedMarker = number;
        for (const auto handler : {cmdLeft_Click, cmdRight_Click, cmdUp_Click, cmdDown_Click, cboRL_Click}) {
            EXPECT_EQ(error_of([&] { handler(tab.form); }), 340) << number;
        }
        EXPECT_EQ(error_of([&] { Invert_Mod(tab.form); }), 340) << number;
    }
    expect_record_shown(tab, record_of_row(10));
}

TEST(PitchArrows, ActOnMarker11AfterAnExport) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.lblGioc(4));
    tab.click(tab.form.cmdExport);
    EXPECT_EQ(selected_marker(tab.form), 4);
    EXPECT_EQ(tab.form.SelectedMarker, 11);
    tab.click(tab.form.cmdRight);
    tab.pick(tab.form.cboRL, 3);
    Formation record = record_of_row(10);
    EXPECT_EQ(tab.form.FormationX[11], record.x[9] + 1);
    EXPECT_EQ(tab.form.FormationX[4], record.x[2]);
    EXPECT_EQ(tab.form.lblGioc(11).caption(), "LIB");
    EXPECT_EQ(tab.form.lblGioc(4).caption(), role_labels[static_cast<std::size_t>(record.roles[2] - 2)]);
}

TEST(PitchArrows, StayOffAfterAnExportWithoutAMarker) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.cmdExport);
    EXPECT_EQ(tab.form.SelectedMarker, 11);
    EXPECT_TRUE(tab.refuses(tab.form.cmdLeft));
}

}  // namespace
}  // namespace kalco
