#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kalco::ctl {

/// The command line: `check IMAGE [--all] [--json]`.
struct CheckOptions {
    std::string image;
    bool all = false;
    bool json = false;
};

CLI::App& add_check_command(CLI::App& app, CheckOptions& options);
int run_check(const CheckOptions& options);

}  // namespace kalco::ctl
