#include "work/import_plan.h"

#include <gtest/gtest.h>

#include <random>

#include "support/sheet_disc.h"
#include "work/csv.h"
#include "work/sheet_tables.h"

namespace kalco {
namespace {

std::vector<std::string> mistakes(const ImportPlan& plan) {
    std::vector<std::string> lines;
    for (const TableMistake& each : plan.mistakes) {
        lines.push_back(std::to_string(each.row) + ':' + each.column + ": " + each.what);
    }
    return lines;
}

std::vector<std::string> changes(const ImportPlan& plan) {
    std::vector<std::string> lines;
    for (const FieldChange& each : plan.changes) lines.push_back(line_of(each));
    return lines;
}

using Lines = std::vector<std::string>;

class Import : public testing::Test {
protected:
    ImportPlan plan(const std::string& csv, const ImportOptions& options = {}) const {
        return plan_import(disc, {table_of_csv(csv)}, options);
    }
    std::string cell(std::string_view id, std::string_view column, std::string_view sheet = "players") const {
        return test::cell(disc, sheet, id, column);
    }
    /// Stores a cell's value first, so that a test knows what stands there.
    void set(std::string_view id, std::string_view column, std::string_view text, std::string_view sheet = "players") {
        const ImportPlan done = plan_import(
            disc,
            {Table{std::string(sheet), {{"id"}, {std::string(column)}}, {{2, {std::string(id), std::string(text)}}}}});
        ASSERT_TRUE(done.mistakes.empty()) << done.mistakes[0].what;
        disc = done.after;
    }

    DiscBytes disc = test::sheets_of(test::demo_image_bytes());
};

TEST_F(Import, OfAnExportChangesNothing) {
    for (const std::string& image :
         {test::demo_image_bytes(), test::random_image_bytes(21), test::random_image_bytes(22)}) {
        const DiscBytes bytes = test::sheets_of(image);
        Tables tables;
        for (const Sheet& sheet : sheets()) tables.push_back(table_of(sheet, bytes));
        const ImportPlan done = plan_import(bytes, tables);
        EXPECT_EQ(mistakes(done), Lines{});
        EXPECT_EQ(changes(done), Lines{});
        EXPECT_TRUE(differences(bytes, done.after).empty());
    }
}

TEST_F(Import, TellsChangesInTheDiscsOrder) {
    set("t10p03", "speed", "15");
    set("t10p03", "foot", "Destro");
    set("m001", "name", "OLD");
    const ImportPlan done = plan("speed,name,id,foot\r\n,NEW,m001,\r\n17,,t10p03,Ambi\r\n");
    EXPECT_EQ(mistakes(done), Lines{});
    EXPECT_EQ(changes(done), (Lines{"t10p03 foot: Destro -> Ambi", "t10p03 speed: 15 -> 17", "m001 name: OLD -> NEW"}));
    EXPECT_EQ(test::cell(done.after, "players", "t10p03", "speed"), "17");
    EXPECT_EQ(test::cell(done.after, "players", "t10p03", "foot"), "Ambi");
    EXPECT_EQ(test::cell(done.after, "players", "m001", "name"), "NEW");
}

TEST_F(Import, LeavesAloneWhatHasNoCell) {
    EXPECT_EQ(changes(plan("id,name,speed\r\nt00p01,,\r\nt00p02\r\n")), Lines{});
    EXPECT_EQ(changes(plan("id\r\nt00p01\r\n")), Lines{});
    EXPECT_EQ(changes(plan("id,name\r\n")), Lines{});
}

TEST_F(Import, EmptiesATextWithTwoQuotes) {
    set("t00p01", "name", "OLD");
    const ImportPlan done = plan("id,name\r\nt00p01,\"\"\"\"\"\"\r\n");
    EXPECT_EQ(changes(done), Lines{"t00p01 name: OLD -> \"\""});
    EXPECT_EQ(done.after.read(test::place_of_cell("players", "t00p01", "name").bytes), std::string(10, '\0'));
    set("t00p01", "name", "\"\"");
    EXPECT_EQ(changes(plan("id,name\r\nt00p01,\"\"\"\"\"\"\r\n")), Lines{});
}

TEST_F(Import, FillsAChangedTextWithZeroes) {
    const FieldPlace name = test::place_of_cell("players", "m409", "name");
    ASSERT_TRUE(name.bytes.split());
    disc.write(name.bytes, "ABCDEFGHIJ");
    const ImportPlan done = plan("id,name\r\nm409,K\xC3\x89l\r\n");
    EXPECT_EQ(changes(done), Lines{"m409 name: ABCDEFGHIJ -> K\xC3\x89l"});
    EXPECT_EQ(done.after.read(name.bytes), std::string("K\xC9l\0\0\0\0\0\0\0", 10));
    // A text that stays keeps what stands behind its end.
    disc.write(name.bytes, std::string_view("AB\0xyz", 6));
    EXPECT_TRUE(differences(disc, plan("id,name\r\nm409,AB\r\n").after).empty());
}

TEST_F(Import, TellsAllMistakesAtOnce) {
    set("t00p01", "speed", "15");
    const ImportPlan done = plan("id,speed,colour,name,speed\r\n"
                                 "t00p01,20,,,\r\n"
                                 "t99p01,15,,,\r\n"
                                 "\r\n"
                                 "t00p02,x,,TOO LONG A NAME,\r\n"
                                 "t00p01,17,,,\r\n"
                                 ",15,,,\r\n"
                                 "t00p03,15,,\xC4\x80,\r\n");
    EXPECT_EQ(mistakes(done), (Lines{"1:colour: unknown column", "1:speed: twice the same column",
                                     "2:speed: \"20\": out of range: 12 to 19", "3:id: unknown id \"t99p01\"",
                                     "5:speed: \"x\": not a whole number, 12 to 19",
                                     "5:name: \"TOO LONG A NAME\": too long: 15 bytes, there is room for 10",
                                     "6:id: twice the same id \"t00p01\"", "7:id: the id is missing",
                                     "8:name: \"\xC4\x80\": a letter that the disc can't hold"}));
    EXPECT_EQ(changes(done), Lines{});
}

TEST_F(Import, NeedsTheIds) {
    EXPECT_EQ(mistakes(plan("name,speed\r\nx,15\r\n")), Lines{"1:id: the column is missing"});
    EXPECT_EQ(mistakes(plan("")), Lines{"1:id: the column is missing"});
}

TEST_F(Import, RefusesValuesWithoutAColumn) {
    EXPECT_EQ(
        mistakes(plan("id,,speed\r\nt00p01,x,\r\nt00p02,,,y\r\nt00p03,,,\r\n")),
        (Lines{"2:: a value in a column without a name: \"x\"", "3:: a value in a column without a name: \"y\""}));
}

TEST_F(Import, RefusesChangesOfWhatIsReadOnly) {
    EXPECT_EQ(mistakes(plan("id,team\r\nt00p01,t01\r\n")), Lines{"2:team: \"t01\": read-only here"});
    EXPECT_EQ(mistakes(plan("id,team\r\nt00p01,t00\r\nm001,t95\r\n")), Lines{});
    EXPECT_EQ(mistakes(plan("id,cost\r\nt54p01,100\r\n")), Lines{"2:cost: \"100\": read-only here"});
    EXPECT_EQ(mistakes(plan("id,t4\r\nt00,X\r\nt01,\r\nt02,\"\"\"\"\"\"\r\n", {"teams"})),
              Lines{"2:t4: \"X\": read-only here"});
}

TEST_F(Import, StopsAtARecordThatSomeoneElseChanged) {
    const std::string rev = cell("t00p01", "rev");
    EXPECT_EQ(mistakes(plan("id,rev,speed\r\nt00p01," + rev + ",17\r\n")), Lines{});
    set("t00p01", "name", "ELSE");
    const std::string csv =
        "id,rev,number\r\nt00p01," + rev + "," + (cell("t00p01", "number") == "5" ? "6" : "5") + "\r\n";
    EXPECT_EQ(mistakes(plan(csv)), Lines{"2:rev: the record was changed since: it is " + cell("t00p01", "rev")});
    const ImportPlan forced = plan(csv, {"", true});
    EXPECT_EQ(mistakes(forced), Lines{});
    EXPECT_EQ(forced.changes.size(), 1U);
    // Nothing else is forced.
    EXPECT_EQ(mistakes(plan("id,rev,team\r\nt00p01,x,t01\r\n", {"", true})), Lines{"2:team: \"t01\": read-only here"});
}

TEST_F(Import, LetsACellThatEqualsTheDiscGiveWay) {
    set("t31p23", "speed", "15");
    EXPECT_EQ(changes(plan("id,speed\r\nt31p23,17\r\nt32p01,15\r\n")), Lines{"t31p23 speed: 15 -> 17"});
    EXPECT_EQ(changes(plan("id,speed\r\nt31p23,15\r\nt32p01,17\r\n")), Lines{"t32p01 speed: 15 -> 17"});
    const ImportPlan both = plan("id,speed\r\nt31p23,17\r\nt32p01,17\r\n");
    EXPECT_EQ(mistakes(both), Lines{});
    EXPECT_EQ(test::cell(both.after, "players", "t31p23", "speed"), "17");
    EXPECT_EQ(mistakes(plan("id,speed\r\nt31p23,17\r\nt32p01,18\r\n")),
              Lines{"3:speed: \"18\": another row with the same record has \"17\""});
    // Another field of the record is no conflict, and the names are two.
    set("t31p23", "age", "20");
    set("t31p23", "name", "A");
    set("t32p01", "name", "B");
    EXPECT_EQ(changes(plan("id,name,speed,age\r\nt31p23,C,17,\r\nt32p01,D,,21\r\n")),
              (Lines{"t31p23 name: A -> C", "t31p23 speed: 15 -> 17", "t32p01 name: B -> D", "t32p01 age: 20 -> 21"}));
}

TEST_F(Import, TakesTheNamedSheet) {
    set("t00", "short", "AAA", "teams");
    EXPECT_EQ(changes(plan("id,short\r\nt00,BBB\r\n", {"teams"})), Lines{"t00 short: AAA -> BBB"});
    EXPECT_EQ(mistakes(plan("id,short\r\nt00,BBB\r\n")),
              (Lines{"1:short: unknown column", "2:id: unknown id \"t00\""}));
    Tables tables{table_of_csv("id,short\r\nt00,BBB\r\n"), table_of_csv("id,speed\r\nt00p01,99\r\n")};
    tables[0].sheet = "teams";
    tables[1].sheet = "players";
    EXPECT_EQ(changes(plan_import(disc, tables, {"teams"})), Lines{"t00 short: AAA -> BBB"});
    EXPECT_EQ(mistakes(plan_import(disc, tables)), Lines{"2:speed: \"99\": out of range: 12 to 19 (sheet players)"});
    tables[1].sheet = "notes";
    EXPECT_EQ(mistakes(plan_import(disc, tables)), Lines{"1:sheet: unknown sheet \"notes\""});
}

TEST_F(Import, TellsThatTheNamedSheetIsNotThere) {
    const Table other{"notes", {{"id"}}, {}};
    EXPECT_EQ(mistakes(plan_import(disc, {other}, {"teams"})), Lines{"0:: it has no sheet \"teams\""});
    EXPECT_TRUE(mistakes(plan_import(disc, {other, {"teams", {{"id"}}, {}}}, {"teams"})).empty());
    EXPECT_TRUE(mistakes(plan_import(disc, {{"", {{"id"}}, {}}}, {"teams"})).empty());
}

TEST_F(Import, TakesOneIdOnceInAllTables) {
    Tables tables{table_of_csv("id,speed\r\nt00p01,15\r\n"), table_of_csv("id,age\r\nt00p01,20\r\n")};
    EXPECT_EQ(mistakes(plan_import(disc, tables)).size(), 1U);
}

TEST_F(Import, CutsALongCellInAComplaint) {
    const std::string text(500, 'x');
    const auto lines = mistakes(plan("id,speed\r\nt00p01," + text + "\r\n"));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_LT(lines[0].size(), 150U);
    EXPECT_NE(lines[0].find("xxx...\""), std::string::npos);
}

/// Random cells of a disc become those of another one: the fields' bits change and nothing else, a comparison tells
/// just these changes, and as a table they make the new disc out of the old one.
TEST_F(Import, ChangesJustTheFieldsThatItNames) {
    std::mt19937 random(7);
    const DiscBytes other = test::sheets_of(test::random_image_bytes(31));
    for (int round = 0; round < 6; ++round) {
        Tables tables;
        DiscBytes expected = disc;
        Lines lines;
        for (const Sheet& sheet : sheets()) {
            Table table{std::string(sheet.name), columns_of(sheet), {}};
            for (int row = 0; row < sheet.rows; ++row) {
                // The shared record is another test's.
                if (random() % 20 != 0 || sheet.id(row) == "t31p23" || sheet.id(row) == "t32p01") continue;
                TableRow cells{row + 2, {sheet.id(row)}};
                for (const SheetColumn& column : sheet.columns) {
                    const FieldValue value = stored_value(other, column, row);
                    const bool chosen = random() % 4 == 0 && column.place(row);
                    std::string text = chosen ? cell_of(column, value) : std::string();
                    cells.cells.push_back(text);
                    if (text.empty() || text == cell_at(disc, column, row)) continue;
                    lines.push_back(sheet.id(row) + ' ' + column.name + ": " +
                                    (cell_at(disc, column, row).empty() ? "\"\"" : cell_at(disc, column, row)) +
                                    " -> " + text);
                    store_value(expected, column, row, value);
                }
                table.rows.push_back(std::move(cells));
            }
            tables.push_back(std::move(table));
        }
        const ImportPlan done = plan_import(disc, tables);
        ASSERT_EQ(mistakes(done), Lines{});
        EXPECT_TRUE(differences(expected, done.after).empty());
        EXPECT_EQ(changes(done), lines);
        EXPECT_FALSE(lines.empty());

        Tables again;
        Lines compared;
        for (const Sheet& sheet : sheets()) {
            const auto between = changes_between(disc, done.after, sheet);
            for (const FieldChange& each : between) compared.push_back(line_of(each));
            again.push_back(table_of_csv(csv_of_table(table_of(sheet, between), {';', true})));
            again.back().sheet = sheet.name;
        }
        EXPECT_EQ(compared, lines);
        const ImportPlan twice = plan_import(disc, again);
        EXPECT_EQ(mistakes(twice), Lines{});
        EXPECT_TRUE(changes_between(done.after, twice.after).empty());
        EXPECT_TRUE(differences(done.after, twice.after).empty());
    }
}

/// The same with a whole image of odd values, the shared record and emptied texts too.
TEST_F(Import, OfADifferenceMakesTheOtherDisc) {
    const DiscBytes other = test::sheets_of(test::random_image_bytes(41));
    Tables tables;
    for (const Sheet& sheet : sheets()) tables.push_back(table_of(sheet, changes_between(disc, other, sheet)));
    const ImportPlan done = plan_import(disc, tables);
    ASSERT_EQ(mistakes(done), Lines{});
    EXPECT_TRUE(changes_between(done.after, other).empty());
    EXPECT_GT(done.changes.size(), 50000U);
}

}  // namespace
}  // namespace kalco
