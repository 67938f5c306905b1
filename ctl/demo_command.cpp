#include "ctl/demo_command.h"

#include <chrono>
#include <iostream>

#include "ctl/command.h"
#include "ctl/demo/demo_image.h"

namespace kalco::demo {
namespace {

/// Tells how far the writing is, but only when it takes so long that someone may wonder.
class SlowProgress {
public:
    explicit SlowProgress(std::uint32_t sectors) : sectors_(sectors) {}

    void operator()(std::uint32_t done) {
        const Clock::time_point now = Clock::now();
        if (now < next_) return;
        next_ = now + std::chrono::seconds(1);
        std::cerr << "kalcoctl demo: " << 100ULL * done / sectors_ << " %\n";
    }

private:
    using Clock = std::chrono::steady_clock;
    std::uint32_t sectors_;
    Clock::time_point next_ = Clock::now() + std::chrono::seconds(2);
};

}  // namespace

CLI::App& add_demo_command(CLI::App& app, DemoOptions& options) {
    CLI::App& command = *app.add_subcommand("demo", "Make a complete image with invented teams and players");
    command.add_option("IMAGE", options.image, "The image to make")->required();
    command.add_option("--seed", options.seed, "Other numbers make other players")->capture_default_str();
    command.add_flag("--force", options.force, "Replace a file of that name");
    return command;
}

int run_demo(const DemoOptions& options) {
    const DemoDisc disc = make_demo_disc(options.seed);
    write_image(disc, options.image, options.force, SlowProgress(disc.sectors()));
    return ctl::done;
}

}  // namespace kalco::demo
