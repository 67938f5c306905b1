#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kalco::ctl {

/// The command line: `repair IMAGE [--all] [--dry-run] [--json]`.
struct RepairOptions {
    std::string image;
    bool all = false;
    bool dry_run = false;
    bool json = false;
};

CLI::App& add_repair_command(CLI::App& app, RepairOptions& options);
int run_repair(const RepairOptions& options);

}  // namespace kalco::ctl
