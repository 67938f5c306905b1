#include "ctl/script/script_options.h"

#include <iostream>
#include <sstream>

#include "ctl/command.h"
#include "ctl/script/program_directory.h"
#include "ctl/script/script_source.h"

namespace kalco::script {

CLI::App& add_script_command(CLI::App& app, ScriptOptions& options) {
    CLI::App& command = *app.add_subcommand("script", "Run user actions from a file and print what a user would see");
    command.add_option("--home", options.home, "Directory of the program for this run (side files lie below it)");
    command.add_option("FILE", options.file, "The script; standard input without it or as -");
    return command;
}

int play_script(const ScriptOptions& options, const Player& play) {
    const std::string home = options.home ? *options.home : program_directory();
    require_writable_directory(home);
    ScriptSource source(options.file);
    ScriptPlatform platform(home, std::cout);
    std::ostringstream complaints;
    const int status = play(source.stream(), platform, complaints);
    std::istringstream lines(complaints.str());
    for (std::string line; std::getline(lines, line);) ctl::complain("script", source.name() + ": " + line);
    return status;
}

}  // namespace kalco::script
