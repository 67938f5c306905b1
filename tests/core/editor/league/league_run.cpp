#include "core/editor/league/league_run.h"

#include <algorithm>

#include "disc/player_codes.h"
#include "support/disc_tables.h"

namespace kalco::league_tests {

std::string with_links(std::string image, int club, const std::string& digits) {
    const std::string bytes = bytes_of(digits);
    if (club != 6) {
        test::put(image, printed_link_position(club), bytes);
        return image;
    }
    test::put(image, 2013005, bytes.substr(0, 28));
    if (bytes.size() > 28) test::put(image, 2013337, bytes.substr(28));
    return image;
}

std::string with_pool_name(std::string image, int row, const std::string& bytes) {
    if (row == 408) {
        test::put(image, 2010673, bytes.substr(0, 8));
        if (bytes.size() > 8) test::put(image, 2010985, bytes.substr(8));
    } else if (row <= 203) {
        test::put(image, 2006289 + 10 * row, bytes);
    } else if (row <= 407) {
        test::put(image, 2008633 + 10 * (row - 204), bytes);
    } else {
        test::put(image, 2010987 + 10 * (row - 409), bytes);
    }
    return image;
}

std::string with_pool_record(std::string image, int row, const std::string& bytes) {
    if (row == 148 || row == 319) {
        const std::size_t first = row == 148 ? 8 : 4;
        test::put(image, row == 148 ? 2205889 : 2208245, bytes.substr(0, first));
        if (bytes.size() > first) test::put(image, row == 148 ? 2206201 : 2208553, bytes.substr(first));
    } else if (row <= 147) {
        test::put(image, 2204113 + 12 * row, bytes);
    } else if (row <= 318) {
        test::put(image, 2206205 + 12 * (row - 149), bytes);
    } else {
        test::put(image, 2208561 + 12 * (row - 320), bytes);
    }
    return image;
}

std::string renamed(std::string image, int club, const Renaming& names) {
    const PrintedClub& place = printed_club(club);
    test::put(image, place.short_position, test::in_capitals(names.short_text));
    if (club == 31) test::put(image, 2002317, test::zeroes(11));
    test::put(image, place.full_width_position, test::zeroes(names.cleared));
    test::put(image, place.full_width_position, names.coded);
    for (const PrintedCopy& copy : printed_copies[static_cast<std::size_t>(club)]) {
        const auto capacity = static_cast<std::size_t>(copy.capacity);
        std::string text = test::in_capitals(names.copy_text).substr(0, capacity);
        text.resize(capacity, '\0');
        test::put(image, copy.position, text);
    }
    return image;
}

std::string shown_club_name(int club) {
    std::string name = test::full_width_name(63 + club);
    const bool single_blank = name.find(' ') != std::string::npos;
    const int bytes = printed_club(club).full_width_bytes + (single_blank ? 1 : 0);
    name.resize(static_cast<std::size_t>((bytes + 1) / 2), ' ');
    return name;
}

std::string bytes_of(const std::string& digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 2 <= digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

LeagueRun::LeagueRun(const std::string& image) : EditorRun(image) {
    select_tab(tab::league);
}

void LeagueRun::pick_players(const std::vector<int>& rows) {
    for (const int row : rows) double_click(form.listNC, row);
}

const std::vector<int>& odd_picks() {
    static const std::vector<int> rows{0,   10,  148, 319, 1,   2,   4,   147, 149, 203, 204, 318,
                                       321, 407, 409, 461, 460, 100, 101, 102, 275, 276, 408};
    return rows;
}

std::string joined_codes(const std::vector<int>& rows) {
    std::string digits;
    const Texts pool = pool_codes();
    for (const int row : rows) digits += pool[static_cast<std::size_t>(row)];
    return digits;
}

}  // namespace kalco::league_tests
