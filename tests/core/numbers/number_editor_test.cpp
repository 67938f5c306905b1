#include "numbers/number_editor.h"

#include <gtest/gtest.h>

#include "codec/hextext.h"
#include "numbers/number_record.h"
#include "players/roster.h"
#include "runtime_error.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using Entries = std::vector<std::string>;

/// An image whose nations have the numbers 1 to 23 in roster order, and whose clubs and default team 31 to 53.
std::string numbered_image() {
    std::string image = test::filled_image();
    Entries national;
    Entries club;
    for (int player = 1; player <= 23; ++player) {
        national.push_back(number_entry(player));
        club.push_back(number_entry(player + 30));
    }
    for (int row = 0; row < 87; ++row) {
        const std::string digits = row < 54 ? pack_national_numbers(national) : pack_club_numbers(club);
        test::put(image, number_field(row).position(), bytes_of_digits(digits));
    }
    return image;
}

class NumberTab : public test::EditorRun {
public:
    explicit NumberTab(const std::string& image = numbered_image()) : EditorRun(image) {
        user::select_tab(form, tab::numbers);
    }

    void choose(int row) { EXPECT_EQ(user::pick(form, form.cboSQNum, row), user::Outcome::done); }
    void choose_player_of_tab(int row) { EXPECT_EQ(user::pick(form, form.ListName, row), user::Outcome::done); }
    void give(int row, const std::string& number) {
        choose_player_of_tab(row);
        type(form.txtNumMod, number);
        click(form.cmdModNum);
    }
    void import_line(const std::string& contents) { import(form.cmdImpNum, contents); }
    std::vector<int> cells_in_use() {
        std::vector<int> cells;
        for (int number = 1; number <= 99; ++number) {
            if (form.lblNum(number).in_use()) cells.push_back(number);
        }
        return cells;
    }
    std::string record(int row) const {
        const Pieces field = number_field(row);
        return disc.at(field.position(), static_cast<std::size_t>(field.bytes()));
    }
};

const std::string saved = "Salvataggio effettuato con successo";

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
            const std::string name = row == 86 ? test::player_name(95, DefaultSlots[static_cast<std::size_t>(player)])
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

TEST(NumberTabChoice, AClubWithANumberAbove99IsRefused) {
    std::string image = numbered_image();
    test::put(image, number_field(60).position() + 7, "\x63");
    test::put(image, number_field(61).position() + 7, "\x62");
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
    test::put(image, number_field(54).position(), std::string("\x04\x04", 2));
    NumberTab tab(image);
    tab.choose(54);
    tab.give(0, "77");
    EXPECT_FALSE(tab.form.lblNum(5).in_use()) << "though the second player still wears it";
    EXPECT_EQ(tab.form.ListNum.item(1), "05");
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
        const char first = expected[static_cast<std::size_t>(number_field(row).position() - 1)];
        const char low = row < 54 ? static_cast<char>((first & 0xE0) | 28) : static_cast<char>(28);
        test::put(expected, number_field(row).position(), std::string(1, low));
        EXPECT_TRUE(test::same_image(tab.disc.bytes, expected)) << row;
        EXPECT_EQ(tab.disc.flushes, 1);
    }
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
    test::put(expected, number_field(10).position(), packed);
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

TEST(NumbersFile, CarriesTheListUnderThePrefix) {
    NumberTab tab;
    tab.choose(0);
    tab.give(0, "30");
    tab.click(tab.form.cmdExpNum);
    EXPECT_EQ(tab.told(), (Entries{"File creato con successo"}));
    std::string line = "30";
    for (int player = 2; player <= 23; ++player) line += number_entry(player);
    const std::string name = test::in_capitals(test::full_width_name(0));
    std::string padded = name;
    padded.resize(tab.form.txtSqSel.text().size(), ' ');
    EXPECT_EQ(tab.home.read("N\xC2\xB0 Maglia/NAZ_" + padded + ".num"), line + "\r\n");
    tab.choose(86);
    tab.click(tab.form.cmdExpNum);
    EXPECT_TRUE(tab.home.has("N\xC2\xB0 Maglia/ML_.num"));
}

TEST(NumbersImport, RewritesTheRecord) {
    NumberTab tab;
    tab.choose(12);
    std::string line;
    for (int player = 23; player >= 1; --player) line += number_entry(player);
    tab.import_line(line + "\r\nsecond line");
    EXPECT_EQ(tab.told(), (Entries{saved}));
    EXPECT_EQ(tab.form.ListNum.item(0), "23");
    EXPECT_EQ(tab.form.ListNum.item(22), "01");
    std::string expected = numbered_image();
    test::put(expected, number_field(12).position(), bytes_of_digits(tab.form.PackedNumberText));
    EXPECT_TRUE(test::same_image(tab.disc.bytes, expected));
    EXPECT_EQ(tab.disc.writes, 23);
}

TEST(NumbersImport, StopsAt33WithTheFirstNumbersWritten) {
    NumberTab tab;
    tab.choose(12);
    std::string line;
    for (int player = 1; player <= 23; ++player) line += player == 10 ? "33" : number_entry(33 - player);
    tab.import_line(line);
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Entries{"Impossibile importare numeri superiori\r\n      al 32 per le squadre nazionali"}));
    EXPECT_EQ(tab.disc.writes, 9);
    EXPECT_EQ(tab.disc.flushes, 0) << "the image is not reopened on this path";
    for (int player = 1; player <= 23; ++player) {
        EXPECT_EQ(tab.form.ListNum.item(player - 1), number_entry(player < 10 ? 33 - player : player)) << player;
    }
}

TEST(NumbersImport, OtherFailuresAreSilent) {
    for (const char* contents : {"010203zz05", "0102", "", "zz"}) {
        NumberTab tab;
        tab.choose(12);
        tab.import_line(contents);
        EXPECT_TRUE(tab.told().empty()) << contents;
        EXPECT_EQ(tab.disc.flushes, 0);
    }
    NumberTab tab;
    tab.choose(12);
    tab.platform.choices = {tab.home.path("missing.num")};
    tab.click(tab.form.cmdImpNum);
    EXPECT_TRUE(tab.told().empty());
    tab.platform.choices = {""};
    tab.click(tab.form.cmdImpNum);
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.platform.dialogs.back().filter, "*.num|*.num");
}

TEST(NumbersImport, ThePrefixPlaysNoPart) {
    NumberTab tab;
    tab.choose(54);
    tab.import_line("4531323334353637383940414243444647484950515253");
    EXPECT_EQ(tab.record(54).substr(0, 2), std::string("\x2C\x1E", 2));
}

}  // namespace
}  // namespace kalco
