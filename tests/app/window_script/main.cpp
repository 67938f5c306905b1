// window_script script [--home DIR] [FILE]: what kalcoctl script does, on the real window.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <iostream>

#include "app/support/test_window.h"
#include "app/window_script/window_stage.h"
#include "ctl/script/script_options.h"
#include "ctl/script/script_runner.h"

namespace {

int run_on_window(std::istream& script, kalco::script::ScriptPlatform& platform, std::ostream& complaints) {
    kalco::Editor editor(platform);
    kalco::test::WindowStage stage(editor.form);
    return kalco::script::run_script(script, stage, platform, complaints);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    kalco::test::prepare_application();
    CLI::App app("Runs user actions on the real window", "window_script");
    app.require_subcommand(1);
    kalco::script::ScriptOptions options;
    kalco::script::add_script_command(app, options);
    CLI11_PARSE(app, argc, argv);
    return kalco::script::play_script(options, run_on_window);
}
