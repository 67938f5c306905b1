#include "ctl/find_command.h"

#include <iostream>

#include "ctl/command.h"
#include "ctl/open_image.h"
#include "ctl/table_formats.h"
#include "work/sheet_tables.h"

namespace kalco::ctl {
namespace {

/// `t10p03 FAVUSSOLO, Terzino, 24, Italy`: who he is, at a glance.
std::string line_of(const Sheet& sheet, const DiscBytes& disc, int row) {
    std::string line = sheet.id(row) + ' ' + cell_at(disc, *sheet.column_named("name"), row);
    for (const char* field : {"role", "age", "team"}) line += ", " + cell_at(disc, *sheet.column_named(field), row);
    return line;
}

}  // namespace

CLI::App& add_find_command(CLI::App& app, FindCommandOptions& options) {
    CLI::App& command = *app.add_subcommand("find", "Find players by name and by their fields");
    command.add_option("IMAGE", options.image, "The image to read")->required();
    command.add_option("TEXT", options.search.text, "Part of the name; case and accents don't count");
    command.add_option("--where", options.search.where, "What their fields must be")->type_name("EXPRESSION");
    command.add_option("--sort", options.search.sort, "Rising by this field")->type_name("FIELD");
    command.add_option("--format", options.format, "The form of what is written")
        ->check(CLI::IsMember({"text", "csv", "json"}))
        ->type_name("F");
    command.footer(
        "An expression compares fields with = != < <= > >= and joins with not, and, or and brackets; values with "
        "blanks\n"
        "stand in double quotes. The fields are the columns of the players' sheet.\n\n"
        "Examples:\n"
        "  kalcoctl find game.bin rossi\n"
        "  kalcoctl find game.bin --where 'role = Terzino and speed >= 17 and age < 24' --sort age\n"
        "  kalcoctl find game.bin --where 'role = \"Difensore Centrale\" and not foot = Destro' --format csv");
    return command;
}

int run_find(const FindCommandOptions& options) {
    const Sheet& sheet = *sheet_named(players_sheet);
    const DiscBytes disc = read_disc(options.image, "find");
    const std::vector<int> rows = find_players(disc, options.search);
    if (options.format == "text") {
        for (const int row : rows) std::cout << line_of(sheet, disc, row) << '\n';
    } else {
        Table table{std::string(sheet.name), columns_of(sheet), {}};
        for (const int row : rows) table.rows.push_back(row_of_sheet(sheet, disc, row));
        std::cout << file_of_tables({table}, *format_named(options.format));
    }
    return rows.empty() ? no : done;
}

}  // namespace kalco::ctl
