#include "work/csv.h"

#include <gtest/gtest.h>

#include <random>

namespace kalco {
namespace {

Table table(std::vector<std::string> names, std::vector<std::vector<std::string>> rows) {
    Table result;
    for (std::string& name : names) result.columns.push_back({std::move(name)});
    for (auto& cells : rows) result.rows.push_back({static_cast<int>(result.rows.size()) + 2, std::move(cells)});
    return result;
}

std::vector<std::string> names(const Table& table) {
    std::vector<std::string> result;
    for (const TableColumn& column : table.columns) result.push_back(column.name);
    return result;
}

/// The row and the complaint of a text that is refused.
std::pair<int, std::string> csv_refusal(std::string_view csv) {
    try {
        static_cast<void>(table_of_csv(csv));
    } catch (const TableError& error) {
        return {error.mistake().row, error.mistake().what};
    }
    return {0, "taken"};
}

using Cells = std::vector<std::string>;

TEST(Csv, QuotesWhatNeedsIt) {
    const Table sheet = table({"id", "name"}, {{"t00p01", "plain"},
                                               {"t00p02", "a,b"},
                                               {"t00p03", "a\"b"},
                                               {"t00p04", "\"\""},
                                               {"t00p05", ""},
                                               {"t00p06", " b "},
                                               {"t00p07", "a;b"}});
    EXPECT_EQ(csv_of_table(sheet),
              "id,name\r\nt00p01,plain\r\nt00p02,\"a,b\"\r\nt00p03,\"a\"\"b\"\r\nt00p04,\"\"\"\"\"\"\r\nt00p05,\r\n"
              "t00p06, b \r\nt00p07,a;b\r\n");
    EXPECT_EQ(csv_of_table(table({"id", "name"}, {{"t00p07", "a;b"}}), {';', true}),
              "\xEF\xBB\xBFid;name\r\nt00p07;\"a;b\"\r\n");
}

TEST(Csv, WritesAMissingCellAsAnEmptyOne) {
    EXPECT_EQ(csv_of_table(table({"id", "name", "age"}, {{"m001"}})), "id,name,age\r\nm001,,\r\n");
}

TEST(Csv, GuardsWhatASpreadsheetWouldRun) {
    for (const char* text : {"=1", "+1", "-1", "@x", "\tx", "\rx", "'=1", "''+1", "'''@"}) {
        EXPECT_EQ(guarded(text), std::string("'") + text) << text;
    }
    for (const char* text : {"", "'", "''", "'x", "x=1", "1-1", " =1", "#=1", "\"=1"}) EXPECT_EQ(guarded(text), text);
    // What a person may have typed with an apostrophe of his own comes back as he typed it.
    EXPECT_EQ(unguarded("'=1"), "=1");
    EXPECT_EQ(unguarded("=1"), "=1");
    EXPECT_EQ(unguarded("''=1"), "'=1");
    EXPECT_EQ(unguarded("'x"), "'x");
    EXPECT_EQ(csv_of_table(table({"id"}, {{"=1,2"}})), "id\r\n\"'=1,2\"\r\n");
    EXPECT_EQ(table_of_csv("id\r\n\"'=1,2\"\r\n").rows[0].cells, Cells{"=1,2"});
}

TEST(Csv, ReadsEveryWayToEndARow) {
    for (const char* csv : {"id,a\r\nx,1\r\ny,2\r\n", "id,a\nx,1\ny,2\n", "id,a\rx,1\ry,2\r", "id,a\r\nx,1\ny,2"}) {
        const Table sheet = table_of_csv(csv);
        EXPECT_EQ(names(sheet), (Cells{"id", "a"}));
        ASSERT_EQ(sheet.rows.size(), 2U) << csv;
        EXPECT_EQ(sheet.rows[0].cells, (Cells{"x", "1"}));
        EXPECT_EQ(sheet.rows[1].cells, (Cells{"y", "2"}));
        EXPECT_EQ(sheet.rows[1].number, 3);
    }
}

TEST(Csv, CountsRowsAsASpreadsheetDoes) {
    const Table sheet = table_of_csv("id,name\r\n\r\n\"t00\r\np01\",x\r\n,\r\nt00p02,y\r\n");
    ASSERT_EQ(sheet.rows.size(), 2U);
    EXPECT_EQ(sheet.rows[0].number, 3);
    EXPECT_EQ(sheet.rows[0].cells, (Cells{"t00\r\np01", "x"}));
    EXPECT_EQ(sheet.rows[1].number, 5);
}

TEST(Csv, RecognisesSeparatorAndByteOrderMark) {
    for (const char separator : {',', ';', '\t', '|', ':', '~'}) {
        const std::string s(1, separator);
        const Table sheet =
            table_of_csv("\xEF\xBB\xBFid" + s + "name" + s + "age\r\nm001" + s + "\"a" + s + "b\"" + s + "20\r\n");
        EXPECT_EQ(names(sheet), (Cells{"id", "name", "age"})) << separator;
        EXPECT_EQ(sheet.rows[0].cells, (Cells{"m001", "a" + s + "b", "20"}));
    }
    EXPECT_EQ(names(table_of_csv("\"id\",\"a;b;c\"\n")), (Cells{"id", "a;b;c"}));
    EXPECT_EQ(names(table_of_csv("id\nm001\n")), Cells{"id"});
    // What stands below the header has no say.
    EXPECT_EQ(table_of_csv("id,name\nm001,a;b;c\n").rows[0].cells, (Cells{"m001", "a;b;c"}));
}

TEST(Csv, TakesNoLetterAndNoQuoteAsASeparator) {
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const bool sign = std::string_view("\t,;|:!$%&*/?\\^`~").find(character) != std::string_view::npos;
        EXPECT_EQ(is_csv_separator(character), sign) << code;
    }
}

TEST(Csv, RefusesWhatIsNoTable) {
    EXPECT_EQ(csv_refusal("id,name\r\nm001,\"open\r\n\r\n"), std::pair(2, std::string("a quote is never closed")));
    EXPECT_EQ(csv_refusal("id,name\r\nm001,\"a\"b\r\n"), std::pair(2, std::string("text behind a closing quote")));
    EXPECT_EQ(csv_refusal("id,name\r\nm001,N\xD1\r\n"), std::pair(2, std::string("not UTF-8")));
    EXPECT_EQ(csv_refusal("id,name\r\nm001,ab\"c\"\r\n").second, "taken");
}

TEST(Csv, LimitsTheNumberOfCells) {
    const std::string row = "x" + std::string(9999, ',') + '\n';
    std::string csv = "id\n";
    for (int i = 0; i < 100; ++i) csv += row;
    EXPECT_EQ(table_of_csv(csv).rows.size(), 100U);
    EXPECT_EQ(csv_refusal(csv + "x\n"), std::pair(102, std::string("too many cells")));
    // Empty rows cost nothing, however many they are.
    for (int i = 0; i < 100; ++i) csv += std::string(9999, ',') + '\n';
    EXPECT_EQ(table_of_csv(csv).rows.size(), 100U);
    EXPECT_EQ(csv_refusal(std::string(2000000, ',')), std::pair(1, std::string("too many cells")));
}

TEST(Csv, IsEmptyWhenNothingIsThere) {
    EXPECT_TRUE(table_of_csv("").columns.empty());
    EXPECT_TRUE(table_of_csv("\xEF\xBB\xBF").columns.empty());
    EXPECT_TRUE(table_of_csv("id\r\n").rows.empty());
}

TEST(Csv, ReadsBackWhatItWrites) {
    std::mt19937 random(5);
    const std::string letters = "ab,;\t|'=+-@\"\r\n #\xC3\x89";
    for (int round = 0; round < 400; ++round) {
        Table sheet = table({"id", "a", "b"}, {});
        for (int row = 0; row < 8; ++row) {
            Cells cells{"m00" + std::to_string(row)};
            for (int cell = 0; cell < 2; ++cell) {
                std::string text;
                for (auto length = random() % 6; length > 0; --length) {
                    const auto place = random() % (letters.size() - 1);
                    text += place + 2 >= letters.size() ? letters.substr(letters.size() - 2) : letters.substr(place, 1);
                }
                cells.push_back(text);
            }
            sheet.rows.push_back({row + 2, cells});
        }
        const char separator = std::string_view(",;\t|~")[random() % 5];
        const Table read = table_of_csv(csv_of_table(sheet, {separator, random() % 2 == 0}));
        ASSERT_EQ(read.rows.size(), sheet.rows.size());
        for (std::size_t row = 0; row < read.rows.size(); ++row) {
            ASSERT_EQ(read.rows[row].cells, sheet.rows[row].cells) << csv_of_table(sheet, {separator});
            ASSERT_EQ(read.rows[row].number, sheet.rows[row].number);
        }
    }
}

}  // namespace
}  // namespace kalco
