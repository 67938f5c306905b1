#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kalco::ctl {

struct ReportOptions {
    std::string image;
    std::string output;
};

CLI::App& add_report_command(CLI::App& app, ReportOptions& options);
int run_report(const ReportOptions& options);

}  // namespace kalco::ctl
