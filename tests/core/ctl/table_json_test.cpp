#include "ctl/table_json.h"

#include <gtest/gtest.h>

#include "ctl/table_formats.h"

namespace kalco::ctl {
namespace {

using Cells = std::vector<std::string>;

std::pair<int, std::string> refusal(std::string_view text) {
    try {
        static_cast<void>(tables_of_json(text));
    } catch (const TableError& error) {
        return {error.mistake().row, error.mistake().what};
    }
    return {0, "taken"};
}

Cells names(const Table& table) {
    Cells result;
    for (const TableColumn& column : table.columns) result.push_back(column.name);
    return result;
}

TEST(TableJson, IsOneObjectARow) {
    const Table bars{"bars", {{"id"}, {"power"}}, {{2, {"t00", "7"}}, {3, {"t01", "#11"}}}};
    const Table teams{"teams", {{"id"}, {"t1"}, {"t2"}}, {{2, {"t00", "A\"\xC3\x89"}}}};
    const std::string text = json_of_tables({bars, teams});
    EXPECT_EQ(text, "{\"sheet\":\"bars\",\"id\":\"t00\",\"power\":\"7\"}\n"
                    "{\"sheet\":\"bars\",\"id\":\"t01\",\"power\":\"#11\"}\n"
                    "{\"sheet\":\"teams\",\"id\":\"t00\",\"t1\":\"A\\\"\xC3\x89\",\"t2\":\"\"}\n");
    const Tables read = tables_of_json(text);
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].sheet, "bars");
    EXPECT_EQ(read[0].rows[1].cells, (Cells{"t01", "#11"}));
    EXPECT_EQ(read[1].rows[0].cells, (Cells{"t00", "A\"\xC3\x89", ""}));
    EXPECT_EQ(read[1].rows[0].number, 3);
}

TEST(TableJson, TakesKeysInAnyOrderAndLeavesOutMissingOnes) {
    const Tables read =
        tables_of_json("\r\n{\"age\":20,\"id\":\"m001\"}\r\n\n{\"id\":\"m002\",\"name\":null,\"speed\":\"15\"}");
    ASSERT_EQ(read.size(), 1U);
    EXPECT_EQ(read[0].sheet, "");
    EXPECT_EQ(names(read[0]), (Cells{"age", "id", "name", "speed"}));
    EXPECT_EQ(read[0].columns[3].row, 4);
    EXPECT_EQ(read[0].rows[0].number, 2);
    EXPECT_EQ(read[0].rows[0].cells, (Cells{"20", "m001"}));
    EXPECT_EQ(read[0].rows[1].cells, (Cells{"", "m002", "", "15"}));
}

TEST(TableJson, RefusesWhatIsNoRow) {
    EXPECT_EQ(refusal("{\"id\":\"m001\"}\n[1]\n"), std::pair(2, std::string("not an object of texts and numbers")));
    for (const char* line : {"x", "1", "\"a\"", "{\"id\":[1]}", "{\"id\":{}}", "{\"id\":\"a\"} {}", "{\"id\":\"a\"",
                             "{id:1}", "[[[[[[[[[[[[[[[[", "{\"a\":1e999}"}) {
        EXPECT_EQ(refusal(line), std::pair(1, std::string("not an object of texts and numbers"))) << line;
    }
    EXPECT_EQ(refusal("{\"id\":1.5}").second, "neither a text nor a whole number");
    EXPECT_EQ(refusal("{\"id\":true}").second, "neither a text nor a whole number");
    EXPECT_EQ(refusal("{\"id\":\"a\",\"age\":1,\"age\":2}").second, "twice the same key");
    EXPECT_EQ(refusal("{\"id\":\"\xE9\"}").second, "not UTF-8");
    EXPECT_EQ(refusal("{\"id\":\"\\ud800\"}").second, "not an object of texts and numbers");
}

TEST(TableJson, LimitsColumnsAndSheets) {
    std::string columns;
    std::string sheets;
    for (int i = 0; i < 300; ++i) {
        columns += "{\"c" + std::to_string(i) + "\":1}\n";
        sheets += "{\"sheet\":\"s" + std::to_string(i) + "\"}\n";
    }
    EXPECT_EQ(refusal(columns), std::pair(257, std::string("too many columns")));
    EXPECT_EQ(refusal(sheets), std::pair(65, std::string("too many sheets")));
}

TEST(TableJson, LimitsTheNumberOfCells) {
    std::string wide = "{\"c0\":1";
    for (int i = 1; i < 250; ++i) wide += ",\"c" + std::to_string(i) + "\":1";
    std::string text = wide + "}\n";
    for (int i = 0; i < 3999; ++i) text += "{\"c0\":1}\n";
    EXPECT_EQ(tables_of_json(text)[0].rows.size(), 4000U);
    EXPECT_EQ(refusal(text + "{\"c0\":1}\n"), std::pair(4001, std::string("too many cells")));
}

TEST(TableFormats, FollowAFilesName) {
    EXPECT_EQ(format_of_path("a.json"), TableFormat::json);
    EXPECT_EQ(format_of_path("/x.json/A.JSON"), TableFormat::json);
    EXPECT_EQ(format_of_path("a.csv"), TableFormat::csv);
    for (const char* path : {"", "a", "a.txt", "json", "a.json/b", "a.json.bak"}) {
        EXPECT_EQ(format_of_path(path), TableFormat::csv) << path;
    }
    EXPECT_EQ(format_named("json"), TableFormat::json);
    EXPECT_EQ(format_named("JSON"), std::nullopt);
    EXPECT_EQ(format_named(""), std::nullopt);
}

TEST(TableFormats, AreToldByTheirBytes) {
    EXPECT_EQ(tables_of_file(" \n{\"id\":\"m001\",\"age\":20}\n")[0].rows[0].cells, (Cells{"m001", "20"}));
    EXPECT_EQ(tables_of_file("id,age\nm001,20\n")[0].rows[0].cells, (Cells{"m001", "20"}));
    EXPECT_EQ(tables_of_file("")[0].columns.size(), 0U);
    EXPECT_EQ(tables_of_file("\uFEFF{\"id\":\"m001\"}")[0].rows[0].cells, (Cells{"m001"}));
    EXPECT_THROW(tables_of_file("[{\"id\":\"m001\"}]"), TableError);
    EXPECT_THROW(tables_of_file("PK\x03\x04zip"), TableError);
    EXPECT_THROW(tables_of_file("\xD0\xCF\x11\xE0xls"), TableError);
}

}  // namespace
}  // namespace kalco::ctl
