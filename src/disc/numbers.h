#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/image.h"
#include "disc/indexes.h"

/// Shirt numbers on the disc: 1..32 packed into four 32-bit words for a nation, one byte each for a club and for the
/// default team. Both store the number minus 1.
namespace kalco {

inline constexpr int national_number_bytes = 16;
inline constexpr int club_number_bytes = 23;
inline constexpr int most_national_number = 32;

/// The first records; the others follow in the order of the list of 87 teams.
inline constexpr UserOffset NationalNumberBase = user_offset_of(404717);
inline constexpr UserOffset ClubNumberBase = user_offset_of(2014529);
/// The default team's record stands before the clubs', with a byte between them that belongs to no record.
inline constexpr ImagePos default_team_numbers = 2014505;

/// The record of a row: 16 bytes for a nation, 23 for the others.
Pieces number_field(TeamRow row);

/// The numbers as they are stored: 1..32 in a nation's record, 1..256 in the others.
struct StoredNumbers {
    static constexpr std::size_t words = 4;

    std::array<int, club_number_bytes> numbers = all_ones();  ///< In roster order. A record of zeroes holds ones.
    /// What the words of a nation's record hold above their fields: two bits in the first three, seven in the last one.
    std::array<std::uint32_t, words> spare{};

    friend bool operator==(const StoredNumbers&, const StoredNumbers&) = default;

private:
    static constexpr std::array<int, club_number_bytes> all_ones() {
        std::array<int, club_number_bytes> ones{};
        ones.fill(1);
        return ones;
    }
};

/// By masks, nothing misread; missing bytes are 0.
StoredNumbers unpack_numbers(TeamRow row, std::string_view record);
/// The record, spare bits too. A number counts by the low bits of what is stored for it: 5 for a nation, else 8.
std::string pack_numbers(TeamRow row, const StoredNumbers& stored);

StoredNumbers read_numbers(const Image& image, TeamRow row);
/// Writes the bytes over a row's record; as many as there are.
void write_numbers(Image& image, TeamRow row, std::string_view bytes);

/// The 32 digits of a national record for the numbers of 23 players in roster order. Error 326 at the first number
/// outside 1..32, 13 for an entry that is no number.
std::string pack_national_numbers(const std::vector<std::string>& entries);
/// The digits of a club's record, two an entry; more for a number above 256 or below 1. Error 13 as above.
std::string pack_club_numbers(const std::vector<std::string>& entries);

/// The 23 entries (two decimal digits each) of a national record of 16 bytes. Two bytes are misread on purpose: see
/// NUM_SHIRT_DEC_12.
std::vector<std::string> decode_national_numbers(std::string_view record);
/// The entries of a club's record, one a byte.
std::vector<std::string> decode_club_numbers(std::string_view record);

/// Decodes the word of 8 digits in image order into the entries from `first` on. The top bit of its second byte counts
/// only when the byte is above 128, and a set spare bit makes the sixth number 32.
void NUM_SHIRT_DEC_12(std::string_view word, std::size_t first, bool sixth_field, std::vector<std::string>& entries);

/// A number as an entry of the lists.
std::string number_entry(int number);

}  // namespace kalco
