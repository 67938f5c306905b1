#include "ctl/fods/fods_reader.h"

#include <gtest/gtest.h>

namespace kalco::ctl {
namespace {

using Cells = std::vector<std::string>;

std::string workbook_of(const std::string& sheets) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
  xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
  xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
  office:mimetype="application/vnd.oasis.opendocument.spreadsheet"><office:body><office:spreadsheet>)" +
           sheets + "</office:spreadsheet></office:body></office:document>";
}

std::string sheet(const std::string& rows, const std::string& name = "players") {
    return "<table:table table:name=\"" + name + "\">" + rows + "</table:table>";
}

std::string row(const std::string& cells) {
    return "<table:table-row>" + cells + "</table:table-row>";
}

/// A cell with a text; `more` are attributes.
std::string cell(const std::string& text, const std::string& more = {}) {
    return "<table:table-cell office:value-type=\"string\" " + more + "><text:p>" + text +
           "</text:p></table:table-cell>";
}

const std::string id_and_name = row(cell("id") + cell("name"));

/// The cells of the only row behind a header of two columns.
Cells cells_of(const std::string& cells) {
    const Tables tables = tables_of_fods(workbook_of(sheet(id_and_name + row(cells))));
    EXPECT_EQ(tables.size(), 1U);
    if (tables.size() != 1 || tables[0].rows.size() != 1) return {"no row"};
    return tables[0].rows[0].cells;
}

Cells names_of(const Table& table) {
    Cells names;
    for (const TableColumn& column : table.columns) names.push_back(column.name);
    return names;
}

std::vector<int> numbers_of(const Table& table) {
    std::vector<int> numbers;
    for (const TableRow& each : table.rows) numbers.push_back(each.number);
    return numbers;
}

/// What the reader complains of; the row in front when it has one.
std::string complaint(const std::string& text) {
    try {
        tables_of_fods(text);
    } catch (const TableError& error) {
        const TableMistake& mistake = error.mistake();
        return (mistake.row > 0 ? std::to_string(mistake.row) + ": " : "") + mistake.what;
    }
    return {};
}

TEST(FodsReader, GivesSheetsHeadersAndRows) {
    const Tables tables = tables_of_fods(workbook_of(sheet(id_and_name + row(cell("t00p01") + cell("Rossi"))) +
                                                     sheet(row(cell("id")) + row(cell("t95")), "teams")));
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0].sheet, "players");
    EXPECT_EQ(names_of(tables[0]), (Cells{"id", "name"}));
    EXPECT_EQ(tables[0].columns[0].row, 1);
    ASSERT_EQ(tables[0].rows.size(), 1U);
    EXPECT_EQ(tables[0].rows[0].number, 2);
    EXPECT_EQ(tables[0].rows[0].cells, (Cells{"t00p01", "Rossi"}));
    EXPECT_EQ(tables[1].sheet, "teams");
    EXPECT_EQ(tables[1].rows[0].cells, (Cells{"t95"}));
}

TEST(FodsReader, CountsRepeatedRowsAndDropsEmptyOnes) {
    const std::string empty =
        R"(<table:table-row table:number-rows-repeated="3"><table:table-cell/></table:table-row>)";
    const std::string twice =
        R"(<table:table-row table:number-rows-repeated="2">)" + cell("m001") + "</table:table-row>";
    const std::string rest =
        R"(<table:table-row table:number-rows-repeated="1048560"><table:table-cell table:number-columns-repeated="16384"/>)"
        "</table:table-row>";
    const Tables tables = tables_of_fods(workbook_of(sheet(id_and_name + empty + twice + row(cell("m002")) + rest)));
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(numbers_of(tables[0]), (std::vector<int>{5, 6, 7}));
    EXPECT_EQ(tables[0].rows[1].cells, (Cells{"m001"}));
}

TEST(FodsReader, TakesTheFirstRowWithContentAsTheHeader) {
    const Tables tables =
        tables_of_fods(workbook_of(sheet(row("<table:table-cell/>") + id_and_name + row(cell("m001")))));
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables[0].columns[1].row, 2);
    EXPECT_EQ(numbers_of(tables[0]), (std::vector<int>{3}));
}

TEST(FodsReader, SpellsOutRepeatedCells) {
    const std::string nothing_twice = R"(<table:table-cell table:number-columns-repeated="2"/>)";
    EXPECT_EQ(cells_of(cell("a", R"(table:number-columns-repeated="2")") + nothing_twice + cell("b")),
              (Cells{"a", "a", "", "", "b"}));
    EXPECT_EQ(cells_of(cell("a") + R"(<table:table-cell table:number-columns-repeated="16000"/>)"), (Cells{"a"}));
    EXPECT_EQ(cells_of(cell("a", R"(table:number-columns-repeated="-3")")), (Cells{"a"}));
}

TEST(FodsReader, TakesCoveredCellsAsEmpty) {
    const std::string merged = cell("a", R"(table:number-columns-spanned="2")");
    const std::string covered =
        R"(<table:covered-table-cell office:value-type="string"><text:p>hidden</text:p></table:covered-table-cell>)";
    EXPECT_EQ(cells_of(merged + covered + cell("c")), (Cells{"a", "", "c"}));
}

TEST(FodsReader, FindsRowsInGroups) {
    const std::string rows =
        "<table:table-header-rows>" + id_and_name + "</table:table-header-rows><table:table-rows>" + row(cell("m001")) +
        "<table:table-row-group>" + row(cell("m002")) + "</table:table-row-group></table:table-rows>";
    const Tables tables = tables_of_fods(workbook_of(sheet("<table:table-column/>" + rows)));
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(numbers_of(tables[0]), (std::vector<int>{2, 3}));
}

TEST(FodsReader, TakesTheValueOfANumberAndNotItsText) {
    const auto number = [](const std::string& type, const std::string& value) {
        return cells_of("<table:table-cell office:value-type=\"" + type + "\" office:value=\"" + value +
                        "\"><text:p>shown</text:p></table:table-cell>");
    };
    EXPECT_EQ(number("float", "17"), (Cells{"17"}));
    EXPECT_EQ(number("float", "17.0"), (Cells{"17"}));
    EXPECT_EQ(number("float", "1.8E2"), (Cells{"180"}));
    EXPECT_EQ(number("float", "-0"), (Cells{"0"}));
    EXPECT_EQ(number("float", "17.5"), (Cells{"17.5"}));
    EXPECT_EQ(number("percentage", "0.15"), (Cells{"0.15"}));
    EXPECT_EQ(number("currency", "40"), (Cells{"40"}));
    EXPECT_EQ(number("float", "1e300"), (Cells{"1e300"}));
    EXPECT_EQ(number("float", "17 goals"), (Cells{"17 goals"}));
}

TEST(FodsReader, TakesTheTextOfEverythingElse) {
    EXPECT_EQ(
        cells_of(R"(<table:table-cell office:value-type="date" office:date-value="2026-03-03"><text:p>3/3</text:p>)"
                 "</table:table-cell>"),
        (Cells{"3/3"}));
    EXPECT_EQ(cells_of(R"(<table:table-cell office:value-type="string" office:string-value="Rossi"><text:p>R.</text:p>)"
                       "</table:table-cell>"),
              (Cells{"Rossi"}));
    // A formula's error, which must not pass for an empty cell.
    EXPECT_EQ(cells_of(R"(<table:table-cell office:value-type="string" office:string-value="" )"
                       R"(calcext:value-type="error"><text:p>#REF!</text:p></table:table-cell>)"),
              (Cells{"#REF!"}));
}

TEST(FodsReader, JoinsParagraphsAndSpans) {
    EXPECT_EQ(cells_of("<table:table-cell "
                       "office:value-type=\"string\"><text:p>one</"
                       "text:p><text:p>two</text:p>"
                       "</table:table-cell>"),
              (Cells{"one\ntwo"}));
    EXPECT_EQ(cells_of(cell("De <text:span>la</text:span> <text:a>Peña</text:a>")), (Cells{"De la Peña"}));
    EXPECT_EQ(cells_of(cell("a<text:tab/>b<text:line-break/>c")), (Cells{"a\tb\nc"}));
    EXPECT_EQ(cells_of(cell("a<office:annotation><text:p>note</text:p></office:annotation>b")), (Cells{"ab"}));
    EXPECT_EQ(cells_of("<table:table-cell "
                       "office:value-type=\"string\"><office:annotation><text:p>note</"
                       "text:p>"
                       "</office:annotation><text:p>a</text:p></table:table-cell>"),
              (Cells{"a"}));
}

TEST(FodsReader, CollapsesBlanksOfTheFile) {
    EXPECT_EQ(cells_of(cell("\n  a \t\n b")), (Cells{"a b"}));
    EXPECT_EQ(cells_of(cell("<text:s text:c=\"2\"/>a <text:s/>b<text:s/>")), (Cells{"  a  b "}));
    EXPECT_EQ(cells_of(cell("&lt;&amp;&gt; <![CDATA[<b>]]>&#xE9;")), (Cells{"<&> <b>é"}));
}

TEST(FodsReader, DropsSheetsWithoutCells) {
    EXPECT_TRUE(tables_of_fods(workbook_of(sheet(row("<table:table-cell/>")) + sheet("", "Foglio2"))).empty());
}

TEST(FodsReader, RefusesWhatIsNoSpreadsheet) {
    EXPECT_EQ(complaint("<html/>"), "no flat OpenDocument spreadsheet");
    EXPECT_EQ(complaint("<office:document><office:body><office:text/></"
                        "office:body></office:document>"),
              "no flat OpenDocument spreadsheet");
    EXPECT_EQ(complaint("caf\xE9"), "the file is not UTF-8");
    EXPECT_TRUE(complaint("").starts_with("line 1: no well-formed XML")) << complaint("");
    const std::string whole = workbook_of(sheet(id_and_name));
    EXPECT_TRUE(complaint(whole.substr(0, whole.size() / 2)).starts_with("line 5: no well-formed XML"))
        << complaint(whole.substr(0, whole.size() / 2));
}

TEST(FodsReader, ExpandsNoEntities) {
    std::string text = workbook_of(sheet(id_and_name + row(cell("&b;"))));
    text.insert(text.find("<office:document"),
                R"(<!DOCTYPE x [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;">]>)");
    const Tables tables = tables_of_fods(text);
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables[0].rows[0].cells, (Cells{"&b;"}));
}

TEST(FodsReader, RefusesMoreThanADiscCouldMean) {
    const auto filled = [](const std::string& rows, const std::string& columns, const std::string& text) {
        return workbook_of(sheet(id_and_name + "<table:table-row table:number-rows-repeated=\"" + rows + "\">" +
                                 cell(text, "table:number-columns-repeated=\"" + columns + '"') +
                                 "</table:table-row>"));
    };
    EXPECT_EQ(complaint(filled("1", "257", "a")), "2: more than 256 columns");
    EXPECT_EQ(complaint(filled("1", "99999999999999999999", "a")), "2: more than 256 columns");
    EXPECT_EQ(complaint(filled("1048575", "2", "a")), "2: more cells than the sheets of a disc have");
    EXPECT_EQ(complaint(filled("1000", "256", std::string(1000, 'a'))), "2: more cells than the sheets of a disc have");
    EXPECT_EQ(complaint(filled("1", "1", std::string(40000, 'a'))), "2: a text of more than 32767 bytes");
    EXPECT_EQ(complaint(filled("1", "1", "<text:s text:c=\"99999999\"/>")), "");
    EXPECT_EQ(complaint(filled("1", "1", "a<text:s text:c=\"99999999\"/>")), "2: a text of more than 32767 bytes");
}

std::string nested(const std::string& element, int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += '<' + element + '>';
    for (int i = 0; i < depth; ++i) text += "</" + element + '>';
    return text;
}

TEST(FodsReader, RefusesEndlessNesting) {
    constexpr int deep = 10'000;
    EXPECT_EQ(complaint(workbook_of(sheet(id_and_name + row(cell(nested("text:span", deep)))))),
              "2: text elements nested without end");
    EXPECT_EQ(complaint(workbook_of(sheet(id_and_name + nested("table:table-row-group", deep)))),
              "2: rows grouped without end");
}

TEST(FodsReader, StopsCountingRowsThatNoSpreadsheetHas) {
    const std::string many =
        R"(<table:table-row table:number-rows-repeated="2147483647"><table:table-cell/></table:table-row>)";
    const Tables tables = tables_of_fods(workbook_of(sheet(id_and_name + many + many + many + row(cell("m001")))));
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(numbers_of(tables[0]), (std::vector<int>{1 << 30}));
}

}  // namespace
}  // namespace kalco::ctl
