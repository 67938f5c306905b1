#include "ctl/repair_command.h"

#include <iostream>

#include "ctl/check_report.h"
#include "ctl/command.h"
#include "ctl/open_image.h"
#include "ctl/progress.h"
#include "work/edit.h"
#include "work/repair.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {
namespace {

constexpr auto repair_name = "repair";

}  // namespace

CLI::App& add_repair_command(CLI::App& app, RepairOptions& options) {
    CLI::App& command = *app.add_subcommand(repair_name, "Renew the sectors' EDC and parities where they don't fit");
    command.add_option("IMAGE", options.image, "The image to repair")->required();
    command.add_flag("--all", options.all, "Every sector, not only the 42 that hold the editor's tables");
    command.add_flag("--dry-run", options.dry_run, "Tell everything, write nothing");
    command.add_flag("--json", options.json, "Tell it as JSON, one object a line");
    command.footer(
        "Some emulators correct sectors as a drive does and take an edit silently back as long as these fields are\n"
        "the old ones. Sectors before the volume descriptor stay as they are, and so do all headers. Nothing else\n"
        "changes, and nothing is written when everything fits.\n\n"
        "Examples:\n"
        "  kalcoctl repair game.bin\n"
        "  kalcoctl repair game.bin --all --dry-run");
    return command;
}

int run_repair(const RepairOptions& options) {
    Edit edit(options.image, options.dry_run);
    open_image(edit.image(), edit.path(), repair_name, options.all ? 0 : least_disc_sectors);
    const SectorChoice choice = options.all ? SectorChoice() : sheet_sectors();
    Repair repair;
    {
        Progress progress(repair_name, edit.image().length() / sector_bytes);
        repair = repair_image(edit.image(), choice, std::ref(progress));
    }
    edit.commit("Settori riparati");
    for (const check::BadSector& renewed : repair.renewed) std::cout << line_of(renewed, options.json) << '\n';
    std::cout << line_of(repair.summary, options.json) << '\n';
    return done;
}

}  // namespace kalco::ctl
