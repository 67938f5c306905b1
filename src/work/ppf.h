#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The patches that players' tools and emulators take for raw images: PPF 1.0, 2.0 and 3.0. Numbers are little-endian:
///
///     offset  bytes
///          0      5  "PPF10", "PPF20" or "PPF30"
///          5      1  0, 1 or 2
///          6     50  description, filled with blanks
///         56      4  3.0: image type, block check, undo, 0. 2.0: length of the source. 1.0: nothing
///         60   1024  a block of the source: 3.0 where the block check is 1, 2.0 always
///          .      .  records: offset (8 bytes, before 3.0 four), length 1..255, new bytes, with undo as many old bytes
///
/// A text between two marks may stand at the end, with its length behind it.
namespace kalco {

inline constexpr std::size_t ppf_description_bytes = 50;
inline constexpr std::size_t ppf_block_bytes = 1024;
inline constexpr std::size_t ppf_record_most_bytes = 255;

/// What kind of image a 3.0 patch is for; it decides where the checked block lies.
enum class PpfImage { bin, gi };

/// The 0-based file offset of the checked block.
constexpr std::uint64_t ppf_block_offset(PpfImage image) {
    return image == PpfImage::bin ? 0x9320 : 0x80A0;
}

/// New bytes for a place of the image. The old ones are there when the patch can be taken back.
struct PpfRecord {
    std::uint64_t offset = 0;    ///< 0-based, in the image.
    std::string_view new_bytes;  ///< 1 to 255.
    std::string_view old_bytes;  ///< As many, or none.

    std::uint64_t end() const { return offset + new_bytes.size(); }
};

/// The file is no patch, or a damaged one. what() is the reason, without the file's name.
class PpfError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A patch that was read and checked whole. Its records point into the bytes that it holds.
class PpfPatch {
public:
    /// Takes a file's bytes. Throws PpfError for what is no patch, has no record, or a record that is cut off, empty or
    /// beyond what a file offset can be.
    explicit PpfPatch(std::string file);
    PpfPatch(PpfPatch&&) = delete;
    PpfPatch(const PpfPatch&) = delete;
    PpfPatch& operator=(PpfPatch&&) = delete;
    PpfPatch& operator=(const PpfPatch&) = delete;
    ~PpfPatch() = default;

    int version() const { return version_; }  ///< 1, 2 or 3.
    PpfImage image() const { return image_; }
    bool has_undo() const { return undo_; }
    /// Without the blanks and zeroes at its end; bytes as they stand in the file.
    std::string_view description() const { return description_; }
    /// The text between the two marks at the end, if there is one.
    const std::optional<std::string_view>& file_id() const { return file_id_; }
    /// 2.0 only: the length of the image that the patch was made from.
    const std::optional<std::uint32_t>& source_length() const { return source_length_; }
    /// 1024 bytes of the source, from ppf_block_offset on.
    const std::optional<std::string_view>& block() const { return block_; }

    const std::vector<PpfRecord>& records() const { return records_; }
    /// The sum of the records' lengths.
    std::uint64_t bytes() const { return bytes_; }

private:
    std::string file_;
    int version_ = 0;
    PpfImage image_ = PpfImage::bin;
    bool undo_ = false;
    std::string_view description_;
    std::optional<std::string_view> file_id_;
    std::optional<std::uint32_t> source_length_;
    std::optional<std::string_view> block_;
    std::vector<PpfRecord> records_;
    std::uint64_t bytes_ = 0;
};

}  // namespace kalco
