#include "ctl/demo_command.h"

#include <charconv>
#include <string>
#include <system_error>

#include "ctl/command.h"
#include "ctl/demo/demo_image.h"
#include "ctl/interruption.h"
#include "ctl/printable.h"
#include "ctl/progress.h"

namespace kalco::demo {
namespace {

/// A decimal number and nothing else: no sign, no blanks, no other base.
std::uint64_t seed_of(const std::string& text) {
    std::uint64_t seed = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, seed);
    if (failure != std::errc() || rest != end) {
        throw CLI::ValidationError("--seed", "no number from 0 to 18446744073709551615: " + ctl::printable(text, 80));
    }
    return seed;
}

}  // namespace

CLI::App& add_demo_command(CLI::App& app, DemoOptions& options) {
    CLI::App& command = *app.add_subcommand("demo", "Make a complete image with invented teams and players");
    command.add_option("IMAGE", options.image, "The image to make")->required();
    const auto take_seed = [&options](const std::string& text) { options.seed = seed_of(text); };
    command.add_option_function<std::string>("--seed", take_seed, "Other numbers make other players (0 to 2^64-1)")
        ->default_str(std::to_string(options.seed));
    command.add_flag("--force", options.force, "Replace a file of that name");
    return command;
}

int run_demo(const DemoOptions& options) {
    const ctl::Interruption interruption;
    const DemoDisc disc = make_demo_disc(options.seed);
    ctl::Progress progress("demo", disc.sectors());
    write_image(disc, options.image, options.force, [&](std::uint32_t done) {
        interruption.check();
        progress(done);
    });
    return ctl::done;
}

}  // namespace kalco::demo
