#include "support/filled_disc.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

#include "support/disc_tables.h"

namespace kalco::test {
namespace {

constexpr std::size_t filled_sectors = 2410;
constexpr std::int64_t first_name = 387793;
constexpr std::int64_t first_record = 2179493;
constexpr std::int64_t first_pool_name = 2006289;
constexpr std::int64_t first_pool_record = 2204113;

const PrintedTeam& facts(int team) {
    return printed_teams[static_cast<std::size_t>(team)];
}

std::uint32_t mixed(int team, int player, std::uint32_t salt) {
    std::mt19937 random(static_cast<std::uint32_t>(team) * 1009U + static_cast<std::uint32_t>(player) + salt * 7919U);
    return static_cast<std::uint32_t>(random());
}

/// Noise that is never zero, so that cleared bytes differ from it.
std::string noise() {
    std::string image(filled_sectors * 2352, '\0');
    std::uint32_t state = 1234567;
    for (char& byte : image) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(1 + (state >> 24) % 255);
    }
    return image;
}

void put_names(std::string& image, int team) {
    const PrintedTeam& team_facts = facts(team);
    put(image, 2005377 - 4 * (team + 1), short_name(team) + '\0');
    std::string coded = letter_code(full_width_name(team));
    if (team == 4) {
        coded.resize(10, '\0');
        put(image, 2003621, coded.substr(0, 4));
        put(image, 2003929, coded.substr(4));
    } else if (team_facts.full_width_bytes > 0) {
        coded.resize(static_cast<std::size_t>(team_facts.full_width_bytes) + 1, '\0');
        put(image, team_facts.full_width_position, coded);
    }
    for (int table = 0; table < 6; ++table) {
        const auto length = static_cast<std::size_t>(team_facts.lengths[static_cast<std::size_t>(table)]);
        if (length == 0) continue;
        std::string name = table_name(team).substr(0, length);
        name.resize(length + 1, '\0');
        put_user_data(image, table_position(team, table), name);
    }
}

std::string made_image() {
    std::string image = noise();
    for (int team = 0; team < 96; ++team) put_names(image, team);
    std::string names;
    std::string records;
    for (int team = 0; team < 63; ++team) {
        for (int player = 0; player < 23; ++player) {
            names += padded_name(player_name(team, player));
            records += player_record(team, player);
            if (team < 54) {
                const char cost = static_cast<char>(player_cost(team, player));
                put(image, 3067381 + 23 * (team + 1) + player + 1, std::string(1, cost));
            }
        }
    }
    put_user_data(image, first_name, names);
    put_user_data(image, first_record, records);
    names.clear();
    records.clear();
    for (int row = 0; row < 462; ++row) {
        names += padded_name(player_name(95, row));
        records += player_record(95, row);
        put(image, 3069512 + row + 1, std::string(1, static_cast<char>(player_cost(95, row))));
    }
    put_user_data(image, first_pool_name, names);
    put_user_data(image, first_pool_record, records);
    return image;
}

}  // namespace

const std::string& filled_image() {
    static const std::string image = made_image();
    return image;
}

std::string full_width_name(int team) {
    std::string name;
    bool blank_used = false;
    for (const char c : std::string(facts(team).row)) {
        if (c == ' ' && std::exchange(blank_used, true)) continue;
        name += c;
    }
    const int letters = team == 4 ? 5 : facts(team).full_width_bytes / 2;
    name.resize(std::min(name.size(), static_cast<std::size_t>(letters)));
    while (!name.empty() && name.back() == ' ') name.pop_back();
    return name;
}

std::string table_name(int team) {
    return in_capitals(full_width_name(team));
}

std::string short_name(int team) {
    return in_capitals(std::string(facts(team).row).substr(0, 3));
}

std::string player_name(int team, int player) {
    const std::size_t length = 3 + mixed(team, player, 1) % 8;
    std::string name;
    for (std::size_t i = 0; i < length; ++i) {
        const auto letter = static_cast<int>(mixed(team, player, 10 + static_cast<std::uint32_t>(i)) % 26);
        name += static_cast<char>((i == 0 ? 'A' : 'a') + letter);
    }
    return name;
}

std::string player_record(int team, int player) {
    std::mt19937 random(static_cast<std::uint32_t>(team * 5003 + player) + 77);
    const auto below = [&random](std::uint32_t limit) { return static_cast<std::uint32_t>(random() % limit); };
    const auto field = [](std::uint32_t value, int bit) { return value << bit; };
    std::array<std::uint32_t, 3> words{};
    // A role of 0 under empty fields would be one of the words that do not read back.
    words[0] = field(1 + below(7), 0) | field(below(32), 4) | field(below(8), 9) | field(below(7), 13) |
               field(below(7), 17) | field(7 + below(56), 20) | field(below(32), 26) | field(below(2), 31);
    words[1] = field(below(4), 0) | field(below(8), 2) | field(below(32), 5) | field(below(8), 10);
    for (int bit = 14; bit <= 29; bit += 3) words[1] |= field(below(8), bit);
    words[2] = field(1 + below(7), 0) | field(below(3), 30);
    for (int bit = 3; bit <= 27; bit += 3) words[2] |= field(below(8), bit);
    std::string bytes;
    for (const std::uint32_t word : words) {
        for (int bit = 0; bit < 32; bit += 8) bytes += static_cast<char>((word >> bit) & 0xFF);
    }
    return bytes;
}

int player_cost(int team, int player) {
    return (team * 7 + player * 11 + 1) % 251;
}

std::string letter_code(const std::string& text) {
    std::string code;
    for (const char c : text) {
        if (c >= 'A' && c <= 'Z') code += {'\x82', static_cast<char>(0x60 + (c - 'A'))};
        if (c >= 'a' && c <= 'z') code += {'\x82', static_cast<char>(0x81 + (c - 'a'))};
        if (c == '.') code += "\x81\x44";
        if (c == ' ') code += ' ';
    }
    return code;
}

std::string in_capitals(std::string text) {
    for (char& c : text) {
        const auto code = static_cast<unsigned char>(c);
        const bool accented = code >= 0xE0 && code <= 0xFE && code != 0xF7;
        if ((c >= 'a' && c <= 'z') || accented) c = static_cast<char>(code - 0x20);
    }
    return text;
}

void put(std::string& image, std::int64_t position, const std::string& bytes) {
    image.replace(static_cast<std::size_t>(position - 1), bytes.size(), bytes);
}

void put(std::string& image, const Pieces& field, std::string bytes) {
    for (const Piece& piece : field) {
        const std::string part = bytes.substr(0, static_cast<std::size_t>(piece.bytes));
        put(image, piece.position, part);
        bytes.erase(0, part.size());
    }
}

std::string bytes_at(const std::string& image, std::int64_t position, std::size_t count) {
    return image.substr(static_cast<std::size_t>(position - 1), count);
}

void put_user_data(std::string& image, std::int64_t position, const std::string& bytes) {
    for (const char byte : bytes) {
        image[static_cast<std::size_t>(position - 1)] = byte;
        position = position_behind(position, 1);
    }
}

std::string user_data_at(const std::string& image, std::int64_t position, std::size_t count) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += image[static_cast<std::size_t>(position - 1)];
        position = position_behind(position, 1);
    }
    return bytes;
}

std::string zeroes(std::size_t count) {
    return std::string(count, '\0');
}

std::string padded_name(const std::string& name) {
    return name + zeroes(10 - name.size());
}

}  // namespace kalco::test
