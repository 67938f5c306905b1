#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "ctl/table_formats.h"
#include "work/sheets/sheets.h"

/// What the commands that read and write tables have in common.
namespace kalco::ctl {

/// `--sheet NAME`; an unknown name is wrong usage.
void add_sheet_option(CLI::App& command, std::string& sheet);

/// Where a table goes, and in which form.
struct OutputOptions {
    std::string path;    ///< "" for standard output.
    std::string format;  ///< "" when it follows the path.
    std::string separator;
    bool bom = false;
};

/// `--format`, one of the formats' names and of those that the command has besides.
void add_format_option(CLI::App& command, std::string& format, std::vector<std::string> others = {});
/// The given format, else that of the path.
TableFormat format_of(const OutputOptions& options);

/// `--separator C` and `--bom`.
void add_csv_options(CLI::App& command, OutputOptions& options);
/// The form that the options tell; only CSV has one, and for another format they are wrong usage.
CsvForm csv_form(const OutputOptions& options, TableFormat format);

/// The sheets that a command is about: the named one, else all; CSV holds one, the players unless another is named.
std::vector<const Sheet*> chosen_sheets(std::string_view name, bool csv);

}  // namespace kalco::ctl
