#include "ctl/import_command.h"

#include <iostream>

#include "ctl/command.h"
#include "ctl/open_image.h"
#include "ctl/patch_file.h"
#include "ctl/table_formats.h"
#include "ctl/table_json.h"
#include "ctl/table_options.h"
#include "work/edit.h"

namespace kalco::ctl {
namespace {

constexpr std::string_view import_name = "import";

void complain_of(const std::string& file, const TableMistake& mistake) {
    std::string place = file;
    if (mistake.row > 0) place += ':' + std::to_string(mistake.row) + ':' + mistake.column;
    complain(import_name, place + ": " + mistake.what);
}

}  // namespace

CLI::App& add_import_command(CLI::App& app, ImportCommandOptions& options) {
    CLI::App& command = *app.add_subcommand(std::string(import_name), "Take tables into the image");
    command.add_option("IMAGE", options.image, "The image to change")->required();
    command.add_option("FILE", options.file, "CSV, FODS or JSON, as export and diff write them")->required();
    add_sheet_option(command, options.sheet);
    command.add_flag("--dry-run", options.dry_run, "Tell everything, write nothing");
    command.add_option("--keep-undo", options.keep_undo, "Also make a patch that takes the import back")
        ->type_name("FILE.ppf");
    command.add_flag("--force", options.force, "Go on where `rev` tells that someone else changed a record");
    command.add_flag("--json", options.json, "Tell the changes as JSON, one a line");
    command.footer(
        "Rows are found by id and columns by name; what the file lacks stays as it is, and so does a field with an\n"
        "empty cell. Everything is checked before anything is written. A CSV is the sheet of the players unless "
        "--sheet\n"
        "names another.\n\n"
        "Examples:\n"
        "  kalcoctl import game.bin players.csv --dry-run\n"
        "  kalcoctl import game.bin players.csv --keep-undo before.ppf\n"
        "  kalcoctl import game.bin teams.csv --sheet teams");
    return command;
}

int run_import(const ImportCommandOptions& options) {
    Tables tables;
    try {
        tables = read_tables(options.file);
    } catch (const TableError& error) {
        complain_of(options.file, error.mistake());
        return no;
    }
    if (!options.keep_undo.empty() && !options.force) refuse_patch_beside(options.keep_undo, {options.image});
    Edit edit(options.image, options.dry_run);
    open_image(edit.image(), edit.path(), import_name);
    UndoFile undo(options.keep_undo, edit);
    const DiscBytes before = read_sheets(edit.image());
    const ImportPlan plan = plan_import(before, tables, {options.sheet, options.force});
    for (const TableMistake& mistake : plan.mistakes) complain_of(options.file, mistake);
    if (!plan.mistakes.empty()) return no;
    for (const DiscBytes::Run& run : differences(before, plan.after)) edit.image().write(run.position, run.bytes);
    undo.commit("Importazione: " + options.file);
    for (const FieldChange& change : plan.changes) {
        if (options.json) {
            std::cout << json_of_change(change).dump() << '\n';
        } else {
            std::cout << line_of(change) << '\n';
        }
    }
    return done;
}

}  // namespace kalco::ctl
