#include "work/ppf.h"

#include <limits>

namespace kalco {
namespace {

constexpr std::size_t magic_bytes = 5;
constexpr std::size_t flags_bytes = 4;
constexpr std::string_view begin_mark = "@BEGIN_FILE_ID.DIZ";
constexpr std::string_view end_mark = "@END_FILE_ID.DIZ";
/// Behind the end mark stands the text's length: two bytes, four, or, from careless writers, none.
constexpr std::size_t trailer_most_rest = 4;

/// Walks over the file; whatever goes beyond its end is an error.
class Reader {
public:
    explicit Reader(std::string_view file) : rest_(file), whole_(file.size()) {}

    bool at_end() const { return rest_.empty(); }
    std::string_view rest() const { return rest_; }
    std::size_t place() const { return whole_ - rest_.size(); }

    std::string_view take(std::size_t count) {
        if (count > rest_.size()) throw PpfError("cut off at byte " + std::to_string(whole_));
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::uint64_t number(std::size_t bytes) {
        std::uint64_t value = 0;
        int shift = 0;
        for (const char byte : take(bytes)) {
            value |= static_cast<std::uint64_t>(static_cast<unsigned char>(byte)) << shift;
            shift += 8;
        }
        return value;
    }

private:
    std::string_view rest_;
    std::size_t whole_;
};

int version_of(std::string_view magic, std::uint64_t method) {
    for (int version = 1; version <= 3; ++version) {
        if (magic == "PPF" + std::to_string(version) + "0") {
            if (method != static_cast<std::uint64_t>(version - 1)) throw PpfError("a patch of an unknown method");
            return version;
        }
    }
    throw PpfError("no PPF patch");
}

bool flag(std::uint64_t value, const char* what) {
    if (value > 1) throw PpfError(std::string("an unknown ") + what);
    return value == 1;
}

std::string_view without_filling(std::string_view text) {
    const std::size_t last = text.find_last_not_of(std::string_view(" \0", 2));
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// The text of a trailer that begins here and goes to the file's end; none where the rest is something else. The length
/// behind the end mark is not trusted.
std::optional<std::string_view> trailer(std::string_view rest) {
    if (!rest.starts_with(begin_mark)) return std::nullopt;
    const std::size_t end = rest.rfind(end_mark);
    if (end == std::string_view::npos || end < begin_mark.size()) return std::nullopt;
    if (rest.size() - end - end_mark.size() > trailer_most_rest) return std::nullopt;
    return rest.substr(begin_mark.size(), end - begin_mark.size());
}

PpfRecord read_record(Reader& reader, int version, bool undo) {
    const std::size_t start = reader.place();
    PpfRecord record;
    record.offset = reader.number(version == 3 ? 8 : 4);
    const auto length = static_cast<std::size_t>(reader.number(1));
    if (length == 0) throw PpfError("an empty record at byte " + std::to_string(start));
    constexpr auto last = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (record.offset > last - length) throw PpfError("a record beyond any file at byte " + std::to_string(start));
    record.new_bytes = reader.take(length);
    if (undo) record.old_bytes = reader.take(length);
    return record;
}

}  // namespace

PpfPatch::PpfPatch(std::string file) : file_(std::move(file)) {
    Reader reader(file_);
    if (file_.size() <= magic_bytes) throw PpfError("no PPF patch");
    const std::string_view magic = reader.take(magic_bytes);
    version_ = version_of(magic, reader.number(1));
    description_ = without_filling(reader.take(ppf_description_bytes));
    bool has_block = version_ == 2;
    if (version_ == 2) source_length_ = static_cast<std::uint32_t>(reader.number(flags_bytes));
    if (version_ == 3) {
        image_ = flag(reader.number(1), "image type") ? PpfImage::gi : PpfImage::bin;
        has_block = flag(reader.number(1), "block check");
        undo_ = flag(reader.number(1), "kind of undo data");
        reader.take(1);
    }
    if (has_block) block_ = reader.take(ppf_block_bytes);
    while (!reader.at_end()) {
        file_id_ = trailer(reader.rest());
        if (file_id_) break;
        records_.push_back(read_record(reader, version_, undo_));
        bytes_ += records_.back().new_bytes.size();
    }
    if (records_.empty()) throw PpfError("a patch without records");
}

}  // namespace kalco
