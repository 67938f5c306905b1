#include "work/find.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "support/sheet_disc.h"
#include "work/import_plan.h"

namespace kalco {
namespace {

class Find : public testing::Test {
protected:
    void set(std::string_view id, std::string_view column, std::string_view text) {
        const ImportPlan done = plan_import(
            disc, {Table{"players", {{"id"}, {std::string(column)}}, {{2, {std::string(id), std::string(text)}}}}});
        ASSERT_TRUE(done.mistakes.empty()) << done.mistakes[0].what;
        disc = done.after;
    }
    std::vector<std::string> found(const FindOptions& options) const {
        std::vector<std::string> ids;
        for (const int row : find_players(disc, options)) ids.push_back(sheet.id(row));
        return ids;
    }

    const Sheet& sheet = *sheet_named("players");
    DiscBytes disc = test::sheets_of(test::demo_image_bytes());
};

using Ids = std::vector<std::string>;

TEST_F(Find, TakesEveryPlayerWhenNothingIsAsked) {
    std::vector<int> all(1911);
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(find_players(disc, {}), all);
}

TEST_F(Find, FoldsCaseAndAccents) {
    set("t10p03", "name", "XJ\xC3\x89W\xC3\x91");
    set("m200", "name", "axjewnb");
    set("t50p01", "name", "XJEW");
    for (const char* text : {"xjewn", "XJEWN", "Xj\xC3\xA9wN", "xje\xCC\x81wn", "XJ\xC4\x92W\xC5\x83"}) {
        EXPECT_EQ(found({text, "", ""}), (Ids{"t10p03", "m200"})) << text;
    }
    EXPECT_EQ(found({"xjew", "", ""}), (Ids{"t10p03", "t50p01", "m200"}));
    EXPECT_EQ(found({"xjewnx", "", ""}), Ids{});
    // What is stored counts, not its digits.
    set("t10p03", "name", "#234A0151");
    EXPECT_EQ(found({"#j", "", ""}), Ids{"t10p03"});
    EXPECT_EQ(found({"234A0151", "", ""}), Ids{});
}

TEST_F(Find, KnowsFoldedLetters) {
    EXPECT_EQ(folded("ABC xyz 1."), "abc xyz 1.");
    EXPECT_EQ(folded("\xC3\x80\xC3\x81\xC3\x84\xC3\x85\xC3\x87\xC3\x8F\xC3\x91\xC3\x96\xC3\x9C\xC3\x9D\xC3\xBF"),
              "aaaaci"
              "nouyy");
    EXPECT_EQ(folded("\xC3\x9F"), "ss");
    EXPECT_EQ(folded("\xC3\x98\xC3\x86"), "\xC3\xB8\xC3\xA6");
    EXPECT_EQ(folded("\xC5\xA0"
                     "ev\xC4\x8D"
                     "enko"),
              "sevcenko");
    EXPECT_EQ(folded("e\xCC\x81"), "e");
    EXPECT_EQ(folded("\xC3\x97\xC3\xB7\xE2\x82\xAC"), "\xC3\x97\xC3\xB7\xE2\x82\xAC");
    EXPECT_EQ(folded("a\xFF"
                     "B"),
              "a\xFF"
              "b");
}

TEST_F(Find, TakesThoseThatFit) {
    const FindOptions options{"", "role = Terzino and speed >= 17 and age < 24", ""};
    const std::vector<int> rows = find_players(disc, options);
    EXPECT_FALSE(rows.empty());
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
    const auto cell = [&](int row, const char* column) { return cell_at(disc, *sheet.column_named(column), row); };
    for (int row = 0; row < sheet.rows; ++row) {
        const bool fits =
            cell(row, "role") == "Terzino" && std::stoi(cell(row, "speed")) >= 17 && std::stoi(cell(row, "age")) < 24;
        EXPECT_EQ(std::binary_search(rows.begin(), rows.end(), row), fits) << sheet.id(row);
    }
}

TEST_F(Find, JoinsNameAndCondition) {
    set("t10p03", "name", "QQA");
    set("t10p04", "name", "QQB");
    set("t10p03", "speed", "12");
    set("t10p04", "speed", "19");
    EXPECT_EQ(found({"qq", "speed > 15", ""}), Ids{"t10p04"});
}

TEST_F(Find, SortsRisingAndKeepsEqualsInOrder) {
    for (const char* id : {"t10p01", "t10p02", "t10p03", "t10p04", "m462"}) set(id, "name", "QQ");
    const auto sorted = [&](const char* column) { return found({"qq", "", column}); };
    const auto heights = {"200", "#2", "160", "200", "#63"};
    const auto ids = {"t10p01", "t10p02", "t10p03", "t10p04", "m462"};
    for (auto id = ids.begin(), height = heights.begin(); id != ids.end(); ++id, ++height) set(*id, "height", *height);
    EXPECT_EQ(sorted("height"), (Ids{"t10p03", "t10p01", "t10p04", "t10p02", "m462"}));
    EXPECT_EQ(sorted("id"), (Ids{"m462", "t10p01", "t10p02", "t10p03", "t10p04"}));
    EXPECT_EQ(sorted("name"), (Ids{"t10p01", "t10p02", "t10p03", "t10p04", "m462"}));
    set("t10p01", "number", "10");
    set("t10p02", "number", "9");
    set("t10p03", "number", "9");
    set("t10p04", "number", "2");
    set("m462", "number", "9");
    EXPECT_EQ(sorted("number"), (Ids{"t10p04", "t10p02", "t10p03", "m462", "t10p01"}));
    set("t10p01", "role", "Terzino");
    set("t10p02", "role", "Centravanti");
    set("t10p03", "role", "Portiere");
    set("t10p04", "role", "Terzino");
    set("m462", "role", "Attaccante Laterale");
    EXPECT_EQ(sorted("role"), (Ids{"m462", "t10p02", "t10p03", "t10p01", "t10p04"}));
}

TEST_F(Find, PutsMissingCostsLast) {
    for (const char* id : {"t10p01", "t54p01", "t10p02", "t10p03"}) set(id, "name", "QQ");
    set("t10p01", "cost", "100");
    set("t10p02", "cost", "#255");
    set("t10p03", "cost", "20");
    EXPECT_EQ(found({"qq", "", "cost"}), (Ids{"t10p03", "t10p01", "t10p02", "t54p01"}));
}

TEST_F(Find, RefusesUnknownFields) {
    EXPECT_THROW(find_players(disc, {"", "colour = 1", ""}), ExpressionError);
    EXPECT_THROW(find_players(disc, {"", "", "colour"}), ExpressionError);
    EXPECT_NO_THROW(find_players(disc, {"", "", "id"}));
}

}  // namespace
}  // namespace kalco
