#include "disc/image/journal_format.h"

#include <algorithm>

#include "disc/image/crc32.h"

namespace kalco::journal {
namespace {

constexpr std::string_view tag = "KLJ1";
constexpr std::size_t contents_offset = 16;
constexpr std::size_t checksum_offset = block_bytes - 4;
constexpr std::size_t contents_bytes = checksum_offset - contents_offset;
constexpr std::size_t run_bytes = 128 * block_bytes;
constexpr std::int64_t end_mark = -1;

void append_number(std::string& text, std::uint64_t value, int bytes) {
    for (int k = 0; k < bytes; ++k) text += static_cast<char>(value >> (8 * k) & 0xFFU);
}

std::uint64_t number_at(std::string_view bytes, std::size_t place, int count) {
    std::uint64_t value = 0;
    for (int k = count - 1; k >= 0; --k) {
        value = value << 8 | static_cast<unsigned char>(bytes[place + static_cast<std::size_t>(k)]);
    }
    return value;
}

std::string block_head(std::uint64_t number, std::uint64_t random) {
    std::string head(tag);
    append_number(head, number, 4);
    append_number(head, random, 8);
    return head;
}

bool all_zero(std::string_view bytes) {
    return bytes.find_first_not_of('\0') == std::string_view::npos;
}

/// Cuts contents into blocks.
class BlockWriter {
public:
    using Sink = std::function<void(std::string_view)>;

    BlockWriter(std::uint64_t random, const Sink& sink) : random_(random), sink_(sink) {}

    void put_number(std::int64_t value, int bytes) {
        std::string text;
        append_number(text, static_cast<std::uint64_t>(value), bytes);
        put(text);
    }
    void put(std::string_view bytes) {
        while (!bytes.empty()) {
            if (block_.empty()) block_ = block_head(number_++, random_);
            const std::size_t count = std::min(bytes.size(), checksum_offset - block_.size());
            block_ += bytes.substr(0, count);
            bytes.remove_prefix(count);
            if (block_.size() == checksum_offset) finish_block();
        }
    }
    void finish() {
        if (!block_.empty()) {
            block_.resize(checksum_offset, '\0');
            finish_block();
        }
        if (!run_.empty()) sink_(run_);
    }

private:
    void finish_block() {
        append_number(block_, crc32(block_), 4);
        run_ += block_;
        block_.clear();
        if (run_.size() < run_bytes) return;
        sink_(run_);
        run_.clear();
    }

    std::uint64_t random_;
    const Sink& sink_;
    std::uint64_t number_ = 0;
    std::string block_;
    std::string run_;
};

/// Takes a journal's blocks from the file, one after the other.
class BlockReader {
public:
    enum class Kind { whole, blank, cut, foreign, none };

    explicit BlockReader(const Reader::Source& source) : source_(source) {}

    Kind next() {
        if (place_ == run_.size()) {
            run_ = source_(offset_, run_bytes);
            offset_ += static_cast<std::int64_t>(run_.size());
            place_ = 0;
        }
        block_ = std::string_view(run_).substr(place_, block_bytes);
        place_ += block_.size();
        const Kind kind = block_.empty() ? Kind::none : kind_of_block();
        ++number_;
        return kind;
    }

    /// The contents of a whole block.
    std::string_view contents() const { return block_.substr(contents_offset, contents_bytes); }

private:
    Kind kind_of_block() {
        if (all_zero(block_)) return Kind::blank;
        if (block_.size() < block_bytes) return is_begin_of_block() ? Kind::cut : Kind::foreign;
        if (!random_known_) random_ = number_at(block_, 8, 8);
        random_known_ = true;
        if (!block_.starts_with(block_head(number_, random_))) return Kind::foreign;
        if (number_at(block_, checksum_offset, 4) != crc32(block_.substr(0, checksum_offset))) return Kind::foreign;
        return Kind::whole;
    }
    bool is_begin_of_block() const {
        const std::string head = block_head(number_, random_);
        const std::size_t known = random_known_ ? head.size() : head.size() - 8;
        const std::size_t count = std::min(known, block_.size());
        return block_.substr(0, count) == std::string_view(head).substr(0, count);
    }

    const Reader::Source& source_;
    std::string run_;
    std::size_t place_ = 0;
    std::int64_t offset_ = 0;
    std::string_view block_;
    std::uint64_t number_ = 0;
    std::uint64_t random_ = 0;
    bool random_known_ = false;
};

/// What the blocks are, whatever their contents.
State state_of_blocks(const Reader::Source& source) {
    using Kind = BlockReader::Kind;
    BlockReader blocks(source);
    Kind kind = blocks.next();
    State state = kind == Kind::none ? State::unfinished : State::complete;
    for (; kind != Kind::none; kind = blocks.next()) {
        if (kind == Kind::foreign) return State::foreign;
        if (kind != Kind::whole) state = State::unfinished;
    }
    return state;
}

/// The contents of whole blocks as one stream.
class Contents {
public:
    explicit Contents(const Reader::Source& source) : blocks_(source) {}

    /// False when there is not so much left.
    bool get(std::string& bytes, std::size_t count) {
        bytes.clear();
        while (bytes.size() < count) {
            if (rest_.empty() && !refill()) return false;
            const std::size_t taken = std::min(rest_.size(), count - bytes.size());
            bytes += rest_.substr(0, taken);
            rest_.remove_prefix(taken);
        }
        return true;
    }
    bool get_number(std::int64_t& value, int bytes) {
        std::string text;
        if (!get(text, static_cast<std::size_t>(bytes))) return false;
        value = static_cast<std::int64_t>(number_at(text, 0, bytes));
        return true;
    }
    /// Nothing but what fills the last block.
    bool at_end() { return all_zero(rest_) && !refill(); }

private:
    bool refill() {
        if (blocks_.next() != BlockReader::Kind::whole) return false;
        rest_ = blocks_.contents();
        return true;
    }

    BlockReader blocks_;
    std::string_view rest_;
};

std::int64_t bytes_within(std::int64_t length, std::int64_t offset) {
    return std::clamp<std::int64_t>(length - offset, 0, sector_bytes);
}

}  // namespace

void encode(const Save& save, std::uint64_t random, const std::function<void(std::string_view)>& sink) {
    BlockWriter blocks(random, sink);
    blocks.put_number(save.length_before, 8);
    blocks.put_number(save.length_after, 8);
    for (const SectorChange& change : save.sectors) {
        blocks.put_number(change.sector, 8);
        blocks.put_number(static_cast<std::int64_t>(change.before.size()), 2);
        blocks.put_number(static_cast<std::int64_t>(change.after.size()), 2);
        blocks.put(change.before);
        blocks.put(change.after);
    }
    blocks.put_number(end_mark, 8);
    blocks.finish();
}

Reader::Reader(Source source) : source_(std::move(source)), state_(state_of_blocks(source_)) {
    if (state_ == State::complete) state_ = contents(lengths_, [](const SectorChange&) {});
}

void Reader::each(const Use& use) const {
    Lengths lengths;
    if (state_ == State::complete) contents(lengths, use);
}

State Reader::contents(Lengths& lengths, const Use& use) const {
    constexpr std::int64_t most_sectors = INT64_MAX / sector_bytes;
    Contents from(source_);
    if (!from.get_number(lengths.before, 8) || !from.get_number(lengths.after, 8)) return State::unfinished;
    if (lengths.before < 0 || lengths.after < 0) return State::foreign;
    std::int64_t last = -1;
    while (true) {
        SectorChange change;
        if (!from.get_number(change.sector, 8)) return State::unfinished;
        if (change.sector == end_mark) return from.at_end() ? State::complete : State::foreign;
        if (change.sector <= last || change.sector >= most_sectors) return State::foreign;
        last = change.sector;
        std::int64_t before = 0;
        std::int64_t after = 0;
        if (!from.get_number(before, 2) || !from.get_number(after, 2)) return State::unfinished;
        if (before != bytes_within(lengths.before, change.offset())) return State::foreign;
        if (after != bytes_within(lengths.after, change.offset())) return State::foreign;
        if (!from.get(change.before, static_cast<std::size_t>(before))) return State::unfinished;
        if (!from.get(change.after, static_cast<std::size_t>(after))) return State::unfinished;
        use(change);
    }
}

}  // namespace kalco::journal
