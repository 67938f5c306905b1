#include "work/change.h"

#include <gtest/gtest.h>

#include "support/sheet_disc.h"
#include "work/csv.h"
#include "work/sheet_tables.h"

namespace kalco {
namespace {

/// The disc with one cell's value changed.
void change(DiscBytes& disc, std::string_view sheet, std::string_view id, std::string_view column,
            std::string_view cell) {
    const Sheet& found = *sheet_named(sheet);
    const SheetColumn& at = *found.column_named(column);
    const int row = found.row_of(id).value();
    const CellReading reading = read_cell(at, at.place(row).value(), cell);
    ASSERT_EQ(reading.mistake, "");
    store_value(disc, at, row, reading.value);
}

std::vector<std::string> lines(const std::vector<FieldChange>& changes) {
    std::vector<std::string> result;
    for (const FieldChange& each : changes) result.push_back(line_of(each));
    return result;
}

class Changes : public testing::Test {
protected:
    DiscBytes before = test::sheets_of(test::demo_image_bytes());
    DiscBytes after = before;
};

TEST_F(Changes, AreNoneBetweenEquals) {
    EXPECT_TRUE(changes_between(before, after).empty());
    // What stands behind the end of a text means nothing.
    const FieldPlace name = test::place_of_cell("players", "t00p01", "name");
    change(before, "players", "t00p01", "name", "ABC");
    after = before;
    after.put(name.bytes.position() + 5, "x");
    EXPECT_TRUE(changes_between(before, after).empty());
}

TEST_F(Changes, AreToldInTheDiscsOrder) {
    for (const char* id : {"t10p03", "t00p01", "m001"}) change(before, "players", id, "speed", "15");
    after = before;
    change(after, "links", "c06", "s15", "#2517");
    change(after, "players", "t10p03", "speed", "17");
    change(after, "players", "t00p01", "speed", "19");
    change(after, "players", "t00p01", "height", "#3");
    change(after, "players", "m001", "speed", "12");
    change(after, "teams", "t04", "full", "\"\"");
    change(after, "teams", "t04", "short", "X");
    const std::string height = test::cell(before, "players", "t00p01", "height");
    const std::string full = test::cell(before, "teams", "t04", "full");
    const std::string short_name = test::cell(before, "teams", "t04", "short");
    const std::string link = test::cell(before, "links", "c06", "s15");
    const std::vector<std::string> expected{"t00p01 height: " + height + " -> #3",
                                            "t00p01 speed: 15 -> 19",
                                            "t10p03 speed: 15 -> 17",
                                            "m001 speed: 15 -> 12",
                                            "t04 short: " + short_name + " -> X",
                                            "t04 full: " + full + " -> \"\"",
                                            "c06 s15: " + link + " -> #2517"};
    EXPECT_EQ(lines(changes_between(before, after)), expected);
    EXPECT_EQ(lines(changes_between(before, after, *sheet_named("links"))).size(), 1U);
    EXPECT_EQ(line_of(changes_between(after, before, *sheet_named("teams"))[1]), "t04 full: \"\" -> " + full);
}

TEST_F(Changes, OfOneRecordAreToldForBothRows) {
    const std::string other = test::cell(before, "players", "t31p23", "speed") == "19" ? "18" : "19";
    change(after, "players", "t31p23", "speed", other);
    const auto changes = changes_between(before, after);
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[0].id(), "t31p23");
    EXPECT_EQ(changes[1].id(), "t32p01");
}

TEST_F(Changes, MakeATableThatAnImportTakes) {
    change(after, "teams", "t94", "short", "NEW");
    change(after, "teams", "t00", "t1", "\"\"");
    const Table table = table_of(*sheet_named("teams"), changes_between(before, after, *sheet_named("teams")));
    EXPECT_EQ(csv_of_table(table), "id,short,full,t1,t2,t3,t4,t5,t6\r\nt00,,,\"\"\"\"\"\",,,,,\r\nt94,NEW,,,,,,,\r\n");
    EXPECT_EQ(table.rows[1].number, 3);
    change(after, "players", "t00p02", "speed", test::cell(before, "players", "t00p02", "speed") == "12" ? "13" : "12");
    const Table players = table_of(*sheet_named("players"), changes_between(before, after, *sheet_named("players")));
    ASSERT_EQ(players.rows.size(), 1U);
    EXPECT_EQ(players.columns.size(), 1U + 31);
    for (const TableColumn& column : players.columns) {
        EXPECT_NE(column.name, "team");
        EXPECT_NE(column.name, "rev");
    }
    EXPECT_EQ(table_of(*sheet_named("bars"), {}).rows.size(), 0U);
    EXPECT_EQ(table_of(*sheet_named("bars"), {}).columns.size(), 6U);
}

TEST_F(Changes, LeaveAWholeTableWhole) {
    const Table table = table_of(*sheet_named("players"), before);
    EXPECT_EQ(table.sheet, "players");
    ASSERT_EQ(table.rows.size(), 1911U);
    ASSERT_EQ(table.columns.size(), 34U);
    EXPECT_EQ(table.columns[0].name, "id");
    EXPECT_EQ(table.rows[0].number, 2);
    EXPECT_EQ(table.rows[1910].cells[0], "m462");
    for (const TableRow& row : table.rows) ASSERT_EQ(row.cells.size(), 34U);
}

}  // namespace
}  // namespace kalco
