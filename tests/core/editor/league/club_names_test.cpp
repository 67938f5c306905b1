#include "editor/league/club_names.h"

#include <gtest/gtest.h>

#include "core/editor/league/league_run.h"

namespace kalco {
namespace {

using namespace league_tests;
using test::letter_code;
using test::same_image;

TEST(ClubNames, AreShownWithTheirPadding) {
    LeagueRun run;
    EXPECT_EQ(run.form.lblNameML.caption(), "");
    for (int club = 0; club < 32; ++club) {
        run.pick(run.form.cboSqNC, club);
        EXPECT_EQ(run.form.lblNameML.caption(), shown_club_name(club));
    }
    run.pick(run.form.cboSqNC, 0);
    EXPECT_EQ(run.form.lblNameML.caption(), "Manch");
    run.pick(run.form.cboSqNC, 18);
    EXPECT_EQ(run.form.lblNameML.caption(), "Inter");
    run.pick(run.form.cboSqNC, 20);
    EXPECT_EQ(run.form.lblNameML.caption(), "Milan  ");
    // The blank of one byte counts as a pair, and the odd byte behind it as another blank.
    run.pick(run.form.cboSqNC, 6);
    EXPECT_EQ(run.form.lblNameML.caption(), "Aston V ");
}

TEST(ClubNames, DoubleOnlyTheFirstBlank) {
    LeagueRun run;
    run.disc.put(2002769, letter_code("A B C") + test::zeroes(2));
    run.pick(run.form.cboSqNC, 0);
    EXPECT_EQ(run.form.lblNameML.caption(), "A B   ");
}

TEST(ClubNames, ThatBeginWithABlankFailAfterThePoolWasSwitchedOn) {
    LeagueRun run;
    run.disc.put(2002769, " " + letter_code("Manc"));
    EXPECT_EQ(test::error_of([&] { user::pick(run.form, run.form.cboSqNC, 0); }), error::invalid_call);
    EXPECT_TRUE(run.form.listNC.enabled());
    EXPECT_EQ(run.form.lblNameML.caption(), "");
}

// Renaming from the boxes of the link.

struct LinkedRename {
    int club;
    std::string long_text;
    std::string short_text;
    std::string coded;
};

void expect_linked_rename(const LinkedRename& rename) {
    LeagueRun run;
    run.form.listDefault.select(rename.club);
    run.form.txtNmLgML.set_text(rename.long_text);
    run.form.txtNmShML.set_text(rename.short_text);
    SAVE_NAME_ML2(run.form);
    run.form.image.commit();
    const auto cleared = static_cast<std::size_t>(printed_club(rename.club).full_width_bytes);
    const std::string expected =
        renamed(test::filled_image(), rename.club, {rename.short_text, cleared, rename.coded, rename.long_text});
    EXPECT_TRUE(same_image(run.disc.bytes, expected)) << rename.club << ' ' << rename.long_text;
    EXPECT_EQ(run.form.txtNmLgML.text(), rename.long_text);
    EXPECT_TRUE(run.told().empty());
}

TEST(ClubNamesOfALink, WriteEveryPlaceOfEveryClub) {
    for (int club = 0; club < 32; ++club) {
        const auto letters = static_cast<std::size_t>(printed_club(club).full_width_bytes / 2);
        expect_linked_rename(
            {club, "ABCDEFGHIJKLMNOPQR", "xyz", letter_code(std::string("Abcdefghijklmnopqr").substr(0, letters))});
    }
}

TEST(ClubNamesOfALink, GetCapitalInitialsAsFarAsTheLengthAllows) {
    expect_linked_rename({6, "real madrid", "rma", letter_code("Real Ma")});
    expect_linked_rename({16, "ac milan club", "acm", letter_code("Ac Milan")});
    expect_linked_rename({25, "ab cd ef", "abc", letter_code("Ab Cd ef")});
}

TEST(ClubNamesOfALink, OfRomaHaveFourLetters) {
    expect_linked_rename({24, "milano", "mil", letter_code("Mila")});
}

TEST(ClubNamesOfALink, AreTrimmedAfterTheCut) {
    expect_linked_rename({24, "abc def", "abc", letter_code("Abc")});
    // An empty first word leaves the text as it is, and its blank counts for the cut.
    expect_linked_rename({24, " abcdef", "abc", letter_code("abc")});
    expect_linked_rename({24, "    abcdef", "abc", ""});
}

TEST(ClubNamesOfALink, OfTheLastClubClearOneByteMore) {
    LeagueRun run;
    run.disc.put(2002327, "X");
    run.form.listDefault.select(31);
    run.form.txtNmLgML.set_text("Ab");
    run.form.txtNmShML.set_text("Abc");
    SAVE_NAME_ML2(run.form);
    run.form.image.commit();
    EXPECT_EQ(run.disc.at(2002317, 11), letter_code("Ab") + test::zeroes(7));
}

TEST(ClubNamesOfALink, KeepThreeLettersInACopyOfThree) {
    LeagueRun run;
    run.form.listDefault.select(18);
    run.form.txtNmLgML.set_text("Internazionale");
    run.form.txtNmShML.set_text("int");
    SAVE_NAME_ML2(run.form);
    run.form.image.commit();
    EXPECT_EQ(run.disc.at(2830269, 3), "INT");
    EXPECT_EQ(run.disc.at(4823025, 3), "INT");
    EXPECT_EQ(run.disc.at(5651565, 3), "INT");
    EXPECT_EQ(run.disc.at(2004133, 7), "INTERNA");
}

TEST(ClubNamesOfALink, WriteTheShortTextAtTheLengthItHas) {
    expect_linked_rename({3, "abcd", "liverpool", letter_code("Abcd")});
    expect_linked_rename({3, "abcd", "li", letter_code("Abcd")});
    LeagueRun run;
    run.form.listDefault.select(3);
    run.form.txtNmLgML.set_text("abcd");
    run.form.txtNmShML.set_text("liverpool");
    SAVE_NAME_ML2(run.form);
    run.form.image.commit();
    EXPECT_EQ(run.disc.at(2005109, 9), "LIVERPOOL");
    EXPECT_EQ(run.disc.at(2005117, 3), "LRS") << "the last letter, over Arsenal's first";
}

TEST(ClubNamesOfALink, CapitaliseAccentsInTheCopies) {
    const std::string coded = letter_code("For") + letter_code("ll");
    expect_linked_rename({0, "forl\xEC", "for", coded});
}

TEST(ClubNamesOfALink, RepeatTheCodeBeforeALetterWithoutOne) {
    LeagueRun run;
    run.form.txtNmShML.set_text("abc");
    const auto rename = [&run](int club, const std::string& text) {
        run.form.listDefault.select(club);
        run.form.txtNmLgML.set_text(text);
        SAVE_NAME_ML2(run.form);
        run.form.image.commit();
        return run.disc.at(printed_club(club).full_width_position, 10);
    };
    // Nothing was coded before.
    EXPECT_EQ(rename(0, "12b"), letter_code("b") + test::zeroes(8));
    EXPECT_EQ(rename(1, "3r4"), letter_code("brr") + test::zeroes(4));
    EXPECT_EQ(rename(2, "a 1b"), letter_code("A  b") + test::zeroes(4));
}

// Renaming from an imported team.

struct ImportedRename {
    int club;
    std::string long_text;
    std::size_t cleared;
    std::string coded;
};

void expect_imported_rename(const ImportedRename& rename) {
    LeagueRun run;
    run.pick(run.form.cboSqNC, rename.club);
    run.form.txtSqHEX.set_text(rename.long_text);
    run.form.txtSqDec.set_text("Copied Text Of Twenty");
    run.form.txtSqShort.set_text("new");
    run.form.txtSQ.set_text("not used");
    SAVE_NAME_ML(run.form);
    run.form.image.commit();
    const std::string expected =
        renamed(test::filled_image(), rename.club, {"new", rename.cleared, rename.coded, "Copied Text Of Twenty"});
    EXPECT_TRUE(same_image(run.disc.bytes, expected)) << rename.club << ' ' << rename.long_text;
}

TEST(ClubNamesOfAnImport, StandAsTheyAreTyped) {
    expect_imported_rename({0, "ROMAx", 0, letter_code("ROMAx")});
    expect_imported_rename({0, "aBcDe", 0, letter_code("aBcDe")});
}

TEST(ClubNamesOfAnImport, ClearTheOldNameOnlyWhenTheyAreShorter) {
    expect_imported_rename({0, "Abcd", 10, letter_code("Abcd")});
    expect_imported_rename({0, "Abcde", 0, letter_code("Abcde")});
    expect_imported_rename({0, "Abcdefgh", 0, letter_code("Abcde")});
    expect_imported_rename({0, "", 10, ""});
}

TEST(ClubNamesOfAnImport, AreMeasuredAgainstTheOldNameWithItsPadding) {
    // "Milan" has seven places: a name of six letters is shorter.
    expect_imported_rename({20, "Abcdef", 14, letter_code("Abcdef")});
    expect_imported_rename({20, "Abcdefg", 0, letter_code("Abcdefg")});
    // With a blank of one byte the old name shows eight places, of which none can be longer.
    expect_imported_rename({6, "Abcdefg", 16, letter_code("Abcdefg")});
}

TEST(ClubNamesOfAnImport, AreCutFirstAndTrimmedThen) {
    expect_imported_rename({0, "Abc  defg", 10, letter_code("Abc")});
    expect_imported_rename({0, "  Abcde", 10, letter_code("Abc")});
    expect_imported_rename({24, "Ab de", 0, letter_code("Ab d")});
}

TEST(ClubNamesOfAnImport, WriteABlankAsOneByte) {
    // The byte behind the coded name keeps what it was.
    expect_imported_rename({0, "Ab cd", 0, letter_code("Ab cd")});
}

TEST(ClubNamesOfAnImport, ClearTheEndOfTheTableWithTheLastClub) {
    expect_imported_rename({31, "Abcde", 0, letter_code("Abcde")});
    expect_imported_rename({31, "Abcd", 10, letter_code("Abcd")});
}

TEST(ClubNamesOfAnImport, WriteAllPlacesOfEveryClub) {
    for (int club = 0; club < 32; ++club) {
        const std::string shown = shown_club_name(club);
        const auto letters = static_cast<std::size_t>(printed_club(club).full_width_bytes / 2);
        const std::string cut = std::string("Abcdefghijklmno").substr(0, letters);
        expect_imported_rename(
            {club, "Abcdefghijklmno", letters < shown.size() ? 2 * shown.size() : 0, letter_code(cut)});
    }
}

}  // namespace
}  // namespace kalco
