#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "work/import_plan.h"

namespace kalco::ctl {

/// The command line: `import IMAGE FILE [--sheet NAME] [--dry-run] [--keep-undo F] [--force] [--json]`.
struct ImportCommandOptions {
    std::string image;
    std::string file;
    std::string sheet;
    std::string keep_undo;
    bool dry_run = false;
    bool force = false;
    bool json = false;
};

CLI::App& add_import_command(CLI::App& app, ImportCommandOptions& options);
int run_import(const ImportCommandOptions& options);

}  // namespace kalco::ctl
