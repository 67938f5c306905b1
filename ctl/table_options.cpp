#include "ctl/table_options.h"

#include <stdexcept>
#include <utility>

namespace kalco::ctl {
namespace {

/// A tab can be typed as \t.
std::string separator_of(const std::string& text) {
    return text == "\\t" ? "\t" : text;
}

}  // namespace

void add_sheet_option(CLI::App& command, std::string& sheet) {
    std::vector<std::string> names;
    for (const Sheet& each : sheets()) names.emplace_back(each.name);
    command.add_option("--sheet", sheet, "Only this sheet")->check(CLI::IsMember(names))->type_name("NAME");
}

void add_format_option(CLI::App& command, std::string& format, std::vector<std::string> others) {
    std::vector<std::string> names = std::move(others);
    for (const std::string_view name : format_names()) names.emplace_back(name);
    command.add_option("--format", format, "The form of what is written")->check(CLI::IsMember(names))->type_name("F");
}

TableFormat format_of(const OutputOptions& options) {
    return format_named(options.format).value_or(format_of_path(options.path));
}

void add_csv_options(CLI::App& command, OutputOptions& options) {
    const auto check = [](const std::string& text) {
        const std::string separator = separator_of(text);
        const bool good = separator.size() == 1 && is_csv_separator(separator.front());
        return good ? std::string() : "no character that can part cells: " + text;
    };
    command.add_option("--separator", options.separator, "Parts the cells of a CSV instead of a comma (\\t: a tab)")
        ->check(check)
        ->type_name("C");
    command.add_flag("--bom", options.bom, "Begin a CSV with a byte order mark, which some spreadsheets want");
}

CsvForm csv_form(const OutputOptions& options, TableFormat format) {
    if (format != TableFormat::csv && (options.bom || !options.separator.empty())) {
        throw std::invalid_argument("--separator and --bom are for CSV only");
    }
    CsvForm form{',', options.bom};
    if (!options.separator.empty()) form.separator = separator_of(options.separator).front();
    return form;
}

std::vector<const Sheet*> chosen_sheets(std::string_view name, bool csv) {
    if (!name.empty()) return {sheet_named(name)};
    if (csv) return {sheet_named(players_sheet)};
    std::vector<const Sheet*> all;
    for (const Sheet& sheet : sheets()) all.push_back(&sheet);
    return all;
}

}  // namespace kalco::ctl
