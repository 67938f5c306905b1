#include "ctl/fods/fods_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <pugixml.hpp>
#include <set>

#include "ctl/fods/fods_reader.h"
#include "disc/indexes.h"
#include "disc/roster.h"
#include "support/sheet_disc.h"
#include "work/import_plan.h"
#include "work/sheet_tables.h"

namespace kalco::ctl {
namespace {

using Cells = std::vector<std::string>;

Tables all_tables(const DiscBytes& disc) {
    Tables tables;
    for (const Sheet& sheet : sheets()) tables.push_back(table_of(sheet, disc));
    return tables;
}

const DiscBytes& demo_disc() {
    static const DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    return disc;
}

/// What the workbook of the demo image is made of.
struct Workbook {
    Workbook() { loaded = document.load_string(fods_of_tables(all_tables(demo_disc())).c_str()); }

    pugi::xml_node root() const { return document.child("office:document"); }
    pugi::xml_node body() const { return root().child("office:body").child("office:spreadsheet"); }
    pugi::xml_node sheet(const char* name) const {
        return body().find_child_by_attribute("table:table", "table:name", name);
    }
    /// By row and column of the sheet, both from 1 on.
    pugi::xml_node cell(const char* name, int row, int column) const {
        const auto rows = sheet(name).children("table:table-row");
        const pugi::xml_node found = row == 1 ? sheet(name).child("table:table-header-rows").child("table:table-row")
                                              : *std::next(rows.begin(), row - 2);
        return *std::next(found.children().begin(), column - 1);
    }
    pugi::xml_node rule(const pugi::xml_node& cell) const {
        return body()
            .child("table:content-validations")
            .find_child_by_attribute("table:content-validation", "table:name",
                                     cell.attribute("table:content-validation-name").value());
    }

    pugi::xml_document document;
    pugi::xml_parse_result loaded;
};

const Workbook& workbook() {
    static const Workbook book;
    return book;
}

/// The place of a column in its sheet, from 1 on.
int place_of(std::string_view sheet, std::string_view column) {
    const auto columns = columns_of(*sheet_named(sheet));
    const auto found = std::ranges::find(columns, column, &TableColumn::name);
    return 1 + static_cast<int>(found - columns.begin());
}

/// What a person may type into a cell of row 2, the first team's or player's.
std::string condition_of(const char* sheet, const char* column, int row = 2) {
    const auto cell = workbook().cell(sheet, row, place_of(sheet, column));
    return workbook().rule(cell).attribute("table:condition").value();
}

void expect_same(const Tables& read, const Tables& written) {
    ASSERT_EQ(read.size(), written.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].sheet, written[i].sheet);
        ASSERT_EQ(read[i].columns.size(), written[i].columns.size());
        for (std::size_t c = 0; c < read[i].columns.size(); ++c) {
            EXPECT_EQ(read[i].columns[c].name, written[i].columns[c].name);
        }
        ASSERT_EQ(read[i].rows.size(), written[i].rows.size());
        for (std::size_t r = 0; r < read[i].rows.size(); ++r) {
            EXPECT_EQ(read[i].rows[r].number, written[i].rows[r].number);
            for (std::size_t c = 0; c < read[i].columns.size(); ++c) {
                ASSERT_EQ(read[i].rows[r].cell(c), written[i].rows[r].cell(c)) << read[i].sheet << ' ' << r << ' ' << c;
            }
        }
    }
}

TEST(FodsWriter, ComesBackAsItWas) {
    const Tables demo = all_tables(demo_disc());
    expect_same(tables_of_fods(fods_of_tables(demo)), demo);
    for (std::uint32_t seed = 1; seed <= 3; ++seed) {
        const DiscBytes disc = test::sheets_of(test::random_image_bytes(seed));
        const Tables odd = all_tables(disc);
        const Tables read = tables_of_fods(fods_of_tables(odd));
        expect_same(read, odd);
        const ImportPlan plan = plan_import(disc, read);
        EXPECT_TRUE(plan.mistakes.empty());
        EXPECT_TRUE(plan.changes.empty());
    }
}

TEST(FodsWriter, KeepsBlanksAndMarks) {
    const Table table{"odd",
                      {{"id"}, {"text"}},
                      {{2, {"a", " x"}},
                       {3, {"b", "x "}},
                       {4, {"c", "x  y   z"}},
                       {5, {"d", " "}},
                       {6, {"e", "<&>\"'="}},
                       {7, {"f", "\"\""}},
                       {8, {"g", "0012"}},
                       {9, {"h", "è ÿ"}},
                       {10, {"i", "x\ty\nz \n"}}}};
    expect_same(tables_of_fods(fods_of_tables({table})), {table});
}

TEST(FodsWriter, WritesNumbersAsNumbersAndTheRestAsTexts) {
    const auto speed = workbook().cell("players", 2, place_of("players", "speed"));
    EXPECT_STREQ(speed.attribute("office:value-type").value(), "float");
    EXPECT_EQ(speed.attribute("office:value").value(), test::cell(demo_disc(), "players", "t00p01", "speed"));
    EXPECT_EQ(speed.child("text:p").text().get(), test::cell(demo_disc(), "players", "t00p01", "speed"));
    const auto role = workbook().cell("players", 2, place_of("players", "role"));
    EXPECT_STREQ(role.attribute("office:value-type").value(), "string");
    // Typed digits stay a text in a column of texts.
    const auto name = workbook().cell("players", 2, place_of("players", "name"));
    EXPECT_FALSE(name.attribute("table:style-name"));
    const auto columns = workbook().sheet("players").children("table:table-column");
    EXPECT_STREQ(
        std::next(columns.begin(), place_of("players", "name") - 1)->attribute("table:default-cell-style-name").value(),
        "text");
    const auto style =
        workbook().root().child("office:automatic-styles").find_child_by_attribute("style:style", "style:name", "text");
    EXPECT_STREQ(style.attribute("style:data-style-name").value(), "as-text");
}

TEST(FodsWriter, RefusesWhileTypingWhatAnImportWould) {
    EXPECT_EQ(condition_of("players", "name"), "of:cell-content-text-length()<=10");
    EXPECT_EQ(condition_of("players", "foot"), "of:cell-content-is-in-list(\"Destro\";\"Sinistro\";\"Ambi\")");
    EXPECT_NE(condition_of("players", "build").find("\"B 60÷65 Kg\""), std::string::npos);
    EXPECT_EQ(condition_of("players", "height"),
              "of:cell-content-is-whole-number() and cell-content-is-between(155,210)");
    EXPECT_EQ(condition_of("players", "cost"), "of:cell-content-is-whole-number() and cell-content-is-between(0,250)");
    EXPECT_EQ(condition_of("numbers", "n1"), "of:cell-content-is-whole-number() and cell-content-is-between(1,32)");
    EXPECT_EQ(condition_of("numbers", "n1", 2 + nation_count),
              "of:cell-content-is-whole-number() and cell-content-is-between(1,99)");
    EXPECT_NE(condition_of("formations", "role2").find("\"DC SX\";\"DC\""), std::string::npos);
    EXPECT_EQ(condition_of("set_pieces", "captain"),
              "of:cell-content-is-whole-number() and cell-content-is-between(1,11)");
    EXPECT_EQ(condition_of("links", "s23"), "of:cell-content-is-in-list([$players.$A$2:.$A$1912])");
    // Two bytes a letter, one a blank, counted in the cell itself.
    EXPECT_EQ(condition_of("teams", "full"), "of:is-true-formula(LEN([.C2])+LEN(SUBSTITUTE([.C2];\" \";\"\"))<=14)");
}

TEST(FodsWriter, RefusesToChangeWhatIsOnlyToBeRead) {
    for (const char* column : {"id", "team", "rev"}) {
        EXPECT_EQ(condition_of("players", column), "of:is-true-formula(FALSE())") << column;
    }
    // The classic teams have no cost, Portugal has no T4.
    EXPECT_EQ(condition_of("players", "cost", 2 + nation_count * roster_players), "of:is-true-formula(FALSE())");
    EXPECT_EQ(condition_of("teams", "t4", 6), "of:is-true-formula(FALSE())");
}

TEST(FodsWriter, NamesOnlyRulesAndStylesThatStandThere) {
    std::set<std::string> rules;
    for (const auto& rule : workbook().body().child("table:content-validations")) {
        EXPECT_TRUE(rules.insert(rule.attribute("table:name").value()).second);
        EXPECT_STREQ(rule.child("table:error-message").attribute("table:message-type").value(), "stop");
    }
    std::set<std::string> styles;
    for (const auto& style : workbook().root().child("office:automatic-styles")) {
        EXPECT_TRUE(styles.insert(style.attribute("style:name").value()).second);
    }
    std::set<std::string> named;
    for (const auto& found : workbook().body().select_nodes(".//@table:content-validation-name")) {
        named.insert(found.attribute().value());
    }
    EXPECT_EQ(named, rules);
    for (const auto& found : workbook().body().select_nodes(".//@table:style-name|.//@table:default-cell-style-name")) {
        EXPECT_TRUE(styles.contains(found.attribute().value())) << found.attribute().value();
    }
}

TEST(FodsWriter, KeepsTheHeadingsInView) {
    std::map<std::string, std::string> panes;
    for (const auto& found : workbook().root().select_nodes(".//config:config-item-map-named[@config:name='Tables']/"
                                                            "config:config-item-map-entry")) {
        const auto item = [&found](const char* name) {
            return std::string(
                found.node().find_child_by_attribute("config:config-item", "config:name", name).text().get());
        };
        EXPECT_EQ(item("VerticalSplitMode"), "2");
        EXPECT_EQ(item("VerticalSplitPosition"), "1");
        EXPECT_EQ(item("HorizontalSplitMode"), "2");
        panes[found.node().attribute("config:name").value()] = item("HorizontalSplitPosition");
    }
    EXPECT_EQ(panes, (std::map<std::string, std::string>{{"players", "4"},
                                                         {"teams", "2"},
                                                         {"formations", "1"},
                                                         {"bars", "1"},
                                                         {"numbers", "1"},
                                                         {"set_pieces", "1"},
                                                         {"links", "1"}}));
}

TEST(FodsWriter, GivesColumnsTheWidthOfTheirTexts) {
    const auto width = [](const char* column) {
        const auto columns = workbook().sheet("players").children("table:table-column");
        const std::string style =
            std::next(columns.begin(), place_of("players", column) - 1)->attribute("table:style-name").value();
        return std::stoi(style.substr(1));
    };
    EXPECT_GT(width("role"), width("name"));
    EXPECT_GT(width("shot_accuracy"), width("speed"));
}

TEST(FodsWriter, WritesPartsOfSheetsToo) {
    const std::vector<FieldChange> none;
    Table changes = table_of(*sheet_named("links"), none);
    changes.rows.push_back({2, {"c00", "m001"}});
    const std::string text = fods_of_tables({changes});
    // Without the players' sheet there is nothing to pick an id from.
    EXPECT_NE(text.find("of:cell-content-text-length-is-between(4,6)"), std::string::npos);
    expect_same(tables_of_fods(text), {changes});
}

TEST(FodsWriter, HoldsNoTables) {
    EXPECT_TRUE(tables_of_fods(fods_of_tables({})).empty());
}

}  // namespace
}  // namespace kalco::ctl
