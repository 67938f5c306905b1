#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "disc/image/image.h"

namespace kalco {

/// The saves of a run, in memory, to be taken back and made again one by one. Each of these is a save too.
class History final : private ImageObserver {
public:
    /// The oldest saves are forgotten when all of them together are larger.
    static constexpr std::size_t most_bytes = 64U << 20U;

    explicit History(Image& image, std::size_t limit = most_bytes) : image_(image), limit_(limit) {
        image.add_observer(*this);
    }
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    /// What undo() would take back and redo() make again; nullptr when there is nothing.
    const std::string* undo_text() const { return undone_ == saves_.size() ? nullptr : &saves_[last()].what; }
    const std::string* redo_text() const { return undone_ == 0 ? nullptr : &saves_[last() + 1].what; }

    /// What the saves were, the oldest first, and how many of them stand; those behind are taken back.
    std::vector<std::string> texts() const;
    std::size_t size() const { return saves_.size(); }
    std::size_t standing() const { return saves_.size() - undone_; }

    /// Takes back the last save that still stands, and gives what it was; nothing when there is none. Everything is
    /// forgotten when another program has changed one of its sectors meanwhile. Errors as for Image::commit; the
    /// history then stays as it was.
    std::optional<std::string> undo();
    /// Makes the save again that was taken back last.
    std::optional<std::string> redo();

    /// Forgets everything: another image is open.
    void forget();

    /// Raised when undo_text() or redo_text() may have changed.
    std::function<void()> changed;

private:
    /// The last save that stands; one below 0 when none does.
    std::size_t last() const { return saves_.size() - undone_ - 1; }
    std::optional<std::string> go(bool back);
    void committed(const Save& save) override;
    void announce() const {
        if (changed) changed();
    }

    Image& image_;
    std::size_t limit_;
    std::deque<Save> saves_;
    std::size_t undone_ = 0;  ///< How many at the end are taken back.
    std::size_t bytes_ = 0;
    std::optional<bool> going_;  ///< On the way back or forth.
};

}  // namespace kalco
