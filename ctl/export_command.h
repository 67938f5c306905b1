#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "ctl/table_options.h"

namespace kalco::ctl {

/// The command line: `export IMAGE [-o FILE] [--sheet NAME] [--format csv|fods|json] [--separator C] [--bom]`.
struct ExportOptions {
    std::string image;
    std::string sheet;
    OutputOptions output;
};

CLI::App& add_export_command(CLI::App& app, ExportOptions& options);
int run_export(const ExportOptions& options);

}  // namespace kalco::ctl
