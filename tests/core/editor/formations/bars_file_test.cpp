#include "editor/formations/bars_file.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"
#include "disc/codec/hextext.h"
#include "disc/formation.h"

namespace kalco {
namespace {

using namespace formation_tests;

using Texts = std::vector<std::string>;

const std::string folder = "Moduli&Barre";
const std::string question =
    "S\xEC = Importa barre & formazione\r\nNo = Importa solo Barre\r\nAnnulla = Importa solo formazione";
const std::string good_line = "0102030405"
                              "0203040506070809"
                              "0A0B"
                              "0102030405060708090A"
                              "0B0C0D0E0F1011121314";

std::string record_line(int row) {
    return hex_digits(bytes_at(filled_image(), printed_bars(row)) + bytes_at(filled_image(), printed_formation(row)));
}

/// 0 for a pair that is not two hexadecimal digits.
int pair_value(const std::string& pair) {
    int value = 0;
    for (const char c : pair) {
        const auto digit = std::string("0123456789ABCDEF").find(static_cast<char>(std::toupper(c)));
        if (digit == std::string::npos) return 0;
        value = value * 16 + static_cast<int>(digit);
    }
    return value;
}

std::string bytes_of_line(const std::string& digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) bytes += static_cast<char>(pair_value(digits.substr(i, 2)));
    return bytes;
}

/// What an import of the line into the row leaves, worked out from the two ends of the line.
std::string imported(std::string image, int row, const std::string& line, Answer answer) {
    if (answer != Answer::cancel) put(image, printed_bars(row), bytes_of_line(line.substr(0, 10)));
    if (answer == Answer::no) return image;
    const std::string bytes = bytes_of_line(line.size() > 60 ? line.substr(line.size() - 60) : line);
    if (row == 32) {
        put(image, 2304661, bytes.substr(0, 20));
        put(image, 2304985, bytes.size() > 10 ? bytes.substr(bytes.size() - 10) : bytes);
    } else {
        put(image, printed_formation(row)[0].position, bytes);
    }
    return image;
}

void import(FormationTab& tab, const std::string& contents, Answer answer) {
    tab.platform.choices.push_back(tab.home.write("x.bfr", contents));
    tab.platform.answers.push_back(answer);
    tab.click(tab.form.cmdImport);
}

TEST(BarsExport, WritesBarsAndFormationAsOneLine) {
    for (const int row : {0, 3, 32, 60, 85}) {
        FormationTab tab;
        tab.choose(row);
        tab.click(tab.form.cmdExport);
        const std::string name = row == 0    ? "IRELAND"
                                 : row == 3  ? "ENGLAND"
                                 : row == 32 ? "EGYPT"
                                 : row == 60 ? "ASTONVI"
                                             : "BOCAJ";
        EXPECT_EQ(tab.home.read(folder + '/' + name + ".bfr"), record_line(row) + "\r\n") << row;
        EXPECT_EQ(tab.told(), Texts{exported});
        EXPECT_EQ(tab.form.SelectedMarker, 11);
        EXPECT_EQ(tab.disc.writes, 0);
        EXPECT_EQ(tab.disc.flushes, 0);
    }
}

TEST(BarsExport, WritesWhatTheTabShows) {
    std::string image = filled_image();
    put(image, printed_bars(10), bytes_of_digits("FF05100A00"));
    FormationTab tab(image);
    tab.choose(10);
    tab.click(tab.form.cmdPiu(2));
    tab.pick(tab.form.cboMod, 15);
    tab.click(tab.form.lblGioc(2));
    tab.click(tab.form.cmdRight);
    tab.home.write("old", "");
    tab.click(tab.form.cmdExport);
    // A bar shows its stored number until it is stepped itself.
    EXPECT_EQ(tab.home.read(folder + "/ITALY.bfr"), "FF06100A00"
                                                    "0203060708090B0F1113"
                                                    "0A09090C0C12121E2B2B"
                                                    "20344811572840342642\r\n");
    EXPECT_TRUE(same_image(tab.disc.bytes, image));
    // A second export replaces the first.
    tab.choose(10);
    tab.click(tab.form.cmdExport);
    EXPECT_EQ(tab.home.read(folder + "/ITALY.bfr").size(), 72U);
}

TEST(BarsExport, CountsBarsThatAreNotShownAsZero) {
    FormationTab tab;
    tab.platform.choices.emplace_back("");
    tab.click(tab.form.cmdOpen);
    tab.choose(10);
    tab.click(tab.form.cmdExport);
    EXPECT_EQ(tab.home.read(folder + "/ITALY.bfr"), "0000000000" + record_line(10).substr(10) + "\r\n");
}

TEST(BarsExport, IsShorterForUnknownRoles) {
    for (const std::size_t unknown : {1U, 4U, 10U}) {
        Formation record = record_of_row(10);
        for (std::size_t i = 0; i < unknown; ++i) record.roles[i] = 0x7F;
        std::string image = filled_image();
        put(image, printed_formation(10), pack_formation(record));
        FormationTab tab(image);
        tab.choose(10);
        tab.click(tab.form.cmdExport);
        const std::string line = record_line(10).substr(0, 10) + hex_digits(pack_formation(record)).substr(2 * unknown);
        EXPECT_EQ(tab.home.read(folder + "/ITALY.bfr"), line + "\r\n");
        ASSERT_EQ(line.size(), 70 - 2 * unknown);
        // Back into another team both ends are misread.
        tab.choose(20);
        tab.platform.choices.push_back(tab.home.path() + '/' + folder + "/ITALY.bfr");
        tab.platform.answers.push_back(Answer::yes);
        tab.click(tab.form.cmdImport);
        EXPECT_TRUE(same_image(tab.disc.bytes, imported(image, 20, line, Answer::yes)));
        if (unknown == 1) {
            // The record begins with the last bar.
            EXPECT_EQ(tab.disc.at(printed_formation(20)[0].position, 1), bytes_of_digits(line.substr(8, 2)));
        }
    }
}

TEST(BarsExport, NamesTheFileAsTheTextStandsInCapitals) {
    FormationTab tab;
    tab.choose(10);
    for (const auto& [typed, name] : std::vector<std::pair<std::string, std::string>>{
             {"Ita ly  ", "ITA LY  .bfr"}, {"citt\xE0", "CITT\xC3\x80.bfr"}, {"", ".bfr"}, {"..", "...bfr"}}) {
        EXPECT_EQ(user::type(tab.form, tab.form.txtSqHEX2, typed), user::Outcome::done);
        tab.click(tab.form.cmdExport);
        EXPECT_TRUE(tab.home.has(folder + '/' + name)) << typed;
    }
}

TEST(BarsExport, RefusesANameThatIsNoFileName) {
    for (const char character : std::string("\\/:*?\"<>|")) {
        FormationTab tab;
        tab.choose(10);
        EXPECT_EQ(user::type(tab.form, tab.form.txtSqHEX2, std::string("a") + character + "b"), user::Outcome::done);
        EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdExport); }), 52);
        EXPECT_EQ(tab.told(), Texts{});
    }
}

TEST(BarsExport, FailsWhenTheFolderCantBeMadeOrWritten) {
    FormationTab tab;
    tab.choose(10);
    tab.home.write(folder, "a file in the folder's place");
    EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdExport); }), 75);
    EXPECT_EQ(tab.told(), Texts{});
}

TEST(BarsFile, IsOffForTheDefaultTeamAndWithoutATeam) {
    FormationTab tab;
    cmdExport_Click(tab.form);
    cmdImport_Click(tab.form);
    tab.choose(86);
    EXPECT_TRUE(tab.refuses(tab.form.cmdExport));
    EXPECT_TRUE(tab.refuses(tab.form.cmdImport));
    cmdExport_Click(tab.form);
    cmdImport_Click(tab.form);
    EXPECT_FALSE(tab.home.has(folder));
    EXPECT_EQ(tab.platform.dialogs.size(), 1U);  // the one of the start
    EXPECT_EQ(tab.told(), Texts{});
    EXPECT_EQ(tab.disc.writes, 0);
}

struct ImportCase {
    int row;
    Answer answer;
};

class BarsImport : public ::testing::TestWithParam<ImportCase> {};

TEST_P(BarsImport, WritesWhatWasAnsweredAndNothingElse) {
    const auto [row, answer] = GetParam();
    FormationTab tab;
    tab.choose(row);
    tab.click(tab.form.lblGioc(9));
    tab.pick(tab.form.cboMod, 1);
    import(tab, good_line + "\r\n", answer);
    EXPECT_TRUE(same_image(tab.disc.bytes, imported(filled_image(), row, good_line, answer)));
    ASSERT_EQ(tab.platform.messages.size(), 2U);
    EXPECT_EQ(tab.platform.messages[0].text, question);
    EXPECT_EQ(tab.platform.messages[0].icon, Icon::warning);
    EXPECT_EQ(tab.platform.messages[0].buttons, Buttons::yes_no_cancel);
    EXPECT_EQ(tab.platform.messages[1].text, saved);
    EXPECT_EQ(tab.platform.dialogs.back().filter, "*.bfr|*.bfr");
    EXPECT_EQ(tab.platform.dialogs.back().initial_directory, tab.home.path());

    // The tab shows what was written.
    const bool bars = answer != Answer::cancel;
    const bool formation = answer != Answer::no;
    const std::string shown_bars = bars ? good_line.substr(0, 10) : record_line(row).substr(0, 10);
    EXPECT_EQ(tab.form.listApp2.item(row), shown_bars);
    EXPECT_EQ(tab.form.listApp2.count(), 86);
    EXPECT_EQ(tab.form.pbFZ(5).caption(), std::to_string(pair_value(shown_bars.substr(8, 2))));
    EXPECT_EQ(tab.form.FormationX[2], formation ? 1 : record_of_row(row).x[0]);
    EXPECT_EQ(tab.form.FormationY[11], formation ? 0x14 : record_of_row(row).y[9]);
    EXPECT_EQ(tab.form.cboMod.text(), "");
    EXPECT_EQ(tab.form.SelectedMarker, row);
    EXPECT_EQ(tab.form.cboSeqSQ2.row(), row);
    EXPECT_FALSE(tab.form.fraCord.enabled());
    EXPECT_EQ(tab.disc.flushes, 1);
}

INSTANTIATE_TEST_SUITE_P(
    RowsAndAnswers, BarsImport,
    ::testing::Values(ImportCase{0, Answer::yes}, ImportCase{0, Answer::no}, ImportCase{0, Answer::cancel},
                      ImportCase{3, Answer::yes}, ImportCase{3, Answer::no}, ImportCase{3, Answer::cancel},
                      ImportCase{32, Answer::yes}, ImportCase{32, Answer::no}, ImportCase{32, Answer::cancel},
                      ImportCase{60, Answer::yes}, ImportCase{60, Answer::no}, ImportCase{60, Answer::cancel},
                      ImportCase{85, Answer::yes}, ImportCase{85, Answer::no}, ImportCase{85, Answer::cancel}));

TEST(BarsImportAndExport, CarryATeamToAnother) {
    FormationTab tab;
    tab.choose(32);
    tab.click(tab.form.cmdExport);
    tab.choose(3);
    tab.platform.choices.push_back(tab.home.path() + '/' + folder + "/EGYPT.bfr");
    tab.platform.answers.push_back(Answer::yes);
    tab.click(tab.form.cmdImport);
    std::string expected = filled_image();
    put(expected, printed_bars(3), bytes_at(filled_image(), printed_bars(32)));
    put(expected, printed_formation(3), bytes_at(filled_image(), printed_formation(32)));
    EXPECT_TRUE(same_image(tab.disc.bytes, expected));
}

TEST(BarsImportOfAnyLength, TakesTheTwoEndsOfTheLine) {
    const std::string digits =
        "1F2E3D4C5B6A798807162534435261708F9EADBCCBDAE9F80123456789ABCDEFFEDCBA98765432100F1E2D3C4B5A";
    for (const int row : {0, 3, 32}) {
        for (const Answer answer : {Answer::yes, Answer::no, Answer::cancel}) {
            FormationTab tab;
            tab.choose(row);
            for (std::size_t length = 0; length <= 80; ++length) {
                // Only the first answer needs them all.
                if (answer != Answer::yes && length % 4 != 0 && length != 10 && length != 79) continue;
                const std::string line = digits.substr(0, length);
                tab.disc.bytes = filled_image();
                import(tab, line + "\r\n", answer);
                EXPECT_TRUE(same_image(tab.disc.bytes, imported(filled_image(), row, line, answer)))
                    << length << ' ' << row;
            }
        }
    }
}

TEST(BarsImportOfOddText, CountsWhatIsNoDigitAsZero) {
    const Texts lines{std::string(70, 'Z'),  std::string(70, ' '),
                      "1G G1 +5 0x12",       good_line.substr(0, 20) + "ag" + good_line.substr(22),
                      std::string(70, '\0'), std::string(40, '\xFF') + "0a0B0c",
                      "abcdef0123"};
    for (const std::string& line : lines) {
        for (const int row : {3, 32, 85}) {
            FormationTab tab;
            tab.choose(row);
            import(tab, line + "\r\n", Answer::yes);
            EXPECT_TRUE(same_image(tab.disc.bytes, imported(filled_image(), row, line, Answer::yes))) << row;
        }
    }
}

TEST(BarsImportOfOddText, CountsHalfAPairAsZero) {
    FormationTab tab;
    tab.choose(10);
    import(tab, "1G0A G2 11" + good_line.substr(10, 56) + "9 7Z\r\n", Answer::yes);
    std::string expected = filled_image();
    put(expected, printed_bars(10), bytes_of_digits("000A000011"));
    put(expected, printed_formation(10), bytes_of_digits(good_line.substr(10, 56) + "0000"));
    EXPECT_TRUE(same_image(tab.disc.bytes, expected));
}

TEST(BarsImport, TakesTheFirstLineHoweverItEnds) {
    for (const std::string end : {"\r\n", "\r", "\n", "", "\r\nFFFFFFFFFF\r\n", "\n\n"}) {
        FormationTab tab;
        tab.choose(10);
        import(tab, good_line + end, Answer::yes);
        EXPECT_TRUE(same_image(tab.disc.bytes, imported(filled_image(), 10, good_line, Answer::yes)));
    }
}

TEST(BarsImport, OfAnEmptyLineWritesNothingAndSaysSo) {
    FormationTab tab;
    tab.choose(10);
    import(tab, "\r\n" + good_line, Answer::yes);
    EXPECT_TRUE(same_image(tab.disc.bytes, filled_image()));
    EXPECT_EQ(tab.told(), (Texts{question, saved}));
}

TEST(BarsImport, OfAnEmptyOrMissingFileEndsTheProgram) {
    FormationTab tab;
    tab.choose(10);
    tab.platform.choices.push_back(tab.home.write("empty.bfr", ""));
    EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdImport); }), 62);
    tab.platform.choices.push_back(tab.home.path() + "/missing.bfr");
    EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdImport); }), 53);
    tab.platform.choices.push_back(tab.home.path());
    EXPECT_EQ(error_of([&] { tab.click(tab.form.cmdImport); }), 75);
    EXPECT_EQ(tab.told(), Texts{});
    EXPECT_EQ(tab.disc.writes, 0);
}

TEST(BarsImport, StopsWhenTheDialogIsCancelled) {
    FormationTab tab;
    tab.choose(10);
    tab.click(tab.form.lblGioc(4));
    tab.platform.choices.emplace_back("");
    tab.click(tab.form.cmdImport);
    EXPECT_EQ(tab.told(), Texts{});
    EXPECT_EQ(tab.disc.writes, 0);
    EXPECT_EQ(tab.form.SelectedMarker, 4);
    EXPECT_TRUE(tab.form.fraCord.enabled());
}

TEST(BarsImport, DropsUnsavedBarsOnlyWhenItTouchesThem) {
    for (const Answer answer : {Answer::yes, Answer::no, Answer::cancel}) {
        std::string image = filled_image();
        put(image, printed_bars(11), bytes_of_digits("0404040404"));
        put(image, printed_bars(10), bytes_of_digits("0707070707"));
        FormationTab tab(image);
        tab.choose(11);
        tab.click(tab.form.cmdPiu(1));
        tab.choose(10);
        tab.click(tab.form.cmdMeno(1));
        import(tab, good_line, answer);
        const bool kept = answer == Answer::cancel;
        EXPECT_EQ(tab.bar_captions(), kept ? "6 7 7 7 7" : "1 2 3 4 5");
        tab.choose(11);
        EXPECT_EQ(tab.bar_captions(), kept ? "5 4 4 4 4" : "4 4 4 4 4");
    }
}

TEST(BarsImport, LeavesTheOldImageAtAFailingWrite) {
    for (const int row : {3, 10, 32}) {
        FormationTab whole;
        whole.choose(row);
        import(whole, good_line, Answer::yes);
        ASSERT_GE(whole.disc.writes, 2);
        for (int write = 1; write <= whole.disc.writes; ++write) {
            FormationTab tab;
            tab.choose(row);
            tab.disc.failing_write = write;
            EXPECT_EQ(error_of([&] { import(tab, good_line, Answer::yes); }), 61);
            EXPECT_EQ(tab.told(), Texts{question});
            EXPECT_TRUE(same_image(tab.disc.bytes, filled_image())) << row << ' ' << write;
        }
    }
}

}  // namespace
}  // namespace kalco
