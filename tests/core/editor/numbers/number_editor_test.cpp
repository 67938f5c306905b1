#include "editor/numbers/number_editor.h"

#include <gtest/gtest.h>

#include "core/editor/numbers/number_tab.h"
#include "disc/codec/hextext.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

using namespace number_tests;

TEST(NumberTabEntry, HasNothingOnUntilATeamIsChosen) {
    NumberTab tab;
    for (CommandButton* button :
         {&tab.form.cmdModNum, &tab.form.cmdSaveNum, &tab.form.cmdImpNum, &tab.form.cmdExpNum}) {
        EXPECT_FALSE(button->enabled()) << button->name();
    }
    EXPECT_EQ(tab.form.txtNumMod.max_length(), 2);
    tab.choose(3);
    EXPECT_FALSE(tab.form.cmdModNum.enabled());
    EXPECT_FALSE(tab.form.cmdSaveNum.enabled());
    EXPECT_TRUE(tab.form.cmdImpNum.enabled());
    EXPECT_TRUE(tab.form.cmdExpNum.enabled());
}

TEST(NumberTabChoice, ShowsNamesNumbersAndBoard) {
    NumberTab tab;
    for (const int row : {0, 4, 53, 86}) {
        tab.choose(row);
        ASSERT_EQ(tab.form.ListName.count(), 23) << row;
        ASSERT_EQ(tab.form.ListNum.count(), 23) << row;
        for (int player = 0; player < 23; ++player) {
            const std::string name = row == 86
                                         ? test::player_name(95, DefaultSlots[static_cast<std::size_t>(player)].value())
                                         : test::player_name(row, player);
            EXPECT_EQ(tab.form.ListName.item(player), name) << row << ' ' << player;
            EXPECT_EQ(tab.form.ListNum.item(player), number_entry(player + (row == 86 ? 31 : 1)));
        }
        EXPECT_EQ(tab.cells_in_use().size(), 23U);
        EXPECT_EQ(tab.cells_in_use().front(), row == 86 ? 31 : 1);
    }
    EXPECT_EQ(tab.form.txtSqSel.text(), "") << "the default team has no name";
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(NumberTabChoice, ReadsTheRecordOfEveryRow) {
    std::string image = numbered_image();
    std::vector<Entries> numbers;
    for (int row = 0; row < 87; ++row) {
        numbers.push_back(rising_from(row < 54 ? 1 + row % 10 : 1 + row % 70));
        const std::string digits = row < 54 ? pack_national_numbers(numbers.back()) : pack_club_numbers(numbers.back());
        test::put(image, number_field(TeamRow(row)).position(), bytes_of_digits(digits));
    }
    NumberTab tab(image);
    for (int row = 86; row >= 0; --row) {
        tab.choose(row);
        EXPECT_EQ(tab.form.ListNum.items(), numbers[static_cast<std::size_t>(row)]) << row;
        EXPECT_GE(tab.form.ListName.count(), 23) << row;
        EXPECT_EQ(tab.cells_in_use().size(), 23U) << row;
    }
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(NumberTabChoice, MisreadNumbersAreWrittenBackAsTheyWereRead) {
    const std::string word = "\x41\x80\x41\x0A";
    NumberTab tab(numbered_image(9, word));
    tab.choose(9);
    for (const auto& [row, entry] :
         std::vector<std::pair<int, std::string>>{{0, "02"}, {1, "03"}, {2, "32"}, {3, "03"}, {4, "05"}, {5, "06"}}) {
        EXPECT_EQ(tab.form.ListNum.item(row), entry) << row;
    }
    tab.give(22, "31");
    tab.click(tab.form.cmdSaveNum);
    EXPECT_EQ(hex_digits(tab.record(9).substr(0, 4)), "417C410A");
}

TEST(NumberTabChoice, ATeamNameThatBeginsWithABlankByteEndsTheProgram) {
    std::string image = numbered_image();
    test::put(image, 2003965, " ");
    NumberTab tab(image);
    EXPECT_EQ(test::error_of([&] { user::pick(tab.form, tab.form.cboSQNum, 1); }), error::invalid_call);
}

TEST(NumberTabChoice, AClubWithANumberAbove99IsRefused) {
    std::string image = numbered_image();
    test::put(image, number_field(TeamRow(60)).position() + 7, "\x63");
    test::put(image, number_field(TeamRow(61)).position() + 7, "\x62");
    NumberTab tab(image);
    tab.choose(2);
    const Entries names = tab.form.ListName.items();
    tab.choose(60);
    EXPECT_EQ(tab.form.cboSQNum.row(), -1);
    EXPECT_EQ(tab.form.cboSQNum.text(), "");
    EXPECT_EQ(tab.form.ListName.items(), names);
    EXPECT_TRUE(tab.form.cmdExpNum.enabled());
    tab.click(tab.form.cmdExpNum);
    EXPECT_TRUE(tab.told().empty()) << "no team is chosen";
    tab.choose(61);
    EXPECT_EQ(tab.form.ListNum.item(7), "99");
}

TEST(NumberLists, FollowEachOther) {
    NumberTab tab;
    tab.choose(1);
    tab.choose_player_of_tab(5);
    EXPECT_EQ(tab.form.ListNum.row(), 5);
    EXPECT_EQ(tab.form.txtNumMod.text(), "06");
    EXPECT_EQ(tab.form.focused(), &tab.form.txtNumMod);
    EXPECT_TRUE(tab.form.cmdModNum.enabled());
    EXPECT_TRUE(tab.form.cmdSaveNum.enabled());
    tab.type(tab.form.txtNumMod, "9");
    EXPECT_EQ(user::pick(tab.form, tab.form.ListNum, 5), user::Outcome::done);
    EXPECT_EQ(tab.form.txtNumMod.text(), "06") << "the click runs although the row was selected already";
    EXPECT_EQ(user::pick(tab.form, tab.form.ListNum, 11), user::Outcome::done);
    EXPECT_EQ(tab.form.ListName.row(), 11);
    EXPECT_EQ(tab.form.txtNumMod.text(), "12");
}

TEST(NumberLists, ANameWithoutANumberDoesNothing) {
    NumberTab tab;
    tab.choose(1);
    tab.form.ListName.add("Giocatore ???");
    tab.choose_player_of_tab(23);
    EXPECT_FALSE(tab.form.cmdModNum.enabled());
    EXPECT_EQ(tab.form.txtNumMod.text(), "");
}

TEST(NumberLists, AreEmptyAfterTheTabWasLeft) {
    NumberTab tab;
    tab.choose(2);
    tab.give(0, "32");
    const std::string packed = tab.form.PackedNumberText;
    user::select_tab(tab.form, tab::transfers);
    user::select_tab(tab.form, tab::numbers);
    EXPECT_EQ(tab.form.cboSQNum.row(), -1);
    EXPECT_EQ(tab.form.ListName.count() + tab.form.ListNum.count(), 0);
    EXPECT_EQ(tab.form.txtNumMod.text() + tab.form.txtSqSel.text(), "");
    EXPECT_TRUE(tab.cells_in_use().empty());
    EXPECT_FALSE(tab.form.cmdImpNum.enabled());
    EXPECT_EQ(tab.form.PackedNumberText, packed);
    tab.choose(3);
    tab.choose_player_of_tab(0);
    tab.click(tab.form.cmdSaveNum);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image(3, bytes_of_digits(packed))));
}

TEST(NumberField, IsSelectedWithItsTwoDigits) {
    NumberTab tab;
    tab.choose(0);
    tab.form.txtNumMod.take_selection();
    tab.choose_player_of_tab(6);
    ASSERT_TRUE(tab.form.txtNumMod.has_selection_request());
    const TextBox::Selection selection = tab.form.txtNumMod.take_selection();
    EXPECT_EQ(selection.start, 0);
    EXPECT_EQ(selection.length, 2);
    tab.give(6, "33");
    EXPECT_TRUE(tab.form.txtNumMod.has_selection_request());
}

TEST(NumberField, TakesTwoDigitsAndPadsOne) {
    NumberTab tab;
    tab.choose(0);
    tab.choose_player_of_tab(0);
    tab.type(tab.form.txtNumMod, "a7b");
    EXPECT_EQ(tab.form.txtNumMod.text(), "7");
    user::focus(tab.form, tab.form.ListName);
    EXPECT_EQ(tab.form.txtNumMod.text(), "07");
    tab.type(tab.form.txtNumMod, "1234");
    EXPECT_EQ(tab.form.txtNumMod.text(), "12");
}

TEST(NumberChange, AFreeNumberMovesOnTheBoard) {
    NumberTab tab;
    tab.choose(0);
    tab.give(4, "30");
    EXPECT_EQ(tab.form.ListNum.item(4), "30");
    EXPECT_TRUE(tab.form.lblNum(30).in_use());
    EXPECT_FALSE(tab.form.lblNum(5).in_use());
    EXPECT_EQ(tab.form.ListNum.row(), 4);
    EXPECT_EQ(tab.form.PackedNumberText.size(), 32U);
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(NumberChange, ATeamMatesNumberIsSwapped) {
    NumberTab tab;
    tab.choose(0);
    const std::vector<int> cells = tab.cells_in_use();
    tab.give(4, "9");
    EXPECT_EQ(tab.form.ListNum.item(4), "09") << "one digit is padded before it is compared";
    EXPECT_EQ(tab.form.ListNum.item(8), "05");
    EXPECT_EQ(tab.cells_in_use(), cells);
}

TEST(NumberChange, TheOwnNumberChangesNothingButIsPacked) {
    NumberTab tab;
    tab.choose(0);
    const Entries before = tab.form.ListNum.items();
    tab.give(4, "05");
    EXPECT_EQ(tab.form.ListNum.items(), before);
    EXPECT_EQ(tab.form.PackedNumberText, hex_digits(tab.record(0)));
}

TEST(NumberChange, ADoubledOldNumberLeavesTheBoard) {
    std::string image = numbered_image();
    test::put(image, number_field(TeamRow(54)).position(), std::string("\x04\x04", 2));
    NumberTab tab(image);
    tab.choose(54);
    tab.give(0, "77");
    EXPECT_FALSE(tab.form.lblNum(5).in_use()) << "though the second player still wears it";
    EXPECT_EQ(tab.form.ListNum.item(1), "05");
}

TEST(NumberChange, OnlyTheFirstOfTwoWearersTakesTheOldNumber) {
    Entries numbers = rising_from(31);
    numbers[4] = numbers[1];
    NumberTab tab(numbered_image(54, bytes_of_digits(pack_club_numbers(numbers))));
    tab.choose(54);
    tab.give(0, "32");
    std::swap(numbers[0], numbers[1]);
    EXPECT_EQ(tab.form.ListNum.items(), numbers);
    EXPECT_EQ(numbers[4], "32");
    EXPECT_TRUE(tab.form.lblNum(31).in_use());
    EXPECT_TRUE(tab.form.lblNum(32).in_use());
}

TEST(NumberChange, RefusesATeamThatCannotBePacked) {
    NumberTab tab;
    tab.choose(20);
    tab.import_line("2221zz");
    const Entries before = tab.form.ListNum.items();
    ASSERT_EQ(before[2], "zz");
    const std::string packed = tab.form.PackedNumberText;
    const std::vector<int> cells = tab.cells_in_use();
    tab.give(10, "30");
    EXPECT_EQ(tab.form.ListNum.items(), before);
    EXPECT_EQ(tab.form.PackedNumberText, packed);
    EXPECT_EQ(tab.cells_in_use(), cells);
    EXPECT_TRUE(tab.told().empty());
    tab.give(2, "30");
    EXPECT_EQ(tab.form.ListNum.item(2), "30") << "the number that replaces the bad one can be packed";
    EXPECT_TRUE(tab.form.lblNum(30).in_use());
    EXPECT_NE(tab.form.PackedNumberText, packed);
}

TEST(NumberChange, NationsStopAt32) {
    NumberTab tab;
    tab.choose(0);
    tab.give(4, "33");
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::warning);
    EXPECT_EQ(tab.told(), (Entries{"Inserire un numero compreso fra 1 e 32"}));
    EXPECT_EQ(tab.form.focused(), &tab.form.txtNumMod);
    EXPECT_EQ(tab.form.ListNum.item(4), "05");
    EXPECT_EQ(tab.form.PackedNumberText, "");
    for (const int row : {54, 86}) {
        tab.choose(row);
        tab.give(4, "99");
        EXPECT_EQ(tab.form.ListNum.item(4), "99");
        EXPECT_EQ(tab.form.PackedNumberText.substr(8, 2), "62");
    }
}

TEST(NumberChange, RefusesWhatHasNoCell) {
    NumberTab tab;
    tab.choose(54);
    for (const char* number : {"", "0", "00"}) {
        const Entries before = tab.form.ListNum.items();
        tab.give(4, number);
        EXPECT_EQ(tab.form.ListNum.items(), before) << number;
        EXPECT_TRUE(tab.told().empty());
        EXPECT_EQ(tab.form.PackedNumberText, "");
    }
}

TEST(NumberSave, EveryRowWritesItsRecordAndNothingElse) {
    for (int row = 0; row < 87; ++row) {
        NumberTab tab;
        tab.choose(row);
        tab.give(0, "29");
        tab.click(tab.form.cmdSaveNum);
        EXPECT_EQ(tab.told(), (Entries{saved}));
        std::string expected = numbered_image();
        const char first = expected[static_cast<std::size_t>(number_field(TeamRow(row)).position() - 1)];
        const char low = row < 54 ? static_cast<char>((first & 0xE0) | 28) : static_cast<char>(28);
        test::put(expected, number_field(TeamRow(row)).position(), std::string(1, low));
        EXPECT_TRUE(test::same_image(tab.disc.bytes, expected)) << row;
        EXPECT_EQ(tab.disc.flushes, 1);
    }
}

TEST(NumberSave, WithoutATeamDoesNothing) {
    NumberTab tab;
    tab.choose(0);
    tab.give(0, "30");
    tab.form.cboSQNum.set_text("");
    for (CommandButton* button :
         {&tab.form.cmdModNum, &tab.form.cmdSaveNum, &tab.form.cmdImpNum, &tab.form.cmdExpNum}) {
        tab.click(*button);
    }
    EXPECT_TRUE(tab.told().empty());
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.platform.dialogs.size(), 1U) << "only the one of the start";
}

TEST(NumberSave, WithoutAPathTheReopeningEndsTheProgram) {
    NumberTab tab;
    tab.choose(0);
    tab.give(0, "30");
    tab.form.ImagePath.clear();
    EXPECT_EQ(test::error_of([&] { user::click(tab.form, tab.form.cmdSaveNum); }), error::path_access);
    EXPECT_EQ(tab.told(), (Entries{saved}));
    EXPECT_EQ(hex_digits(tab.record(0)), tab.form.PackedNumberText);
}

TEST(NumberSave, NothingPackedWritesNothing) {
    NumberTab tab;
    tab.choose(7);
    tab.choose_player_of_tab(0);
    tab.click(tab.form.cmdSaveNum);
    EXPECT_EQ(tab.told(), (Entries{saved}));
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image()));
}

TEST(NumberSave, AClubsPackingRunsPastANationsRecord) {
    NumberTab tab;
    tab.choose(54);
    tab.give(0, "29");
    const std::string packed = bytes_of_digits(tab.form.PackedNumberText);
    ASSERT_EQ(packed.size(), 23U);
    tab.choose(10);
    tab.choose_player_of_tab(3);
    tab.click(tab.form.cmdSaveNum);
    std::string expected = numbered_image();
    test::put(expected, number_field(TeamRow(10)).position(), packed);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, expected));
}

TEST(NumberSave, FailingWritesAreTold) {
    test::expect_every_failing_write_to_stop(
        [](test::EditorRun& run) {
            user::select_tab(run.form, tab::numbers);
            user::pick(run.form, run.form.cboSQNum, 3);
            run.form.PackedNumberText = "0102";
            user::pick(run.form, run.form.ListName, 0);
        },
        [](test::EditorRun& run) { user::click(run.form, run.form.cmdSaveNum); }, 1);
}

}  // namespace
}  // namespace kalco
