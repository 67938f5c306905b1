#include "ctl/export_command.h"

#include <array>

#include "ctl/command.h"
#include "ctl/files.h"
#include "ctl/open_image.h"
#include "work/sheet_tables.h"

namespace kalco::ctl {

CLI::App& add_export_command(CLI::App& app, ExportOptions& options) {
    CLI::App& command = *app.add_subcommand("export", "Write the image's data as tables");
    command.add_option("IMAGE", options.image, "The image to read")->required();
    command.add_option("-o,--output", options.output.path, "The file to write, instead of standard output");
    add_sheet_option(command, options.sheet);
    add_format_option(command, options.output.format);
    add_csv_options(command, options.output);
    command.footer(
        "A CSV holds one sheet, that of the players unless --sheet names another; FODS and JSON hold all.\n\n"
        "Examples:\n"
        "  kalcoctl export game.bin -o players.csv\n"
        "  kalcoctl export game.bin --sheet teams --separator ';' --bom -o teams.csv\n"
        "  kalcoctl export game.bin -o game.fods\n"
        "  kalcoctl export game.bin --format json | jq 'select(.sheet == \"bars\")'");
    return command;
}

int run_export(const ExportOptions& options) {
    const TableFormat format = format_of(options.output);
    const CsvForm form = csv_form(options.output, format);
    const DiscBytes disc = read_disc(options.image, "export");
    Tables tables;
    for (const Sheet* sheet : chosen_sheets(options.sheet, format == TableFormat::csv)) {
        tables.push_back(table_of(*sheet, disc));
    }
    write_output(options.output.path, file_of_tables(tables, format, form), std::array{options.image});
    return done;
}

}  // namespace kalco::ctl
