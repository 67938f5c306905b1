#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kalco::ctl {

/// The command line: `diff A B [--sheet NAME] [--format text|csv|fods|json] [--bytes]`.
struct DiffOptions {
    std::string before;
    std::string after;
    std::string sheet;
    std::string format = "text";
    bool bytes = false;
};

CLI::App& add_diff_command(CLI::App& app, DiffOptions& options);
int run_diff(const DiffOptions& options);

}  // namespace kalco::ctl
