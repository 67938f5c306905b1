#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace kalco {

/// Writes a PPF 3.0 patch with undo data and block check, piece by piece. No record crosses a multiple of 2352 (there
/// is an emulator that never ends on one that does), and none holds a byte that is the same before and after: what two
/// patches do not both change is never a conflict between them.
class PpfWriter {
public:
    using Sink = std::function<void(std::string_view bytes)>;

    /// `block`: the 1024 bytes of the image before, from ppf_block_offset(PpfImage::bin) on. A description of more than
    /// 50 bytes is cut.
    PpfWriter(std::string_view description, Sink sink, std::string_view block);

    /// The same stretch of the image before and after, of one length; stretches come in rising order of offset. Runs of
    /// changed bytes become records.
    void add(std::uint64_t offset, std::string_view before, std::string_view after);

    std::uint64_t records() const { return records_; }
    /// Bytes that the patch changes.
    std::uint64_t bytes() const { return bytes_; }

private:
    void write_record(std::uint64_t offset, std::string_view before, std::string_view after);
    void write_head();

    std::string head_;
    Sink sink_;
    std::uint64_t records_ = 0;
    std::uint64_t bytes_ = 0;
};

}  // namespace kalco
