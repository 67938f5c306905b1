#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>

namespace kalco::demo {

/// The command line: `demo IMAGE [--seed N] [--force]`.
struct DemoOptions {
    std::string image;
    std::uint64_t seed = 1;
    bool force = false;
};

/// Declares the sub-command; its options must outlive the parsing.
CLI::App& add_demo_command(CLI::App& app, DemoOptions& options);

/// Makes the image. Throws when it can't; the reason names the file.
int run_demo(const DemoOptions& options);

}  // namespace kalco::demo
