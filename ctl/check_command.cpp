#include "ctl/check_command.h"

#include <iostream>

#include "ctl/check_report.h"
#include "ctl/command.h"
#include "ctl/open_image.h"
#include "ctl/progress.h"
#include "work/repair.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {
namespace {

constexpr auto check_name = "check";

}  // namespace

CLI::App& add_check_command(CLI::App& app, CheckOptions& options) {
    CLI::App& command = *app.add_subcommand(check_name, "Check the sectors' EDC and parities");
    command.add_option("IMAGE", options.image, "The image to check")->required();
    command.add_flag("--all", options.all, "Every sector, not only the 42 that hold the editor's tables");
    command.add_flag("--json", options.json, "Tell it as JSON, one object a line");
    command.footer("A field is bad when it differs from what repair would write. The status is 1 when one is bad.\n\n"
                   "Examples:\n"
                   "  kalcoctl check game.bin\n"
                   "  kalcoctl check game.bin --all --json");
    return command;
}

int run_check(const CheckOptions& options) {
    Image image(open_to_read);
    open_image(image, options.image, check_name, options.all ? 0 : least_disc_sectors);
    Progress progress(check_name, image.length() / sector_bytes);
    const SectorChoice choice = options.all ? SectorChoice() : sheet_sectors();
    const auto tell = [&](const check::BadSector& bad) {
        progress.hide();
        std::cout << line_of(bad, options.json) << '\n';
    };
    const check::Summary summary = check_image(image, choice, {tell, std::ref(progress)});
    progress.hide();
    std::cout << line_of(summary, options.json) << '\n';
    return summary.bad > 0 ? no : done;
}

}  // namespace kalco::ctl
