#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "disc/image/image.h"
#include "editor/editor.h"
#include "editor/window/user.h"
#include "fuzz/input.h"

/// What the fuzzers of handlers stand on: an editor whose image and side files lie in memory, and are put back for each
/// input.
namespace kalco::fuzz {

/// An image of any size that is a few bytes over and over. Only what is written takes room, so that it is new for each
/// input without being made or copied.
class Disc {
public:
    /// Drops what was written.
    void fill(std::string pattern, std::size_t size);

    std::string read(std::size_t offset, std::size_t count) const;
    void write(std::size_t offset, std::string_view bytes);
    std::size_t size() const { return size_; }
    void resize(std::size_t size);

    bool held = false;

private:
    static constexpr std::size_t page_bytes = sector_bytes;

    std::string pattern_{'\0'};
    std::size_t filled_ = 0;  ///< How much of it the pattern still fills.
    std::size_t size_ = 0;
    std::map<std::size_t, std::string> pages_;
};

/// Opens one disc under every path but the empty one (error 75), one that is held not again (error 70).
StorageOpener opener_of(Disc& disc);

/// Side files by their paths.
class MemoryFiles final : public SideFiles {
public:
    void make_directory(const std::string&) override {}
    std::unique_ptr<Reader> read(const std::string& path) override;
    std::unique_ptr<Writer> replace(const std::string& path) override;

    std::map<std::string, std::string> files;
};

/// Answers at once: with the files and answers that an input chose, else with a cancelled dialog and a "no".
class DeskPlatform final : public Platform {
public:
    Answer message(const std::string& text, Icon icon, Buttons buttons) override;
    std::string open_dialog(const std::string& filter, const std::string& initial_directory) override;
    std::string program_directory() const override { return "home"; }
    SideFiles& side_files() const override { return disk; }

    std::deque<Answer> answers;
    std::deque<std::string> choices;
    mutable MemoryFiles disk;
};

/// An editor that is started once, on an empty image, with a tab open.
class Desk : ImageObserver {
public:
    explicit Desk(int tab);

    /// Another image for the next input, and no side file; the window stays as the last input left it.
    void begin(std::string pattern, std::size_t size);
    void click(Control& control) { user::click(form, control); }
    /// A side file with these bytes is the answer of the next dialog.
    void choose_file(std::string bytes);

    /// What was written so far belongs to the image that an input begins with.
    void forget_writes() { writes_.clear(); }
    /// Each write lies in one of the places.
    bool wrote_within(std::span<const Piece> places) const;
    /// The lowest position of a write; one beyond every image without any.
    ImagePos first_written() const;

    Disc disc;
    DeskPlatform platform;
    Editor editor;
    frmKalco& form = editor.form;

private:
    void written(ImagePos position, std::string_view bytes) override;

    std::vector<Piece> writes_;
};

/// The same for the fifth tab, on an image of fives whose bars are read again for each input.
class FormationDesk : public Desk {
public:
    static constexpr std::size_t image_bytes = 2'330'000;

    FormationDesk() : Desk(tab::formations) {}
    void begin();
};

}  // namespace kalco::fuzz
