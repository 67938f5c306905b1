#include "ctl/script/script_options.h"

#include <filesystem>
#include <fstream>
#include <iostream>

#include "ctl/script/program_directory.h"
#include "ctl/script/script_runner.h"

namespace kalco::script {

CLI::App& add_script_command(CLI::App& app, ScriptOptions& options) {
    CLI::App& command = *app.add_subcommand("script", "Run user actions from a file and print what a user would see");
    command.add_option("--home", options.home, "Directory of the program for this run (side files lie below it)");
    command.add_option("FILE", options.file, "The script; standard input without it");
    return command;
}

int play_script(const ScriptOptions& options, const std::function<int(std::istream&, ScriptPlatform&)>& play) {
    ScriptPlatform platform(options.home.empty() ? program_directory() : options.home, std::cout);
    if (options.file.empty()) return play(std::cin, platform);
    std::ifstream file(options.file);
    // A directory opens like a file and reads like an empty one.
    if (!file || std::filesystem::is_directory(options.file)) {
        std::cerr << options.file << ": the script can't be read\n";
        return exit_unrunnable;
    }
    return play(file, platform);
}

}  // namespace kalco::script
