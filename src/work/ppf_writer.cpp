#include "work/ppf_writer.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "disc/codec/utf8.h"
#include "disc/image/position.h"
#include "work/ppf.h"

namespace kalco {
namespace {

/// The first place from `from` on where the texts differ, their size when they don't. Long equal stretches are
/// compared as wholes.
std::size_t next_difference(std::string_view before, std::string_view after, std::size_t from) {
    constexpr std::size_t stride = 256;
    const std::size_t size = before.size();
    while (from + stride <= size && std::memcmp(before.data() + from, after.data() + from, stride) == 0) from += stride;
    const auto start = static_cast<std::ptrdiff_t>(from);
    const auto* const found = std::mismatch(before.begin() + start, before.end(), after.begin() + start).first;
    return static_cast<std::size_t>(found - before.begin());
}

/// How many bytes a record at `offset` may have.
std::size_t room_at(std::uint64_t offset) {
    const auto to_sector_end = static_cast<std::size_t>(sector_bytes - offset % sector_bytes);
    return std::min(ppf_record_most_bytes, to_sector_end);
}

/// Without the first bytes of a character that was cut.
std::string_view whole_characters(std::string_view text) {
    const auto broken = broken_utf8(text);
    constexpr std::size_t longest_cut = 3;
    const bool cut =
        broken && text.size() - *broken <= longest_cut && static_cast<unsigned char>(text[*broken]) >= 0xC0;
    return cut ? text.substr(0, *broken) : text;
}

}  // namespace

PpfWriter::PpfWriter(std::string_view description, Sink sink, std::string_view block) : sink_(std::move(sink)) {
    if (block.size() != ppf_block_bytes) throw std::invalid_argument("the checked block has 1024 bytes");
    head_ = "PPF30\x02";
    head_ += whole_characters(description.substr(0, ppf_description_bytes));
    head_.resize(6 + ppf_description_bytes, ' ');
    head_ += std::string_view("\0\1\1\0", 4);
    head_ += block;
}

void PpfWriter::write_head() {
    sink_(std::exchange(head_, {}));
}

void PpfWriter::write_record(std::uint64_t offset, std::string_view before, std::string_view after) {
    if (!head_.empty()) write_head();
    std::string record;
    for (int shift = 0; shift < 64; shift += 8) record += static_cast<char>((offset >> shift) & 0xFF);
    record += static_cast<char>(after.size());
    record += after;
    record += before;
    sink_(record);
    ++records_;
    bytes_ += after.size();
}

void PpfWriter::add(std::uint64_t offset, std::string_view before, std::string_view after) {
    if (before.size() != after.size()) throw std::invalid_argument("the stretches have one length");
    std::size_t place = next_difference(before, after, 0);
    while (place < before.size()) {
        const std::size_t limit = std::min(before.size(), place + room_at(offset + place));
        std::size_t end = place + 1;
        while (end < limit && before[end] != after[end]) ++end;
        write_record(offset + place, before.substr(place, end - place), after.substr(place, end - place));
        place = next_difference(before, after, end);
    }
}

}  // namespace kalco
