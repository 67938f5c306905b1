#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "ctl/check_command.h"
#include "ctl/command.h"
#include "ctl/demo_command.h"
#include "ctl/diff_command.h"
#include "ctl/export_command.h"
#include "ctl/find_command.h"
#include "ctl/import_command.h"
#include "ctl/interruption.h"
#include "ctl/patch_command.h"
#include "ctl/repair_command.h"
#include "ctl/report_command.h"
#include "ctl/script/script_options.h"
#include "ctl/script/script_runner.h"
#include "disc/image/process.h"
#include "editor/editor.h"

namespace kalco {
namespace {

int run_on_model(std::istream& script, script::ScriptPlatform& platform, std::ostream& complaints) {
    Editor editor(platform);
    script::ModelStage stage(editor.form);
    return script::run_script(script, stage, platform, complaints);
}

/// The commands with their options, declared to the parser.
class Commands {
public:
    explicit Commands(CLI::App& app) {
        add(script::add_script_command(app, script_), [this] { return script::play_script(script_, run_on_model); });
        add(demo::add_demo_command(app, demo_), [this] { return demo::run_demo(demo_); });
        add(ctl::add_export_command(app, export_), [this] { return ctl::run_export(export_); });
        add(ctl::add_import_command(app, import_), [this] { return ctl::run_import(import_); });
        add(ctl::add_diff_command(app, diff_), [this] { return ctl::run_diff(diff_); });
        add(ctl::add_find_command(app, find_), [this] { return ctl::run_find(find_); });
        add(ctl::add_report_command(app, report_), [this] { return ctl::run_report(report_); });
        add(ctl::add_check_command(app, check_), [this] { return ctl::run_check(check_); });
        add(ctl::add_repair_command(app, repair_), [this] { return ctl::run_repair(repair_); });
        add(ctl::add_patch_command(app, patch_), [this] { return ctl::run_patch(patch_); });
    }
    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;

    /// Runs the one that was parsed.
    int run() const {
        for (const Entry& entry : entries_) {
            if (entry.command->parsed()) return run(entry);
        }
        return ctl::done;
    }

private:
    struct Entry {
        const CLI::App* command;
        std::function<int()> run;
    };

    void add(const CLI::App& command, std::function<int()> run) { entries_.push_back({&command, std::move(run)}); }

    static int run(const Entry& entry) {
        try {
            return entry.run();
        } catch (const std::exception& failure) {
            std::string name = entry.command->get_name();
            for (const CLI::App* below : entry.command->get_subcommands()) name += ' ' + below->get_name();
            ctl::complain(name, failure.what());
            return ctl::trouble;
        }
    }

    std::vector<Entry> entries_;
    script::ScriptOptions script_;
    demo::DemoOptions demo_;
    ctl::ExportOptions export_;
    ctl::ImportCommandOptions import_;
    ctl::DiffOptions diff_;
    ctl::FindCommandOptions find_;
    ctl::ReportOptions report_;
    ctl::CheckOptions check_;
    ctl::RepairOptions repair_;
    ctl::PatchOptions patch_;
};

int run(int argc, char** argv) {
    CLI::App app("The companion of Kalco, the editor of a football game's CD image", "kalcoctl");
    app.require_subcommand(1);
    app.set_version_flag("--version", KALCO_VERSION);
    const Commands commands(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& failure) {
        // --help and --version end the parsing too, but well.
        return app.exit(failure) == 0 ? ctl::done : ctl::trouble;
    }
    return commands.run();
}

}  // namespace
}  // namespace kalco

int main(int argc, char** argv) {
    kalco::guard_process();
    // A reader that goes away is told as lost output, when the work is done.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    int status = kalco::ctl::trouble;
    try {
        status = kalco::run(argc, argv);
    } catch (const kalco::ctl::Interrupted& interrupted) {
        static_cast<void>(std::signal(interrupted.signal, SIG_DFL));
        static_cast<void>(std::raise(interrupted.signal));
    } catch (const std::exception& failure) {
        static_cast<void>(std::fprintf(stderr, "kalcoctl: %s\n", failure.what()));
    }
    if (kalco::ctl::output_arrived()) return status;
    static_cast<void>(std::fputs("kalcoctl: standard output can't be written\n", stderr));
    return kalco::ctl::trouble;
}
