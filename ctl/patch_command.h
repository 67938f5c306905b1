#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace kalco::ctl {

/// The command line: `patch make ORIGINAL EDITED -o FILE.ppf [--description T] [--force]`, `patch show FILE.ppf [IMAGE]
/// [--json]`, `patch apply IMAGE FILE.ppf [--dry-run] [--keep-undo FILE2.ppf] [--force] [--json]` and
/// `patch undo IMAGE FILE.ppf [--dry-run] [--force] [--json]`.
struct PatchOptions {
    enum class What { make, show, apply, undo } what = What::make;
    std::string image;  ///< ORIGINAL for make; "" for a show without one.
    std::string edited;
    std::string patch;
    std::string description;
    std::string keep_undo;
    bool dry_run = false;
    bool force = false;
    bool json = false;
};

CLI::App& add_patch_command(CLI::App& app, PatchOptions& options);
int run_patch(const PatchOptions& options);

}  // namespace kalco::ctl
