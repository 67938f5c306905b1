#include "ctl/fods/fods_writer.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>

#include "ctl/fods/sheet_writer.h"
#include "ctl/fods/validations.h"
#include "work/markup.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> namespaces{{
    {"xmlns:office", "urn:oasis:names:tc:opendocument:xmlns:office:1.0"},
    {"xmlns:table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
    {"xmlns:text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"},
    {"xmlns:style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
    {"xmlns:fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
    {"xmlns:number", "urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0"},
    {"xmlns:config", "urn:oasis:names:tc:opendocument:xmlns:config:1.0"},
    {"xmlns:ooo", "http://openoffice.org/2004/office"},
    {"xmlns:of", "urn:oasis:names:tc:opendocument:xmlns:of:1.2"},
    {"office:version", "1.3"},
}};

/// A text cell's format keeps a name like "Mar 3" a text.
constexpr std::string_view cell_styles =
    R"(<number:text-style style:name="as-text"><number:text-content/></number:text-style>)"
    R"(<style:style style:name="text" style:family="table-cell" style:data-style-name="as-text"/>)"
    R"(<style:style style:name="number" style:family="table-cell"/>)"
    R"(<style:style style:name="fixed" style:family="table-cell" style:data-style-name="as-text">)"
    R"(<style:table-cell-properties fo:background-color="#eef1f5"/><style:text-properties fo:color="#5a6675"/>)"
    R"(</style:style>)"
    R"(<style:style style:name="heading" style:family="table-cell" style:data-style-name="as-text">)"
    R"(<style:table-cell-properties fo:background-color="#1d4f86"/>)"
    R"(<style:text-properties fo:color="#ffffff" fo:font-weight="bold"/></style:style>)";

void write_styles(Markup& markup, const Tables& tables) {
    std::set<int> widths;
    for (const Table& table : tables) {
        for (std::size_t column = 0; column < table.columns.size(); ++column)
            widths.insert(fods::width_of(table, column));
    }
    markup.open("office:automatic-styles").raw(cell_styles);
    for (const int width : widths) {
        markup.open("style:style")
            .attribute("style:name", 'w' + std::to_string(width))
            .attribute("style:family", "table-column");
        markup.open("style:table-column-properties").attribute("style:column-width", std::to_string(width) + "mm");
        markup.end().close();
    }
    markup.close();
}

/// How many columns stay in view: the id, what is only to be read, and a text
/// behind that, such as a name.
int columns_in_view(const Table& table) {
    const Sheet* sheet = sheet_named(table.sheet);
    int columns = 1;
    for (std::size_t i = 1; sheet != nullptr && i < table.columns.size(); ++i, ++columns) {
        const SheetColumn* column = sheet->column_named(table.columns[i].name);
        if (column == nullptr) break;
        if (!column->field->read_only()) return columns + (column->field->kind == FieldKind::text ? 1 : 0);
    }
    return columns;
}

struct Setting {
    std::string_view name;
    std::string_view type;
    std::string_view value;
};

void write_setting(Markup& markup, const Setting& setting) {
    markup.open("config:config-item").attribute("config:name", setting.name).attribute("config:type", setting.type);
    markup.text(setting.value).close();
}

/// The panes: row 1 and the first columns stay in view.
void write_settings(Markup& markup, const Tables& tables) {
    markup.open("office:settings").open("config:config-item-set").attribute("config:name", "ooo:view-settings");
    markup.open("config:config-item-map-indexed").attribute("config:name", "Views");
    markup.open("config:config-item-map-entry");
    write_setting(markup, {"ViewId", "string", "view1"});
    markup.open("config:config-item-map-named").attribute("config:name", "Tables");
    for (const Table& table : tables) {
        const std::string columns = std::to_string(columns_in_view(table));
        markup.open("config:config-item-map-entry").attribute("config:name", table.sheet);
        for (const std::string_view split : {"HorizontalSplitMode", "VerticalSplitMode"}) {
            write_setting(markup, {split, "short", "2"});
        }
        for (const std::string_view left : {"CursorPositionX", "HorizontalSplitPosition", "PositionRight"}) {
            write_setting(markup, {left, "int", columns});
        }
        for (const std::string_view top : {"CursorPositionY", "VerticalSplitPosition", "PositionBottom"}) {
            write_setting(markup, {top, "int", "1"});
        }
        write_setting(markup, {"ActiveSplitRange", "short", "3"});
        markup.close();
    }
    markup.close();
    if (!tables.empty()) write_setting(markup, {"ActiveTable", "string", tables.front().sheet});
    markup.close().close().close().close();
}

/// Buttons in the headings, to filter and sort by.
void write_filters(Markup& markup, const Tables& tables) {
    markup.open("table:database-ranges");
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const Table& table = tables[i];
        const std::string last = fods::letters_of(table.columns.size() - 1) + std::to_string(table.rows.size() + 1);
        markup.open("table:database-range")
            .attribute("table:name", "__Anonymous_Sheet_DB__" + std::to_string(i))
            .attribute("table:target-range-address", table.sheet + ".A1:" + table.sheet + '.' + last)
            .attribute("table:display-filter-buttons", "true")
            .end();
    }
    markup.close();
}

std::string player_ids_of(const Tables& tables) {
    const auto players = std::ranges::find(tables, players_sheet, &Table::sheet);
    if (players == tables.end() || players->rows.size() < static_cast<std::size_t>(sheet_named(players_sheet)->rows)) {
        return {};
    }
    return '$' + players->sheet + ".$A$2:.$A$" + std::to_string(players->rows.size() + 1);
}

}  // namespace

std::string fods_of_tables(const Tables& tables) {
    fods::Validations rules(player_ids_of(tables));
    Markup sheets;
    for (const Table& table : tables) fods::write_sheet(sheets, rules, table);

    Markup markup;
    markup.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n").open("office:document");
    for (const auto& [name, value] : namespaces) markup.attribute(name, value);
    markup.attribute("office:mimetype", "application/vnd.oasis.opendocument.spreadsheet");
    write_settings(markup, tables);
    write_styles(markup, tables);
    markup.open("office:body").open("office:spreadsheet");
    rules.write(markup);
    markup.raw(sheets.take());
    write_filters(markup, tables);
    markup.close().close().close().raw("\n");
    return markup.take();
}

}  // namespace kalco::ctl
