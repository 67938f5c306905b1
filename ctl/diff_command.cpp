#include "ctl/diff_command.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "ctl/command.h"
#include "ctl/open_image.h"
#include "ctl/progress.h"
#include "ctl/table_json.h"
#include "ctl/table_options.h"
#include "work/other_bytes.h"
#include "work/sheet_tables.h"

namespace kalco::ctl {
namespace {

constexpr auto diff_name = "diff";
constexpr auto text_format = "text";

void write_table(const std::vector<const Sheet*>& sheets, const std::vector<std::vector<FieldChange>>& changes,
                 TableFormat format) {
    Tables tables;
    for (std::size_t i = 0; i < sheets.size(); ++i) tables.push_back(table_of(*sheets[i], changes[i]));
    std::cout << file_of_tables(tables, format);
}

void write_change(const FieldChange& change, bool json) {
    if (json) {
        std::cout << json_of_change(change).dump() << '\n';
    } else {
        std::cout << line_of(change) << '\n';
    }
}

void write_run(const ByteRun& run, bool json) {
    if (json) {
        std::cout << Json{{"position", run.position}, {"bytes", run.bytes}}.dump() << '\n';
    } else {
        std::cout << "position " << run.position << ": " << run.bytes << " bytes\n";
    }
}

}  // namespace

CLI::App& add_diff_command(CLI::App& app, DiffOptions& options) {
    CLI::App& command = *app.add_subcommand(diff_name, "Tell what two images differ in");
    command.add_option("A", options.before, "The image to start from")->required();
    command.add_option("B", options.after, "The image to compare it with")->required();
    add_sheet_option(command, options.sheet);
    add_format_option(command, options.format, {text_format});
    command.add_flag("--bytes", options.bytes, "Also tell what differs outside all fields, EDC and parities apart");
    command.footer(
        "As a table it is what `import A` takes to make B's data of A's. A CSV holds one sheet, that of the players\n"
        "unless --sheet names another. The exit status is 1 when something differs.\n\n"
        "Examples:\n"
        "  kalcoctl diff old.bin new.bin\n"
        "  kalcoctl diff old.bin new.bin --sheet players --format csv > players.csv\n"
        "  kalcoctl diff old.bin new.bin --bytes");
    return command;
}

int run_diff(const DiffOptions& options) {
    const auto format = format_named(options.format);
    const bool as_table = format && *format != TableFormat::json;
    if (as_table && options.bytes) throw std::invalid_argument("--bytes is for text and JSON only");
    const bool json = format == TableFormat::json;

    Image a(open_to_read);
    Image b(open_to_read);
    open_image(a, options.before, diff_name);
    open_image(b, options.after, diff_name);
    const DiscBytes before = read_sheets(a);
    const DiscBytes after = read_sheets(b);
    const std::vector<const Sheet*> sheets = chosen_sheets(options.sheet, format == TableFormat::csv);
    std::vector<std::vector<FieldChange>> changes;
    bool same = true;
    for (const Sheet* sheet : sheets) {
        changes.push_back(changes_between(before, after, *sheet));
        same = same && changes.back().empty();
    }
    if (as_table) {
        write_table(sheets, changes, *format);
        return same ? done : no;
    }
    for (const auto& of_sheet : changes) {
        for (const FieldChange& change : of_sheet) write_change(change, json);
    }
    if (!options.bytes) return same ? done : no;
    const std::vector<ByteRun> runs = [&] {
        Progress progress(diff_name, std::max(a.length(), b.length()));
        return other_differences(a, b, std::ref(progress));
    }();
    for (const ByteRun& run : runs) write_run(run, json);
    return same && runs.empty() ? done : no;
}

}  // namespace kalco::ctl
