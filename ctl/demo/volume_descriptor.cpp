#include "ctl/demo/volume_descriptor.h"

#include <string>
#include <string_view>

namespace kalco::demo {
namespace {

constexpr std::string_view standard_identifier = "CD001";
/// Year to hundredths of a second, then the offset from Greenwich. It never follows the clock: the same seed makes the
/// same disc on every day.
constexpr std::string_view made{"2001010100000000\0", 17};
constexpr std::string_view no_date{"0000000000000000\0", 17};

/// One descriptor of the list that begins in sector 16: offsets are those of the user data.
class Descriptor {
public:
    explicit Descriptor(char type) : bytes_(user_bytes, '\0') {
        bytes_[0] = type;
        text(1, standard_identifier.size(), standard_identifier);
        bytes_[6] = 1;  // version
    }
    /// Blanks fill the field.
    void text(std::size_t offset, std::size_t length, std::string_view what) {
        bytes_.replace(offset, length, std::string(what) + std::string(length - what.size(), ' '));
    }
    /// Numbers stand there twice, low byte first and high byte first.
    void number(std::size_t offset, std::size_t length, std::uint32_t value) {
        for (std::size_t k = 0; k < length; ++k, value >>= 8) {
            bytes_[offset + k] = bytes_[offset + 2 * length - 1 - k] = static_cast<char>(value & 0xFFU);
        }
    }
    const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
};

}  // namespace

void put_volume_descriptors(DemoDisc& disc, std::uint64_t seed) {
    Descriptor primary(1);
    primary.text(8, 32, "");  // system
    primary.text(40, 32, "KALCO_DEMO_" + std::to_string(seed));
    primary.number(80, 4, disc.sectors());
    primary.number(120, 2, 1);  // discs of the set
    primary.number(124, 2, 1);  // this one's place in it
    primary.number(128, 2, user_bytes);
    primary.text(190, 128, "");                    // volume set
    primary.text(318, 128, "");                    // publisher
    primary.text(446, 128, "");                    // preparer
    primary.text(574, 128, "KALCOCTL DEMO");       // application
    primary.text(702, 3 * 37, "");                 // files of the copyright, the abstract and the bibliography
    primary.text(813, made.size(), made);          // creation
    primary.text(830, made.size(), made);          // modification
    primary.text(847, no_date.size(), no_date);    // expiration
    primary.text(864, no_date.size(), no_date);    // the day from which on it may be used
    primary.text(881, 1, std::string_view{"\1"});  // version of the directory's structure

    const UserOffset start = UserOffset{volume_descriptor_sector} * user_bytes;
    disc.put(start, primary.bytes());
    disc.put(start + user_bytes, Descriptor('\xFF').bytes());
}

}  // namespace kalco::demo
