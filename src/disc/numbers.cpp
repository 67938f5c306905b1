#include "disc/numbers.h"

#include <array>
#include <cstdint>

#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

constexpr std::size_t fields_in_word = 6;
constexpr int field_bits = 5;
constexpr std::uint32_t field_mask = 0x1F;
constexpr std::size_t word_digits_count = 8;

/// The last word holds the 23rd player in its fifth field and has no sixth one.
constexpr std::size_t fields_of_word(std::size_t word) {
    return word + 1 < StoredNumbers::words ? fields_in_word : fields_in_word - 1;
}

std::uint8_t byte_or_zero(std::string_view record, std::size_t place) {
    return place < record.size() ? static_cast<std::uint8_t>(record[place]) : 0;
}

std::string little_endian(std::uint32_t word) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>((word >> shift) & 0xFF);
    return bytes;
}

std::string pack_words(const StoredNumbers& stored) {
    std::string record;
    for (std::size_t word = 0; word < StoredNumbers::words; ++word) {
        std::uint32_t bits = stored.spare[word];
        for (std::size_t field = fields_of_word(word); field-- > 0;) {
            const auto number = static_cast<std::uint32_t>(stored.numbers[word * fields_in_word + field] - 1);
            bits = bits << field_bits | (number & field_mask);
        }
        record += little_endian(bits);
    }
    return record;
}

}  // namespace

Pieces number_field(TeamRow row) {
    if (row == default_team_row) return Piece{default_team_numbers, club_number_bytes};
    if (const auto club = club_of(row)) {
        return field_at(ClubNumberBase + club_number_bytes * club->value(), club_number_bytes);
    }
    return field_at(NationalNumberBase + national_number_bytes * row.value(), national_number_bytes);
}

StoredNumbers unpack_numbers(TeamRow row, std::string_view record) {
    StoredNumbers stored;
    if (!is_nation(row)) {
        for (std::size_t player = 0; player < stored.numbers.size(); ++player) {
            stored.numbers[player] = byte_or_zero(record, player) + 1;
        }
        return stored;
    }
    for (std::size_t word = 0; word < StoredNumbers::words; ++word) {
        std::uint32_t bits = 0;
        for (std::size_t byte = 4; byte-- > 0;) bits = bits << 8 | byte_or_zero(record, 4 * word + byte);
        for (std::size_t field = 0; field < fields_of_word(word); ++field) {
            stored.numbers[word * fields_in_word + field] = static_cast<int>(bits & field_mask) + 1;
            bits >>= field_bits;
        }
        stored.spare[word] = bits;
    }
    return stored;
}

std::string pack_numbers(TeamRow row, const StoredNumbers& stored) {
    if (is_nation(row)) return pack_words(stored);
    std::string record;
    for (const int number : stored.numbers) record += static_cast<char>(number - 1);
    return record;
}

StoredNumbers read_numbers(const Image& image, TeamRow row) {
    return unpack_numbers(row, image.read(number_field(row)));
}

void write_numbers(Image& image, TeamRow row, std::string_view bytes) {
    image.write(number_field(row), bytes);
}

std::string pack_national_numbers(const std::vector<std::string>& entries) {
    StoredNumbers stored;
    for (std::size_t player = 0; player < entries.size() && player < roster_players; ++player) {
        const std::int64_t number = number_of(entries[player]);
        if (number < 1 || number > most_national_number) throw RuntimeError(error::resource_not_found);
        stored.numbers[player] = static_cast<int>(number);
    }
    return hex_digits(pack_words(stored));
}

std::string pack_club_numbers(const std::vector<std::string>& entries) {
    std::string digits;
    for (const std::string& entry : entries) digits += hex_number(number_of(entry) - 1, 2);
    return digits;
}

std::string number_entry(int number) {
    const std::string text = std::to_string(number);
    return text.size() < 2 ? '0' + text : text;
}

void NUM_SHIRT_DEC_12(std::string_view word, std::size_t first, bool sixth_field, std::vector<std::string>& entries) {
    constexpr int top_bit = 0x80;
    const int b0 = hex_pair(word.substr(0, 2));
    const int b1 = hex_pair(word.substr(2, 2));
    const int b2 = hex_pair(word.substr(4, 2));
    const int b3 = hex_pair(word.substr(6, 2));
    entries[first] = number_entry((b0 & 0x1F) + 1);
    entries[first + 1] = number_entry((b0 >> 5) + 8 * (b1 & 3) + 1);
    // A byte of exactly 0x80 is not recognised as having the bit, and its rest is then found in no table.
    entries[first + 2] = number_entry(b1 == top_bit ? most_national_number : ((b1 & 0x7C) >> 2) + 1);
    entries[first + 3] = number_entry((b1 > top_bit ? 1 : 0) + 2 * (b2 & 0x0F) + 1);
    entries[first + 4] = number_entry((b2 >> 4) + 16 * (b3 & 1) + 1);
    if (!sixth_field) return;
    const bool spare_bit = (b3 & 0xFE) > 0x3E;
    entries[first + 5] = number_entry(spare_bit ? most_national_number : ((b3 & 0x3E) >> 1) + 1);
}

std::vector<std::string> decode_national_numbers(std::string_view record) {
    const std::string digits = hex_digits(record);
    std::vector<std::string> entries(roster_players);
    for (std::size_t word = 0; word < StoredNumbers::words; ++word) {
        const bool last = word + 1 == StoredNumbers::words;
        NUM_SHIRT_DEC_12(std::string_view(digits).substr(word * word_digits_count, word_digits_count),
                         word * fields_in_word, !last, entries);
    }
    return entries;
}

std::vector<std::string> decode_club_numbers(std::string_view record) {
    std::vector<std::string> entries;
    for (const char byte : record) entries.push_back(number_entry(static_cast<unsigned char>(byte) + 1));
    return entries;
}

}  // namespace kalco
