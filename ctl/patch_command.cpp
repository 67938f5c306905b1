#include "ctl/patch_command.h"

#include <functional>
#include <iostream>
#include <memory>

#include "ctl/command.h"
#include "ctl/files.h"
#include "ctl/open_image.h"
#include "ctl/patch_file.h"
#include "ctl/patch_words.h"
#include "ctl/progress.h"
#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "work/edit.h"
#include "work/patch.h"
#include "work/patch_make.h"

namespace kalco::ctl {
namespace {

using What = PatchOptions::What;

/// A patch is read whole: it is checked whole before anything is written.
constexpr std::size_t most_patch_bytes = std::size_t{1} << 30;

std::string command_name(What what) {
    switch (what) {
        case What::make: return "patch make";
        case What::show: return "patch show";
        case What::apply: return "patch apply";
        case What::undo: break;
    }
    return "patch undo";
}

/// PpfError knows no path.
template <typename Steps>
auto with_path(const std::string& path, Steps steps) {
    try {
        return steps();
    } catch (const PpfError& failure) {
        throw FileError(path, failure.what());
    }
}

std::unique_ptr<const PpfPatch> read_patch(const std::string& path) {
    return with_path(path, [&] { return std::make_unique<const PpfPatch>(read_file(path, most_patch_bytes)); });
}

/// Opens both, which must be raw images of one length.
void open_both(Image& original, Image& edited, const PatchOptions& options) {
    open_image(original, options.image, command_name(options.what));
    open_image(edited, options.edited, command_name(options.what));
    if (original.length() != edited.length()) {
        throw FileError(options.edited, "its length is not that of " + options.image);
    }
}

int make(const PatchOptions& options) {
    if (!options.force) refuse_patch_beside(options.patch, {options.image, options.edited});
    Image original(open_to_read);
    Image edited(open_to_read);
    open_both(original, edited, options);
    const std::vector<std::string> images{options.image, options.edited};
    NewFile file(output_target(options.patch, images));
    Progress progress(command_name(options.what), original.length());
    const PatchSize size = make_patch(
        original, edited, options.description, [&file](std::string_view bytes) { file.write(bytes); },
        std::ref(progress));
    progress.hide();
    if (size.records == 0) {
        complain(command_name(options.what), "the images are the same: there is nothing to make a patch of");
        return no;
    }
    file.finish();
    std::cout << options.patch << ": " << size.records << " records, " << size.bytes << " bytes\n";
    return done;
}

/// The lines or objects of what an image's buffer would change.
void tell_changes(const PatchWords& words, bool json) {
    std::cout << (json ? words.json() : words.lines());
}

int show_alone(const PatchOptions& options, const PpfPatch& patch) {
    std::cout << (options.json ? json_of_patch(patch) : text_of_patch(patch));
    return done;
}

void complain_of(const PatchOptions& options, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) complain(command_name(options.what), options.patch + ": " + line);
}

constexpr std::string_view another_image = "it was made for another image: the block that it checks is not the same";

int show_for(const PatchOptions& options, const PpfPatch& patch) {
    Image image(open_to_read);
    open_image(image, options.image, command_name(options.what));
    const bool fits = block_fits(image, patch);
    if (!fits) complain_of(options, {std::string(another_image)});
    PatchWords words(image);
    const auto conflicts = with_path(options.patch, [&] { return write_patch(image, patch, PatchWay::apply); });
    words.see(image);
    image.discard();
    tell_changes(words, options.json);
    complain_of(options, words.of_conflicts(conflicts));
    return fits && conflicts.empty() ? done : no;
}

int change(const PatchOptions& options, const PpfPatch& patch) {
    const bool back = options.what == What::undo;
    if (!options.keep_undo.empty() && !options.force) refuse_patch_beside(options.keep_undo, {options.image});
    Edit edit(options.image, options.dry_run);
    Image& image = edit.image();
    open_image(image, options.image, command_name(options.what));
    UndoFile undo(options.keep_undo, edit);
    if (!options.force && !block_fits(image, patch)) throw FileError(options.patch, std::string(another_image));
    PatchWords words(image);
    const auto conflicts = with_path(
        options.patch, [&] { return write_patch(image, patch, back ? PatchWay::take_back : PatchWay::apply); });
    if (!conflicts.empty()) {
        complain_of(options, words.of_conflicts(conflicts));
        return no;
    }
    words.see(image);
    const bool anything = !image.changes().empty();
    undo.commit((back ? "Patch tolta: " : "Patch: ") + options.patch);
    tell_changes(words, options.json);
    if (!anything && !options.json) {
        std::cout << (back ? "nothing to take back: the patch is not applied\n"
                           : "nothing to do: the patch is applied already\n");
    }
    return done;
}

}  // namespace

CLI::App& add_patch_command(CLI::App& app, PatchOptions& options) {
    CLI::App& patch = *app.add_subcommand("patch", "Make, show, apply and take back PPF patches");
    patch.require_subcommand(1);
    const auto add = [&](const char* name, What what, const char* about) -> CLI::App& {
        CLI::App& command = *patch.add_subcommand(name, about);
        command.parse_complete_callback([&options, what] { options.what = what; });
        return command;
    };
    const auto add_file = [&](CLI::App& command) {
        command.add_option("FILE.ppf", options.patch, "The patch: PPF 1.0, 2.0 or 3.0")->required();
    };
    const auto add_json = [&](CLI::App& command) {
        command.add_flag("--json", options.json, "Tell the changes as JSON, one a line");
    };

    CLI::App& make = add("make", What::make, "Write a patch from one image to another");
    make.add_option("ORIGINAL", options.image, "The image that the patch is for")->required();
    make.add_option("EDITED", options.edited, "The image that it makes of it")->required();
    make.add_option("-o", options.patch, "The patch to write")->required()->type_name("FILE.ppf");
    make.add_option("--description", options.description, "Up to 50 bytes that readers show");
    make.add_flag("--force", options.force, "Also under an image's own name, which emulators load by themselves");

    CLI::App& show = add("show", What::show, "Tell what a patch is, or what it would change in an image");
    add_file(show);
    show.add_option("IMAGE", options.image, "Tell what it would change here");
    add_json(show);

    CLI::App& apply = add("apply", What::apply, "Change an image as a patch says");
    apply.add_option("IMAGE", options.image, "The image to change")->required();
    add_file(apply);
    apply.add_flag("--dry-run", options.dry_run, "Tell everything, write nothing");
    apply.add_option("--keep-undo", options.keep_undo, "Also make a patch that takes this back")
        ->type_name("FILE2.ppf");
    apply.add_flag("--force", options.force, "Also to an image that the patch was not made for");
    add_json(apply);

    CLI::App& undo = add("undo", What::undo, "Take a patch back");
    undo.add_option("IMAGE", options.image, "The image to change")->required();
    add_file(undo);
    undo.add_flag("--dry-run", options.dry_run, "Tell everything, write nothing");
    undo.add_flag("--force", options.force, "Also from an image that the patch was not made for");
    add_json(undo);

    patch.footer("Examples:\n"
                 "  kalcoctl patch make original.bin edited.bin -o season.ppf --description 'Rosters of autumn'\n"
                 "  kalcoctl patch show season.ppf game.bin\n"
                 "  kalcoctl patch apply game.bin season.ppf --dry-run\n"
                 "  kalcoctl patch undo game.bin season.ppf");
    return patch;
}

int run_patch(const PatchOptions& options) {
    if (options.what == What::make) return make(options);
    const auto patch = read_patch(options.patch);
    if (options.what != What::show) return change(options, *patch);
    return options.image.empty() ? show_alone(options, *patch) : show_for(options, *patch);
}

}  // namespace kalco::ctl
