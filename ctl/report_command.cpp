#include "ctl/report_command.h"

#include <array>

#include "ctl/command.h"
#include "ctl/files.h"
#include "ctl/open_image.h"
#include "disc/codec/latin1.h"
#include "disc/codec/utf8.h"
#include "work/report/page.h"
#include "work/report/report.h"

namespace kalco::ctl {
namespace {

/// The name of the file, as UTF-8 whatever its bytes are.
std::string title_of(const std::string& path) {
    const std::string name = path.substr(path.find_last_of('/') + 1);
    return broken_utf8(name) ? utf8_of_latin1(name) : name;
}

}  // namespace

CLI::App& add_report_command(CLI::App& app, ReportOptions& options) {
    CLI::App& command = *app.add_subcommand("report", "Write a page about all teams and players, to be passed on");
    command.add_option("IMAGE", options.image, "The image to read")->required();
    command.add_option("-o,--output", options.output, "The HTML file to write")->required()->type_name("FILE.html");
    command.footer(
        "The page is one file that needs no network: portraits, skills, formations, shirt numbers, set pieces and the\n"
        "clubs' links, with tables to sort and search. It is light or dark as the reader's system is, and prints well."
        "\n\n"
        "Example:\n"
        "  kalcoctl report game.bin -o game.html");
    return command;
}

int run_report(const ReportOptions& options) {
    const Report report = read_report(read_disc(options.image, "report"));
    write_output(options.output, report_page(report, title_of(options.image)), std::array{options.image});
    return done;
}

}  // namespace kalco::ctl
