#include "ctl/script/script_language.h"

#include <gtest/gtest.h>

#include "disc/codec/latin1.h"

namespace kalco::script {
namespace {

using Names = std::vector<std::string>;

Action parsed(std::string_view line) {
    const auto action = parse_line(line);
    if (!action) throw std::logic_error("no action");
    return *action;
}

std::string complaint(std::string_view line) {
    try {
        parse_line(line);
    } catch (const ScriptError& failure) {
        return failure.what();
    }
    return "(none)";
}

TEST(ScriptLine, MayBeEmptyOrAComment) {
    for (const char* line : {"", " ", "\t", "\r", "#", "# click cmdNew", "  # start", "#start\r"}) {
        EXPECT_FALSE(parse_line(line)) << line;
    }
    EXPECT_TRUE(parse_line("start"));
}

TEST(ScriptLine, HoldsOneAction) {
    EXPECT_EQ(parsed("start").verb, Verb::start);
    EXPECT_EQ(parsed("close").verb, Verb::close);
    EXPECT_EQ(parsed("tab 5").verb, Verb::tab);
    EXPECT_EQ(parsed("tab 5").number, 5);
    const Action pick = parsed("pick cboSeqSQ 95");
    EXPECT_EQ(pick.verb, Verb::pick);
    EXPECT_EQ(pick.control, "cboSeqSQ");
    EXPECT_EQ(pick.number, 95);
    EXPECT_EQ(parsed("pick listDat -1").number, -1);
    const Action twice = parsed("doubleclick listNC 7");
    EXPECT_EQ(twice.verb, Verb::double_click);
    EXPECT_EQ(twice.control, "listNC");
    EXPECT_EQ(twice.number, 7);
    EXPECT_EQ(parsed("click lblGioc(3)").verb, Verb::click);
    EXPECT_EQ(parsed("click lblGioc(3)").control, "lblGioc(3)");
    EXPECT_EQ(parsed("focus txtML").verb, Verb::focus);
    EXPECT_EQ(parsed("focus txtML").control, "txtML");
    EXPECT_EQ(parsed("show a b(1) c").verb, Verb::show);
    EXPECT_EQ(parsed("show a b(1) c").names, (Names{"a", "b(1)", "c"}));
}

TEST(ScriptLine, DividesItsWordsByBlanks) {
    const Action pick = parsed("  pick\t cboSeqSQ   3  \r");
    EXPECT_EQ(pick.control, "cboSeqSQ");
    EXPECT_EQ(pick.number, 3);
    EXPECT_EQ(parsed("start \r").verb, Verb::start);
    EXPECT_EQ(parsed("type  txtName   \"a  b\"  \r").text, "a  b");
}

TEST(ScriptLine, TakesTextsAsJsonStrings) {
    const Action typed = parsed(R"(type txtNM(11) "a \"b\" \\ \u00e0 é # x")");
    EXPECT_EQ(typed.verb, Verb::type);
    EXPECT_EQ(typed.control, "txtNM(11)");
    EXPECT_EQ(typed.text, "a \"b\" \\ \xE0 \xE9 # x");
    EXPECT_EQ(parsed(R"(type x "")").text, "");
    EXPECT_EQ(parsed(R"(type x "\u0000\t")").text, std::string("\0\t", 2));
    EXPECT_EQ(parsed(R"(type x "ÿĀ€😀")").text, "\xFF???");
    EXPECT_EQ(parsed(R"(type x "\ud83d\ude00")").text, "?");
}

TEST(ScriptLine, TakesPathsInUtf8) {
    const Action chosen = parsed(R"(choose "/tmp/N° à €.bin")");
    EXPECT_EQ(chosen.verb, Verb::choose);
    EXPECT_FALSE(chosen.cancelled);
    EXPECT_EQ(chosen.text, "/tmp/N\xC2\xB0 \xC3\xA0 \xE2\x82\xAC.bin");
    EXPECT_TRUE(parsed("choose cancel").cancelled);
    EXPECT_TRUE(parsed("choose cancel  \r").cancelled);
    EXPECT_EQ(parsed("choose \"cancel\"").text, "cancel");
    EXPECT_FALSE(parsed("choose \"cancel\"").cancelled);
}

TEST(ScriptLine, TakesThreeAnswers) {
    for (const char* answer : {"yes", "no", "cancel"}) {
        EXPECT_EQ(parsed(std::string("answer ") + answer).verb, Verb::answer);
        EXPECT_EQ(parsed(std::string("answer ") + answer).text, answer);
    }
    EXPECT_EQ(complaint("answer ok"), "unknown answer ok");
    EXPECT_EQ(complaint("answer Yes"), "unknown answer Yes");
    EXPECT_EQ(complaint("answer"), "there is no answer");
}

TEST(ScriptLine, ComplainsOfWhatItDoesNotKnow) {
    EXPECT_EQ(complaint("open x"), "unknown action open");
    EXPECT_EQ(complaint("Start"), "unknown action Start");
    EXPECT_EQ(complaint("start now"), "nothing is expected at: now");
    EXPECT_EQ(complaint("close 1"), "nothing is expected at: 1");
    EXPECT_EQ(complaint("click a b"), "nothing is expected at: b");
    EXPECT_EQ(complaint("tab 1 2"), "nothing is expected at: 2");
    EXPECT_EQ(complaint("answer yes no"), "nothing is expected at: no");
    EXPECT_EQ(complaint("tab"), "there is no tab");
    EXPECT_EQ(complaint("tab two"), "two is no tab");
    EXPECT_EQ(complaint("tab 2x"), "2x is no tab");
    EXPECT_EQ(complaint("tab 99999999999"), "99999999999 is no tab");
    EXPECT_EQ(complaint("pick"), "there is no control");
    EXPECT_EQ(complaint("pick cboVel"), "there is no row");
    EXPECT_EQ(complaint("pick cboVel first"), "first is no row");
    EXPECT_EQ(complaint("doubleclick listNC 1.5"), "1.5 is no row");
    EXPECT_EQ(complaint("click"), "there is no control");
    EXPECT_EQ(complaint("focus "), "there is no control");
    EXPECT_EQ(complaint("show"), "there is no name");
    EXPECT_EQ(complaint("type"), "there is no control");
}

TEST(ScriptLine, ComplainsOfTextsThatAreNoJsonStrings) {
    for (const char* text :
         {"", "abc", "\"abc", "'abc'", "5", "[\"a\"]", "\"a\" \"b\"", "\"\\x\"", "\"\xFF\"", "\"\\ud800\"", "null"}) {
        EXPECT_EQ(complaint(std::string("type txtName ") + text), "the text is no JSON string") << text;
        EXPECT_EQ(complaint(std::string("choose ") + text), "the path is no JSON string") << text;
    }
    EXPECT_EQ(complaint("choose Cancel"), "the path is no JSON string");
    EXPECT_EQ(complaint("choose cancel now"), "the path is no JSON string");
    EXPECT_EQ(complaint("type x " + std::string(100000, '[')), "the text is no JSON string");
}

TEST(ScriptLine, TakesNoZeroByteInAPath) {
    EXPECT_EQ(complaint(R"(choose "disc.bin\u0000.txt")"), "the path holds a zero byte");
    EXPECT_EQ(complaint(R"(choose "\u0000")"), "the path holds a zero byte");
}

TEST(ScriptLine, IsEchoedWithoutControlCharactersAndCut) {
    EXPECT_EQ(complaint("\x1B[2J\a\x7F x"), "unknown action \\x1b[2J\\x07\\x7f");
    EXPECT_EQ(complaint("\xC2\x9B\x9B x"), "unknown action \\xc2\\x9b\\x9b");
    const std::string eighty(80, 'x');
    EXPECT_EQ(complaint(eighty), "unknown action " + eighty);
    EXPECT_EQ(complaint(eighty + "yz"), "unknown action " + eighty + "...");
    EXPECT_EQ(complaint("answer " + eighty + "yz"), "unknown answer " + eighty + "...");
    EXPECT_EQ(complaint("tab " + eighty + "yz"), eighty + "... is no tab");
    EXPECT_EQ(complaint("start " + eighty + " z"), "nothing is expected at: " + eighty + "...");
    std::string accented;
    for (int i = 0; i < 81; ++i) accented += "\xC3\xA0";
    EXPECT_EQ(complaint(accented), "unknown action " + accented.substr(0, 160) + "...");
}

TEST(ScriptTexts, GoBothWaysForEveryByte) {
    for (int code = 0; code <= 0xFF; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(latin1_of_utf8(utf8_of_latin1(byte)), byte) << code;
    }
}

TEST(ScriptTexts, HaveOneQuestionMarkForEveryOtherCharacter) {
    EXPECT_EQ(latin1_of_utf8("a\xC4\x80z"), "a?z");
    EXPECT_EQ(latin1_of_utf8("\xE2\x82\xAC"), "?");
    EXPECT_EQ(latin1_of_utf8("\xF0\x9F\x98\x80!"), "?!");
    EXPECT_EQ(latin1_of_utf8("\xC3"), "?");
    EXPECT_EQ(latin1_of_utf8("\xC1\x81"), "?");
}

}  // namespace
}  // namespace kalco::script
