#include <gtest/gtest.h>

#include "core/editor/numbers/number_tab.h"
#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

using namespace number_tests;

TEST(NumbersFile, CarriesTheListUnderThePrefix) {
    NumberTab tab;
    tab.choose(0);
    tab.give(0, "30");
    tab.click(tab.form.cmdExpNum);
    EXPECT_EQ(tab.told(), (Entries{exported}));
    std::string line = "30";
    for (int player = 2; player <= 23; ++player) line += number_entry(player);
    const std::string name = test::in_capitals(test::full_width_name(0));
    std::string padded = name;
    padded.resize(tab.form.txtSqSel.text().size(), ' ');
    EXPECT_EQ(tab.home.read(folder + "/NAZ_" + padded + ".num"), line + "\r\n");
    tab.choose(86);
    tab.click(tab.form.cmdExpNum);
    EXPECT_TRUE(tab.home.has(folder + "/ML_.num"));
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
    test::put(expected, number_field(TeamRow(12)).position(), bytes_of_digits(tab.form.PackedNumberText));
    EXPECT_TRUE(test::same_image(tab.disc.bytes, expected));
    EXPECT_EQ(tab.log.size(), 23U);
    EXPECT_EQ(tab.disc.writes, 1) << "they are one save";
}

TEST(NumbersImport, StopsAt33WithTheFirstNumbersWritten) {
    NumberTab tab;
    tab.choose(12);
    std::string line;
    for (int player = 1; player <= 23; ++player) line += player == 10 ? "33" : number_entry(33 - player);
    tab.import_line(line);
    EXPECT_EQ(tab.platform.messages.back().icon, Icon::stop);
    EXPECT_EQ(tab.told(), (Entries{"Impossibile importare numeri superiori\r\n      al 32 per le squadre nazionali"}));
    EXPECT_EQ(tab.log.size(), 9U);
    EXPECT_EQ(tab.disc.flushes, 1) << "they stay";
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

TEST(NumbersFile, ReplacesAFileOfItsName) {
    NumberTab tab;
    tab.choose(86);
    tab.click(tab.form.cmdExpNum);
    tab.home.write(folder + "/ML_.num", std::string(500, 'x'));
    tab.click(tab.form.cmdExpNum);
    EXPECT_EQ(tab.home.read(folder + "/ML_.num"), joined(rising_from(31)) + "\r\n");
    EXPECT_EQ(tab.told(), (Entries{exported, exported}));
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(NumbersFile, ThatCannotBeWrittenEndsTheProgram) {
    NumberTab tab;
    tab.home.write(folder, "a file where the folder should be");
    tab.choose(86);
    EXPECT_EQ(test::error_of([&] { user::click(tab.form, tab.form.cmdExpNum); }), error::path_access);
    EXPECT_TRUE(tab.told().empty());
}

TEST(NumbersImport, OfEveryRowWritesItsRecordAndNothingElse) {
    for (int row = 0; row < 87; ++row) {
        NumberTab tab;
        tab.choose(row);
        Entries numbers = rising_from(row < 54 ? 10 : 70);
        std::swap(numbers[0], numbers[22]);
        tab.import_line(joined(numbers) + "\r\n");
        EXPECT_EQ(tab.told(), (Entries{saved})) << row;
        EXPECT_EQ(tab.form.ListNum.items(), numbers) << row;
        const std::string digits = row < 54 ? pack_national_numbers(numbers) : pack_club_numbers(numbers);
        EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image(row, bytes_of_digits(digits)))) << row;
        EXPECT_EQ(tab.log.size(), 23U) << row;
        EXPECT_EQ(tab.disc.flushes, 1) << row;
    }
}

TEST(NumbersImport, AClubsFileFitsANationUpTo32) {
    NumberTab tab;
    tab.choose(54);
    tab.click(tab.form.cmdExpNum);
    const std::string padded = test::in_capitals(tab.form.txtSqSel.text());
    const std::string line = tab.home.read(folder + "/ML_" + padded + ".num");
    EXPECT_EQ(line, joined(rising_from(31)) + "\r\n");
    tab.told();
    tab.choose(5);
    tab.import_line(line);
    EXPECT_EQ(tab.told(), (Entries{"Impossibile importare numeri superiori\r\n      al 32 per le squadre nazionali"}));
    Entries expected = rising_from(1);
    expected[0] = "31";
    expected[1] = "32";
    EXPECT_EQ(tab.form.ListNum.items(), expected);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image(5, bytes_of_digits(pack_national_numbers(expected)))));
    tab.choose(86);
    tab.import_line(line);
    EXPECT_EQ(tab.told(), (Entries{saved}));
}

TEST(NumbersImport, AClubTakes33) {
    NumberTab tab;
    tab.choose(60);
    tab.import_line(joined(rising_from(33)));
    EXPECT_EQ(tab.told(), (Entries{saved}));
    EXPECT_EQ(tab.form.ListNum.items(), rising_from(33));
}

TEST(NumbersImport, AShortLineWritesWhatItHas) {
    NumberTab tab;
    tab.choose(12);
    Entries numbers = rising_from(10);
    numbers.pop_back();
    tab.import_line(joined(numbers));
    EXPECT_TRUE(tab.told().empty());
    EXPECT_EQ(tab.log.size(), 22U);
    EXPECT_EQ(tab.disc.flushes, 1);
    EXPECT_EQ(tab.form.ListNum.item(21), "31");
    EXPECT_EQ(tab.form.ListNum.item(22), "") << "the entry that the line lacks";
    numbers.push_back("23");
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image(12, bytes_of_digits(pack_national_numbers(numbers)))));
}

TEST(NumbersImport, NumberZeroOfAClubShiftsItsRecord) {
    NumberTab tab;
    tab.choose(70);
    Entries numbers = rising_from(31);
    numbers[3] = "00";
    tab.import_line(joined(numbers));
    EXPECT_EQ(tab.told(), (Entries{saved}));
    std::string bytes;
    for (int player = 0; player < 23; ++player) {
        bytes += player == 3 ? "\xFF\xFF\xFF\xFF" : std::string(1, static_cast<char>(30 + player));
    }
    ASSERT_EQ(bytes.size(), 26U);
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image(70, bytes)));
    EXPECT_EQ(tab.form.cboSQNum.row(), -1) << "the numbers that now stand there are refused";
    EXPECT_EQ(tab.form.ListNum.items(), numbers);
}

TEST(NumbersImport, NumbersWithABlankCount) {
    NumberTab tab;
    tab.choose(12);
    tab.import_line(" 9" + joined(rising_from(10)));
    EXPECT_EQ(tab.told(), (Entries{saved}));
    EXPECT_EQ(tab.form.ListNum.items(), rising_from(9));
}

TEST(NumbersImport, FailuresOfTheImageAreSilentAndLeaveIt) {
    NumberTab tab;
    tab.choose(12);
    tab.disc.failing_write = 1;
    tab.import_line(joined(rising_from(10)));
    EXPECT_TRUE(tab.told().empty());
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image()));

    tab.flush_failure = error::device_io;
    tab.import_line(joined(rising_from(10)));
    EXPECT_TRUE(tab.told().empty());
    EXPECT_TRUE(test::same_image(tab.disc.bytes, numbered_image()));

    tab.flush_failure = 0;
    tab.import_line(joined(rising_from(10)));
    EXPECT_EQ(tab.told(), (Entries{saved}));
}

}  // namespace
}  // namespace kalco
