#include "disc/image/history.h"

namespace kalco {
namespace {

std::size_t size_of(const Save& save) {
    std::size_t bytes = sizeof(Save) + save.what.size();
    for (const SectorChange& change : save.sectors) {
        bytes += sizeof(SectorChange) + change.before.size() + change.after.size();
    }
    return bytes;
}

}  // namespace

std::vector<std::string> History::texts() const {
    std::vector<std::string> texts;
    texts.reserve(saves_.size());
    for (const Save& save : saves_) texts.push_back(save.what);
    return texts;
}

std::optional<std::string> History::undo() {
    return undo_text() == nullptr ? std::nullopt : go(true);
}

std::optional<std::string> History::redo() {
    return redo_text() == nullptr ? std::nullopt : go(false);
}

std::optional<std::string> History::go(bool back) {
    const Save& save = saves_[back ? last() : last() + 1];
    const bool held = back ? image_.take_back(save) : image_.make_again(save);
    if (!held) {
        forget();
        return std::nullopt;
    }
    going_ = back;
    const std::string what = save.what;
    try {
        image_.commit((back ? "Annullato: " : "Ripetuto: ") + what);
    } catch (...) {
        going_.reset();
        throw;
    }
    going_.reset();
    return what;
}

void History::forget() {
    saves_.clear();
    undone_ = bytes_ = 0;
    announce();
}

void History::committed(const Save& save) {
    if (going_) {
        *going_ ? ++undone_ : --undone_;
        return announce();
    }
    for (; undone_ > 0; --undone_) {
        bytes_ -= size_of(saves_.back());
        saves_.pop_back();
    }
    // One that is too large leaves nothing that could be taken back, and is not copied for that.
    if (size_of(save) > limit_) return forget();
    saves_.push_back(save);
    bytes_ += size_of(save);
    while (bytes_ > limit_) {
        bytes_ -= size_of(saves_.front());
        saves_.pop_front();
    }
    announce();
}

}  // namespace kalco
