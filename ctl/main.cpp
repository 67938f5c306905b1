#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "ctl/demo_command.h"
#include "ctl/script/script_options.h"
#include "ctl/script/script_runner.h"
#include "editor/editor.h"

namespace {

int run_on_model(std::istream& script, kalco::script::ScriptPlatform& platform) {
    kalco::Editor editor(platform);
    kalco::script::ModelStage stage(editor.form);
    return kalco::script::run_script(script, stage, platform, std::cout, std::cerr);
}

int run(int argc, char** argv) {
    CLI::App app("The companion of Kalco, the editor of a football game's CD image", "kalcoctl");
    app.require_subcommand(1);
    app.set_version_flag("--version", KALCO_VERSION);
    kalco::script::ScriptOptions script_options;
    const CLI::App& script = kalco::script::add_script_command(app, script_options);
    kalco::demo::DemoOptions demo_options;
    const CLI::App& demo = kalco::demo::add_demo_command(app, demo_options);
    CLI11_PARSE(app, argc, argv);
    if (script.parsed()) return kalco::script::play_script(script_options, run_on_model);
    if (demo.parsed()) return kalco::demo::make_demo(demo_options);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& failure) {
        static_cast<void>(std::fprintf(stderr, "kalcoctl: %s\n", failure.what()));
        return EXIT_FAILURE;
    }
}
