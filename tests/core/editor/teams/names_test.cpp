#include "editor/teams/names.h"

#include <gtest/gtest.h>

#include <map>

#include "disc/team_names.h"
#include "support/disc_tables.h"
#include "support/editor_run.h"

namespace kalco {
namespace {

using test::EditorRun;
using test::in_capitals;
using test::put;
using test::same_image;
using test::zeroes;

const std::vector<std::string> name_written{"Nome squadra modificato"};

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The codes that the letter code gives one name after another: a character without a code repeats the last one.
class Coder {
public:
    std::string operator()(const std::string& name) {
        std::string code;
        for (const char c : trimmed(name)) {
            if (const std::string known = test::letter_code(std::string(1, c)); !known.empty()) last_ = known;
            code += last_;
        }
        return code;
    }

private:
    std::string last_;
};

/// What the rename of a team leaves, written down place by place.
std::string renamed(std::string image, int team, const std::string& old_shown, const std::string& full_width,
                    const std::string& code, const std::string& short_name, const std::string& name) {
    const test::PrintedTeam& facts = test::printed_teams[static_cast<std::size_t>(team)];
    put(image, 2005373 - 4 * team, in_capitals(short_name));
    std::size_t fill = 0;
    if (team == 94) {
        put(image, 2002317, zeroes(11));
        fill = 11;
    }
    if (trimmed(full_width).size() < trimmed(old_shown).size()) fill = 2 * old_shown.size();
    if (team == 4) {
        put(image, 2003621, code.substr(0, 4));
        put(image, 2003929, zeroes(std::min<std::size_t>(fill, 6)));
        put(image, 2003929, code.substr(4));
    } else {
        put(image, facts.full_width_position, zeroes(fill));
        put(image, facts.full_width_position, code);
    }
    for (int table = 0; table < 6; ++table) {
        const auto length = static_cast<std::size_t>(facts.lengths[static_cast<std::size_t>(table)]);
        if (length == 0) continue;
        std::string entry = in_capitals(name).substr(0, length);
        entry.resize(length, '\0');
        test::put_user_data(image, test::table_position(team, table), entry);
    }
    return image;
}

/// The text that the selection shows: a blank for every two bytes of padding.
std::string shown_full_width(int team) {
    const std::string name = test::full_width_name(team);
    const std::size_t bytes =
        team == 4 ? 10 : static_cast<std::size_t>(test::printed_teams[static_cast<std::size_t>(team)].full_width_bytes);
    const bool has_blank = name.find(' ') != std::string::npos;
    // The doubled blank counts as a byte more; a last half pair is a blank of its own.
    return name + std::string((bytes + (has_blank ? 1 : 0) + 1) / 2 - name.size(), ' ');
}

class RenameOfEveryTeam : public ::testing::TestWithParam<int> {};

TEST_P(RenameOfEveryTeam, ChangesWhatItMustAndNothingElse) {
    const int team = GetParam();
    EditorRun run;
    Coder coder;
    const std::size_t letters = test::full_width_name(team).size();
    const auto limit = static_cast<std::size_t>(full_width_letters(Team(team)));
    const std::vector<std::string> names{
        std::string(limit, 'Z'),                        // as long as the field takes
        std::string(letters, 'm'),                      // as long as the old one
        std::string("Ab"),                              // shorter
        std::string("A B"),                             // with a blank
        std::string("A  B"),                            // with two
        std::string("X9Y"),                             // a digit repeats the letter before it
        std::string("Q\xE8") + ",r",                    // so do an accent and a comma
        std::string("  p.q "),                          // blanks around it
        std::string(limit, 'w') + std::string(4, 'k'),  // typed beyond the limit
    };
    for (const std::string& name : names) {
        run.disc.bytes = test::filled_image();
        run.choose_team(team);
        const std::string old_shown = run.form.txtSqHEX.text();
        EXPECT_EQ(old_shown, shown_full_width(team));
        run.type(run.form.txtSqHEX, name);
        const std::string typed = name.substr(0, limit);
        ASSERT_EQ(run.form.txtSqHEX.text(), typed);
        run.type(run.form.txtSqShort, "q\xE8zz");
        run.type(run.form.txtSqDec, "lungh\xE0 nome di squadra 9");
        run.click(run.form.cmdName);
        EXPECT_EQ(run.told(), name_written);
        const std::string expected = renamed(test::filled_image(), team, old_shown, typed, coder(typed), "q\xE8z",
                                             "lungh\xE0 nome di squadra 9");
        EXPECT_TRUE(same_image(run.disc.bytes, expected)) << '"' << name << '"';
        EXPECT_EQ(run.form.txtSqShort.text(), "Q\xC8Z");
        EXPECT_EQ(run.form.txtSqDec.text(), "LUNGH\xC0 NOME DI SQUADRA 9");
        EXPECT_EQ(run.form.txtSqHEX.text(), typed);
    }
}

INSTANTIATE_TEST_SUITE_P(Teams, RenameOfEveryTeam, ::testing::Range(0, 95));

TEST(TeamNames, LimitTheFullWidthNameToHalfItsBytes) {
    const std::map<int, int> halves{{8, 4},  {10, 5},  {12, 6},  {14, 7},  {17, 8},
                                    {18, 9}, {19, 10}, {22, 11}, {24, 12}, {26, 13}};
    EditorRun run;
    for (int team = 0; team < 96; ++team) {
        const int bytes = test::printed_teams[static_cast<std::size_t>(team)].full_width_bytes;
        const int limit = team == 4 ? 5 : team == 95 ? 0 : halves.at(bytes);
        EXPECT_EQ(full_width_letters(Team(team)), limit) << team;
        run.choose_team(team);
        EXPECT_EQ(run.form.txtSqHEX.max_length(), limit) << team;
        EXPECT_EQ(run.form.txtSqShort.max_length(), 3) << team;
        EXPECT_EQ(run.form.txtSqDec.max_length(), 0) << team;
    }
    EXPECT_EQ(full_width_letters(Team(-1)), 0);
}

TEST(TeamNames, SetTheLimitWhenTheFieldChanges) {
    EditorRun run;
    EXPECT_EQ(run.form.txtSqShort.max_length(), 0);
    run.choose_team(55);
    EXPECT_EQ(run.form.txtSqHEX.max_length(), 10);
    run.type(run.form.txtSqHEX, "ABCDEFGHIJKL");
    EXPECT_EQ(run.form.txtSqHEX.text(), "ABCDEFGHIJ");
    EXPECT_EQ(run.form.txtSqHEX.max_length(), 10);
    run.click(run.form.txtSqHEX);
    EXPECT_EQ(run.form.txtSqHEX.text(), "ABCDEFGHIJ");
}

TEST(TeamNames, WriteNothingForAnEmptyShortName) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtSqShort, "");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2005373 - 40, 4), std::string("ITA\0", 4));
    run.type(run.form.txtSqShort, "xy");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2005373 - 40, 4), std::string("XYA\0", 4));
}

TEST(TeamNames, AnEmptyFullWidthNameLeavesZeroes) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtSqHEX, "");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), zeroes(10));
    EXPECT_NE(run.disc.at(2003559, 2), zeroes(2)) << "two bytes behind the field were cleared";
}

TEST(TeamNames, ALongerNameLeavesTheOldTail) {
    EditorRun run;
    std::string image = test::filled_image();
    put(image, 2003549, test::letter_code("It") + zeroes(2) + "\x82\x60\x82\x61");
    run.disc.bytes = image;
    run.choose_team(10);
    EXPECT_EQ(run.form.txtSqHEX.text(), "It AB");
    run.type(run.form.txtSqHEX, "Abcde");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("Abcde"));
    // Five characters again, one of them a blank of one byte: nothing clears the byte behind it.
    run.choose_team(10);
    run.type(run.form.txtSqHEX, "A cde");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("A cde") + '\x85');
}

TEST(TeamNames, AnOldBlankMakesTheFillOneByteLonger) {
    EditorRun run;
    std::string image = test::filled_image();
    // Ten bytes with one blank byte decode to six characters: the fill covers twelve bytes.
    put(image, 2003549, test::letter_code("It al") + '\x82' + "@@@");
    run.disc.bytes = image;
    run.choose_team(10);
    ASSERT_EQ(run.form.txtSqHEX.text(), "It al ");
    run.type(run.form.txtSqHEX, "It");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 13), test::letter_code("It") + zeroes(8) + '@');
}

TEST(TeamNames, ASecondSaveMeasuresAgainstTheSelection) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtSqHEX, "Abc");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("Abc") + zeroes(4));
    // As long as the remembered name, longer than the one in the image: no fill.
    run.type(run.form.txtSqHEX, "Abcde");
    run.click(run.form.cmdName);
    run.type(run.form.txtSqHEX, "xyz q");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("xyz q") + '\x85');
}

TEST(TeamNames, DigitsRepeatTheLetterAlsoOfTheNameBefore) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtSqHEX, "2R");
    run.click(run.form.cmdName);
    // Nothing was coded before: the digit has no code at all.
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("R") + zeroes(8));
    run.choose_team(11);
    run.type(run.form.txtSqHEX, "2Ab3,");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003537, 10), test::letter_code("RAbbb"));
}

TEST(TeamNames, AreTrimmedOnceMoreWhenTheyAreCoded) {
    EditorRun run;
    run.choose_team(10);
    // The digit has no code yet, so that the code begins with the blank.
    run.type(run.form.txtSqHEX, "2 AB");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2003549, 10), test::letter_code("AB") + zeroes(6));
    run.choose_team(10);
    EXPECT_EQ(run.form.txtSqHEX.text(), "AB   ");
}

TEST(TeamNames, WriteAShortNameOfAFileWhole) {
    EditorRun run;
    run.choose_team(10);
    run.form.txtSqShort.set_text("romani");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2005333, 8), std::string("ROMANII\0", 8)) << "over the letters of the team below";
}

TEST(TeamNames, CutTheTableNameToEachTable) {
    EditorRun run;
    run.choose_team(1);
    run.type(run.form.txtSqDec, "abcdefghijklmno");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2830933, 8), std::string("ABCDEFG\0", 8));
    EXPECT_EQ(run.disc.at(4824009, 12), std::string("ABCDEFGHIJK\0", 12));
    run.choose_team(1);
    EXPECT_EQ(run.form.txtSqDec.text(), "ABCDEFG");
    run.type(run.form.txtSqDec, "xy");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(4824009, 12), "XY" + zeroes(10));
}

TEST(TeamNames, WriteTheTablesInTheirOrder) {
    EditorRun run;
    run.choose_team(63);
    run.log.clear();
    run.click(run.form.cmdName);
    std::vector<std::int64_t> positions;
    for (const auto& write : run.log) positions.push_back(write.position);
    const std::vector<std::int64_t> expected{2005121, 2002769, 2830417, 2830417, 4823181, 4823181, 5652025,
                                             5652025, 1882285, 1882285, 2004329, 2004329, 1012973, 1012973};
    EXPECT_EQ(positions, expected);
}

TEST(TeamNames, WriteTheSplitT2EntryInItsTurn) {
    EditorRun run;
    run.choose_team(5);
    run.type(run.form.txtSqDec, "abcdefgh");
    run.log.clear();
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(4823669, 4), "ABCD");
    EXPECT_EQ(run.disc.at(4823977, 4), std::string("EFG\0", 4));
    ASSERT_GE(run.log.size(), 8U);
    EXPECT_EQ(run.log[4].position, 4823669);
    EXPECT_EQ(run.log[4].bytes, zeroes(4));
    EXPECT_EQ(run.log[5].bytes, "ABCD");
    EXPECT_EQ(run.log[6].position, 4823977);
    EXPECT_EQ(run.log[6].bytes, zeroes(3));
    EXPECT_EQ(run.log[7].bytes, "EFG");
    run.type(run.form.txtSqDec, "ab");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(4823669, 4), "AB" + zeroes(2));
    EXPECT_EQ(run.disc.at(4823977, 4), zeroes(4));
}

TEST(TeamNames, ClearOneByteMoreForTheLastClub) {
    EditorRun run;
    run.choose_team(94);
    run.type(run.form.txtSqHEX, "Zzzzz");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.at(2002317, 12),
              test::letter_code("Zzzzz") + '\0' + test::bytes_at(test::filled_image(), 2002328, 1));
    EXPECT_NE(test::bytes_at(test::filled_image(), 2002328, 1), zeroes(1));
}

class SplitFullWidthName : public ::testing::TestWithParam<std::string> {};

TEST_P(SplitFullWidthName, FailsBelowTwoLettersBehindTheFirstPieceAndTheFill) {
    EditorRun run;
    run.choose_team(4);
    ASSERT_EQ(run.form.txtSqHEX.text(), "Portu");
    run.type(run.form.txtSqHEX, GetParam());
    run.type(run.form.txtSqDec, "never");
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdName); }), error::invalid_call);
    std::string expected = test::filled_image();
    put(expected, 2003621, test::letter_code(GetParam()));
    put(expected, 2003929, zeroes(6));
    EXPECT_TRUE(same_image(run.disc.bytes, expected));
    EXPECT_TRUE(run.told().empty());
}

INSTANTIATE_TEST_SUITE_P(Short, SplitFullWidthName, ::testing::Values("", "Q", "."));

TEST(TeamNames, DecodeTheSplitNamePieceByPiece) {
    std::string image = test::filled_image();
    put(image, 2003621, test::letter_code("A ") + '\x82');
    put(image, 2003929, test::letter_code("B C") + '\x82');
    EditorRun run(image);
    run.choose_team(4);
    // Each piece has its own blank and its own last half pair.
    EXPECT_EQ(run.form.txtSqHEX.text(), "A  B C ");
    EXPECT_EQ(run.form.txtSQ.text(), "A  B C ");
}

TEST(TeamNames, ReopenTheImageAfterTheMessage) {
    EditorRun run;
    run.choose_team(10);
    run.type(run.form.txtSqDec, "nuovo");
    run.disc.flushes = 0;
    run.click(run.form.cmdName);
    EXPECT_EQ(run.disc.flushes, 1);
    EXPECT_TRUE(run.form.image.is_open());
    ASSERT_EQ(run.platform.messages.size(), 1U);
    EXPECT_EQ(run.platform.messages[0].icon, Icon::information);
    EXPECT_EQ(run.platform.messages[0].buttons, Buttons::ok);
    EXPECT_EQ(run.NAMES_GIOC_NAZ, 0);
    run.form.ImagePath.clear();
    EXPECT_EQ(test::error_of([&] { user::click(run.form, run.form.cmdName); }), error::path_access);
    EXPECT_EQ(run.told().size(), 2U);
}

TEST(TeamNames, AreNotSelectedAgainAfterTheSave) {
    EditorRun run;
    run.choose_team(10);
    run.choose_player(7);
    run.type(run.form.txtSqHEX, "abc");
    run.click(run.form.cmdName);
    EXPECT_EQ(run.form.txtSqHEX.text(), "abc");
    EXPECT_EQ(run.form.listDat.row(), 7);
    run.choose_team(10);
    EXPECT_EQ(run.form.txtSqHEX.text(), "abc  ");
}

TEST(TeamNames, DoNothingWithoutATeam) {
    EditorRun run;
    EXPECT_EQ(user::click(run.form, run.form.cmdName), user::Outcome::disabled);
    run.choose_team(10);
    run.click(run.form.cmdNew);
    run.log.clear();
    run.click(run.form.cmdName);
    EXPECT_TRUE(run.log.empty());
    EXPECT_TRUE(run.told().empty());
    run.choose_team(95);
    EXPECT_EQ(user::click(run.form, run.form.cmdName), user::Outcome::disabled);
}

TEST(TeamNames, OnlyTheFirstTableReachesTheScreen) {
    std::string image = test::filled_image();
    put(image, 4824021, "T2 TEXT");
    EditorRun run(image);
    run.choose_team(0);
    EXPECT_EQ(run.form.txtSqDec.text(), test::table_name(0));
    put(run.disc.bytes, 2830941, "T1 TEXT");
    run.choose_team(0);
    EXPECT_EQ(run.form.txtSqDec.text(), "T1 TEXT");
}

TEST(TeamNames, StopAtEveryFailingWrite) {
    for (const int team : {4, 5, 10, 60, 94}) {
        const auto prepare = [team](EditorRun& run) {
            run.choose_team(team);
            run.type(run.form.txtSqHEX, "Abc");
            run.type(run.form.txtSqDec, "nuovo");
        };
        test::expect_every_failing_write_to_stop(
            prepare, [](EditorRun& run) { user::click(run.form, run.form.cmdName); }, 5);
    }
}

}  // namespace
}  // namespace kalco
