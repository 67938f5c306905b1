#include "ctl/demo_command.h"

#include <functional>

#include "ctl/command.h"
#include "ctl/demo/demo_image.h"
#include "ctl/progress.h"

namespace kalco::demo {
CLI::App& add_demo_command(CLI::App& app, DemoOptions& options) {
    CLI::App& command = *app.add_subcommand("demo", "Make a complete image with invented teams and players");
    command.add_option("IMAGE", options.image, "The image to make")->required();
    command.add_option("--seed", options.seed, "Other numbers make other players")->capture_default_str();
    command.add_flag("--force", options.force, "Replace a file of that name");
    return command;
}

int run_demo(const DemoOptions& options) {
    const DemoDisc disc = make_demo_disc(options.seed);
    ctl::Progress progress("demo", disc.sectors());
    write_image(disc, options.image, options.force, std::ref(progress));
    return ctl::done;
}

}  // namespace kalco::demo
