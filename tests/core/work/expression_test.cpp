#include "work/expression.h"

#include <gtest/gtest.h>

#include <map>

#include "work/sheets/sheets.h"

namespace kalco {
namespace {

using Row = std::map<std::string, std::string>;

const Row defender{{"id", "t10p03"}, {"team", "t10"},        {"name", "FAVUSSOLO"}, {"role", "Difensore Centrale"},
                   {"speed", "17"},  {"age", "24"},          {"cost", ""},          {"height", "#3"},
                   {"foot", "#3"},   {"skin", "A - Bianco"}, {"number", "9"}};

bool fits(std::string_view expression, const Row& row = defender) {
    return parse_expression(*sheet_named("players"), expression).fits([&](const SheetColumn* column) {
        const auto found = row.find(column == nullptr ? "id" : column->name);
        if (found == row.end()) ADD_FAILURE() << "no " << (column == nullptr ? "id" : column->name);
        return found == row.end() ? std::string() : found->second;
    });
}

std::string refusal(std::string_view expression) {
    try {
        static_cast<void>(parse_expression(*sheet_named("players"), expression));
    } catch (const ExpressionError& error) {
        return error.what();
    }
    return {};
}

TEST(Expression, ComparesNumbers) {
    for (const char* text :
         {"speed = 17", "speed != 16", "speed < 18", "speed <= 17", "speed > 16", "speed >= 17", "speed=17",
          "speed>=17", "speed = \"17\"", "speed = 017", "speed > -5", "  speed\t<\n18  "}) {
        EXPECT_TRUE(fits(text)) << text;
    }
    for (const char* text : {"speed = 16", "speed != 17", "speed < 17", "speed <= 16", "speed > 17", "speed >= 18",
                             "speed < 9", "number > 10", "speed > 99999999999999999999999"}) {
        EXPECT_FALSE(fits(text)) << text;
    }
}

TEST(Expression, ComparesTextsToTheLetter) {
    for (const char* text : {"role = \"Difensore Centrale\"", "role != Terzino", "name = FAVUSSOLO", "id = t10p03",
                             "team = t10", "skin = \"A - Bianco\"", "name != \"\""}) {
        EXPECT_TRUE(fits(text)) << text;
    }
    for (const char* text : {"role = Terzino", "role != \"Difensore Centrale\"", "name = favussolo", "id = t10p04",
                             "name = \"FAVUSSOLO \"", "name = \"\""}) {
        EXPECT_FALSE(fits(text)) << text;
    }
    EXPECT_TRUE(fits("name = \"a\"\"b\"", {{"name", "a\"b"}}));
    EXPECT_TRUE(fits("name = or", {{"name", "or"}}));
    EXPECT_TRUE(fits("name = \"\"", {{"name", ""}}));
}

TEST(Expression, FindsNoAbsentCost) {
    for (const char* sign : {"=", "!=", "<", "<=", ">", ">="}) {
        EXPECT_FALSE(fits("cost " + std::string(sign) + " 100")) << sign;
    }
    EXPECT_FALSE(fits("cost != #252"));
    EXPECT_TRUE(fits("cost != 100 or speed = 17"));
}

TEST(Expression, KnowsValuesOutsideTheWindows) {
    EXPECT_TRUE(fits("height = #3"));
    EXPECT_TRUE(fits("foot = #3"));
    EXPECT_TRUE(fits("height != 180"));
    for (const char* text : {"height = 180", "height < 999", "height > 0", "height != #3", "height = #4"}) {
        EXPECT_FALSE(fits(text)) << text;
    }
}

TEST(Expression, BindsNotBeforeAndBeforeOr) {
    const auto value = [](const char* text) { return fits(text, {{"speed", "15"}, {"age", "20"}}); };
    EXPECT_TRUE(value("speed = 15 or speed = 1 and age = 1"));
    EXPECT_FALSE(value("(speed = 15 or speed = 1) and age = 1"));
    EXPECT_TRUE(value("age = 1 and speed = 1 or speed = 15"));
    EXPECT_FALSE(value("not speed = 15 and age = 20"));
    EXPECT_TRUE(value("not (speed = 15 and age = 21)"));
    EXPECT_FALSE(value("not speed = 15 or age = 21"));
    EXPECT_TRUE(value("not not speed = 15"));
    EXPECT_TRUE(value("not speed = 1 and not age = 1"));
    EXPECT_TRUE(value("((speed=15)and(age=20))"));
    EXPECT_TRUE(value("speed = 1 or speed = 2 or speed = 15"));
    EXPECT_FALSE(value("speed = 15 and age = 20 and age = 21"));
}

TEST(Expression, TellsWhatIsWrong) {
    EXPECT_EQ(refusal("colour = 1"), "unknown field colour");
    EXPECT_EQ(refusal("Speed = 1"), "unknown field Speed");
    EXPECT_EQ(refusal("role < Terzino"), "role is no number: it takes = and != only");
    EXPECT_EQ(refusal("id >= t10p03"), "id is no number: it takes = and != only");
    EXPECT_EQ(refusal("speed = fast"), "speed is compared with what is no number: fast");
    EXPECT_EQ(refusal("height < #3"), "height is compared with what is no number: #3");
    EXPECT_EQ(refusal("speed = \"\""), "speed is compared with what is no number: ");
    EXPECT_EQ(refusal("speed"), "speed is followed by none of = != < <= > >=");
    EXPECT_EQ(refusal("speed ! 3"), "speed is followed by none of = != < <= > >=");
    EXPECT_EQ(refusal("speed ="), "speed is compared with nothing");
    EXPECT_EQ(refusal("(speed = 15"), "a bracket is never closed");
    EXPECT_EQ(refusal("name = \"open"), "a quote is never closed");
    EXPECT_EQ(refusal("speed = 15)"), "nothing is expected at: )");
    EXPECT_EQ(refusal("speed = 15 age = 20"), "nothing is expected at: age = 20");
    for (const char* text : {"", "  ", "()", "not", "and", "speed = 15 and", "speed = 15 or or age = 2", "= 3",
                             "speed == 3", "speed => 3", "\"speed\" = 3", "speed = 15 not age = 3"}) {
        EXPECT_NE(refusal(text), "") << text;
    }
}

TEST(Expression, LimitsWhatStandsInEachOther) {
    const auto nested = [](std::size_t levels) {
        return std::string(levels, '(') + "speed = 17" + std::string(levels, ')');
    };
    EXPECT_TRUE(fits(nested(150)));
    EXPECT_NE(refusal(nested(100000)), "");
    std::string denied;
    for (int i = 0; i < 100000; ++i) denied += "not ";
    EXPECT_NE(refusal(denied + "speed = 17"), "");
    std::string chain = "speed = 17";
    for (int i = 0; i < 20000; ++i) chain += " and speed = 17";
    EXPECT_TRUE(fits(chain));
}

}  // namespace
}  // namespace kalco
