#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "work/find.h"

namespace kalco::ctl {

/// The command line: `find IMAGE [TEXT] [--where EXPRESSION] [--sort FIELD] [--format text|csv|json]`.
struct FindCommandOptions {
    std::string image;
    FindOptions search;
    std::string format = "text";
};

CLI::App& add_find_command(CLI::App& app, FindCommandOptions& options);
int run_find(const FindCommandOptions& options);

}  // namespace kalco::ctl
