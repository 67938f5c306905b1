#include "core/editor/league/league_run.h"

#include <algorithm>

#include "support/disc_tables.h"

namespace kalco::league_tests {

const std::array<PrintedClub, 32> printed_clubs{{
    {"Manchester", 2002769, 10, 2005121},   {"Arsenal", 2002757, 10, 2005117},
    {"Chelsea", 2002745, 10, 2005113},      {"Liverpool", 2002729, 14, 2005109},
    {"Leeds", 2002713, 14, 2005105},        {"Newcastle", 2002701, 10, 2005101},
    {"Aston Villa", 2002681, 14, 2005097},  {"Barcellona", 2002665, 14, 2005093},
    {"Real Madrid", 2002653, 10, 2005089},  {"Valencia", 2002637, 14, 2005085},
    {"Deportivo", 2002621, 14, 2005081},    {"Monaco", 2002605, 14, 2005077},
    {"Marsiglia", 2002589, 14, 2005073},    {"P.S.G.", 2002573, 14, 2005069},
    {"Bordeaux", 2002561, 10, 2005065},     {"Ajax", 2002545, 14, 2005061},
    {"Feyenoord", 2002525, 18, 2005057},    {"P.S.V.", 2002513, 10, 2005053},
    {"Inter", 2002501, 10, 2005049},        {"Juventus", 2002489, 10, 2005045},
    {"Milan", 2002473, 14, 2005041},        {"Lazio", 2002461, 10, 2005037},
    {"Parma", 2002449, 10, 2005033},        {"Fiorentina", 2002437, 10, 2005029},
    {"Roma", 2002421, 8, 2005025},          {"Borussia Dort.", 2002401, 18, 2005021},
    {"Bayer Monaco", 2002389, 10, 2005017}, {"Leverkusen", 2002377, 10, 2005013},
    {"Olympiakos", 2002361, 14, 2005009},   {"Galatasaray", 2002341, 18, 2005005},
    {"D. Kiev", 2002329, 10, 2005001},      {"Boca Junior", 2002317, 10, 2004997},
}};

const std::array<PrintedCopies, 32> printed_copies{{
    {{{2830417, 7}, {4823181, 7}, {5652025, 7}, {2004329, 7}, {1882285, 7}, {1012973, 7}}},
    {{{2830409, 7}, {4823173, 7}, {5652017, 7}, {2004321, 7}, {1882277, 7}, {1012965, 7}}},
    {{{2830401, 7}, {4823165, 7}, {5652009, 7}, {2004313, 7}, {1882269, 7}, {1012957, 7}}},
    {{{2830393, 7}, {4823157, 7}, {5652001, 7}, {2004301, 11}, {1882257, 11}, {1012945, 11}}},
    {{{2830385, 7}, {4823149, 7}, {5651993, 7}, {2004289, 11}, {1882249, 7}, {1012933, 11}}},
    {{{2830377, 7}, {4823141, 7}, {5651985, 7}, {2004277, 11}, {1882241, 7}, {1012921, 11}}},
    {{{2830365, 11}, {4823129, 11}, {5651973, 11}, {2004265, 11}, {1882225, 15}, {1012909, 11}}},
    {{{2830357, 7}, {4823121, 7}, {5651965, 7}, {2004253, 11}, {1882217, 7}, {1012897, 11}}},
    {{{2830349, 7}, {4823113, 7}, {5651957, 7}, {2004245, 7}, {1882209, 7}, {1012889, 7}}},
    {{{2830341, 7}, {4823105, 7}, {5651949, 7}, {2004233, 11}, {1882197, 11}, {1012877, 11}}},
    {{{2830333, 7}, {4823097, 7}, {5651941, 7}, {2004221, 11}, {1882185, 11}, {1012865, 11}}},
    {{{2830325, 7}, {4823085, 11}, {5651929, 11}, {2004209, 11}, {1882173, 11}, {1012853, 11}}},
    {{{2830317, 7}, {4823073, 11}, {5651917, 11}, {2004197, 11}, {1882161, 11}, {1012841, 11}}},
    {{{2830309, 7}, {4823065, 7}, {5651909, 7}, {2004185, 11}, {1882149, 11}, {1012829, 11}}},
    {{{2830301, 7}, {4823057, 7}, {5651901, 7}, {2004177, 7}, {1882141, 7}, {1012821, 7}}},
    {{{2830293, 7}, {4823049, 7}, {5651893, 7}, {2004165, 11}, {1882129, 11}, {1012809, 11}}},
    {{{2830281, 11}, {4823037, 11}, {5651881, 11}, {2004149, 15}, {1882117, 11}, {1012793, 15}}},
    {{{2830273, 7}, {4823029, 3}, {5651569, 7}, {2004141, 7}, {1882109, 7}, {1012785, 7}}},
    {{{2830269, 3}, {4823025, 3}, {5651565, 3}, {2004133, 7}, {1882101, 7}, {1012777, 7}}},
    {{{2830261, 7}, {4823017, 7}, {5651557, 7}, {2004121, 11}, {1882093, 7}, {1012765, 11}}},
    {{{2830253, 7}, {4823005, 11}, {5651545, 11}, {2004109, 11}, {1882081, 11}, {1012753, 11}}},
    {{{2830245, 7}, {4822997, 7}, {5651537, 7}, {2004101, 7}, {1882073, 7}, {1012745, 7}}},
    {{{2830237, 7}, {4822989, 7}, {5651529, 7}, {2004093, 7}, {1882065, 7}, {1012737, 7}}},
    {{{2830229, 7}, {4822981, 7}, {5651521, 7}, {2004085, 7}, {1882057, 7}, {1012729, 7}}},
    {{{2830221, 7}, {4822973, 7}, {5651513, 7}, {2004077, 7}, {1882045, 11}, {1012721, 7}}},
    {{{2830209, 11}, {4822961, 11}, {5651501, 11}, {2004065, 11}, {1882033, 11}, {1012709, 11}}},
    {{{2830201, 7}, {4822953, 7}, {5651493, 7}, {2004057, 7}, {1882025, 7}, {1012701, 7}}},
    {{{2830197, 3}, {4822949, 3}, {5651489, 3}, {2004049, 7}, {1882017, 7}, {1012693, 7}}},
    {{{2830189, 7}, {4822937, 11}, {5651477, 11}, {2004033, 15}, {1882005, 11}, {1012677, 15}}},
    {{{2830177, 11}, {4822925, 11}, {5651465, 11}, {2004017, 15}, {1881989, 15}, {1012661, 15}}},
    {{{2830169, 7}, {4822917, 7}, {5651457, 7}, {2004009, 7}, {1881981, 7}, {1012653, 7}}},
    {{{2830161, 7}, {4822909, 7}, {5651449, 7}, {2003997, 11}, {1881969, 11}, {1012641, 11}}},
}};

const PrintedClub& printed_club(int club) {
    return printed_clubs[static_cast<std::size_t>(club)];
}

std::int64_t printed_link_position(int club) {
    return club <= 6 ? 2012729 + 46 * club : 2013355 + 46 * (club - 7);
}

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

}  // namespace kalco::league_tests
