#include "disc/player_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace kalco {
namespace {

using Texts = std::vector<std::string>;

// As printed: each nation with its count of rows.
const std::string printed_runs =
    "00 4, 66 1, 01 4, 02 1, 03 41, 04 7, 05 42, 06 68, 07 5, 08 37, 09 1, 0A 64, 0B 1, 0C 25, 0D 3, 0E 2, 0F 5, 10 1, "
    "11 1, 13 1, 16 4, 17 3, 18 4, 1A 8, 1B 10, 1C 4, 1D 2, 1E 1, 20 1, 21 2, 28 1, 29 36, 2C 1, 2D 3, 2E 34, 30 4, "
    "35 2, 5F 1, 60 1, 61 2, 62 2, 63 2, 65 1, 69 1, 6A 7, 6C 5, 6D 1, 6E 1, 6F 1, 72 1, 74 2";

const std::string printed_nationalities =
    "00 Ireland,01 Scotland,02 Wales,03 England,04 Portugal,05 Spain,06 France,07 Belgium,08 Netherland,"
    "09 Switzerland,0A Italy,0B Czech,0C Germany,0D Denmark,0E Norway,0F Sweden,10 Finland,11 Poland,12 Slovakia,"
    "13 Austria,14 Hungary,15 Slovenia,16 Croatia,17 Yugoslavia,18 Rumania,19 Bulgaria,1A Greece,1B Turkey,"
    "1C Ukrainia,1D Russia,1E Morocco,1F Tunisia,20 Egypt,21 Nigeria,22 Cameroon,23 S.Africa,24 Senegal,25 Usa,"
    "26 Mexico,27 Costarica,28 Colombia,29 Brazil,2A Peru,2B Chile,2C Paraguay,2D Uruguay,2E Argentina,2F Ecuador,"
    "30 Japan,31 Korea,32 China,33 Iran,34 Arabia S.,35 Australia,5F Island,60 Uzbekistan,61 Georgia,62 Bielorussia,"
    "63 Bosnia,65 Lussemburgo,66 North Ireland,69 Algeria,6A Ghana,6C Costa D'Avorio,6D Congo,6E Togo,6F Burundi,"
    "72 Sierra Leone,74 Trinidad-Tobago";

std::string two_digits(int value) {
    const std::string digits = "0123456789ABCDEF";
    return {digits[static_cast<std::size_t>(value / 16)], digits[static_cast<std::size_t>(value % 16)]};
}

Texts printed_codes() {
    Texts codes;
    std::istringstream runs(printed_runs);
    std::string run;
    while (std::getline(runs >> std::ws, run, ',')) {
        const int count = std::stoi(run.substr(3));
        for (int i = 0; i < count; ++i) codes.push_back(run.substr(0, 2) + two_digits(0x17 + i));
    }
    return codes;
}

std::map<std::string, std::string> printed_names() {
    std::map<std::string, std::string> names;
    std::istringstream entries(printed_nationalities);
    std::string entry;
    while (std::getline(entries, entry, ',')) names[entry.substr(0, 2)] = entry.substr(3);
    return names;
}

TEST(PoolCodes, FollowTheListOfNations) {
    const Texts codes = pool_codes();
    ASSERT_EQ(codes.size(), 462U);
    EXPECT_EQ(codes, printed_codes());
    EXPECT_EQ(Texts(codes.begin(), codes.begin() + 6), (Texts{"0017", "0018", "0019", "001A", "6617", "0117"}));
    EXPECT_EQ(Texts(codes.end() - 2, codes.end()), (Texts{"7417", "7418"}));
}

TEST(PoolCodes, OfTheRostersRunTeamByTeam) {
    const Texts codes = roster_codes();
    ASSERT_EQ(codes.size(), 1449U);
    for (int row = 0; row < 1449; ++row) {
        EXPECT_EQ(codes[static_cast<std::size_t>(row)], two_digits(row / 23) + two_digits(row % 23));
    }
    EXPECT_EQ(codes.front(), "0000");
    EXPECT_EQ(codes[22], "0016");
    EXPECT_EQ(codes[23], "0100");
    EXPECT_EQ(codes.back(), "3E16");
}

TEST(PoolCodes, AreAllDifferent) {
    const Texts rosters = roster_codes();
    const Texts pool = pool_codes();
    std::set<std::string> codes(rosters.begin(), rosters.end());
    codes.insert(pool.begin(), pool.end());
    EXPECT_EQ(codes.size(), 1449U + 462U);
    EXPECT_EQ(codes.count("2517"), 0U);
}

TEST(PoolCodes, TellTheNationality) {
    const auto names = printed_names();
    ASSERT_EQ(names.size(), 69U);
    for (int nation = 0; nation < 256; ++nation) {
        const auto found = names.find(two_digits(nation));
        const auto told = nationality_of(two_digits(nation));
        ASSERT_EQ(told.has_value(), found != names.end()) << nation;
        EXPECT_EQ(told.value_or(""), found != names.end() ? found->second : "");
        EXPECT_EQ(nationality_of(nation), told) << nation;
    }
    for (const char* text : {"", "0", "0a", "00A", "0A ", "G0"}) EXPECT_FALSE(nationality_of(text)) << text;
    for (const std::string& code : pool_codes()) EXPECT_TRUE(nationality_of(code.substr(0, 2))) << code;
}

TEST(PlayerCodes, MeanTheRowsOfTheTwoTables) {
    const Texts rosters = roster_codes();
    const Texts pool = printed_codes();
    int players = 0;
    for (int team = 0; team < 256; ++team) {
        for (int number = 0; number < 256; ++number) {
            const PlayerCode code{static_cast<std::uint8_t>(team), static_cast<std::uint8_t>(number)};
            const std::string digits = two_digits(team) + two_digits(number);
            ASSERT_EQ(digits_of(code), digits);
            ASSERT_EQ(code_of_digits(digits), code);
            const auto player = player_of(code);
            const auto row = std::find(pool.begin(), pool.end(), digits);
            if (row != pool.end()) {
                ASSERT_EQ(player, PlayerPlace(PoolRow(static_cast<int>(row - pool.begin())))) << digits;
            } else if (team < 63 && number < 23) {
                ASSERT_EQ(player, (PlayerPlace(RosterPlace{Team(team), number}))) << digits;
                ASSERT_EQ(rosters[static_cast<std::size_t>(23 * team + number)], digits);
            } else {
                ASSERT_FALSE(player) << digits;
                continue;
            }
            ++players;
            ASSERT_EQ(code_of(*player), code) << digits;
        }
    }
    EXPECT_EQ(players, 1449 + 462);
    EXPECT_EQ(digits_of(vardal_code), "2517");
    EXPECT_FALSE(player_of(vardal_code));
}

TEST(PlayerCodes, OfPlacesThatDoNotExistAreNone) {
    for (const RosterPlace place : {RosterPlace{Team(63), 0}, RosterPlace{Team(-1), 0}, RosterPlace{Team(0), 23},
                                    RosterPlace{Team(0), -1}, RosterPlace{Team(95), 3}}) {
        EXPECT_FALSE(code_of(place)) << place.team.value();
    }
    for (const int row : {-1, 462}) EXPECT_FALSE(code_of(PoolRow(row))) << row;
}

TEST(PlayerCodes, AreFourDigits) {
    EXPECT_EQ(code_of_digits("0a1F"), (PlayerCode{0x0A, 0x1F}));
    for (const char* text : {"", "2", "251", "25170", "25 7", "+517", "G517", "251g"}) {
        EXPECT_FALSE(code_of_digits(text)) << text;
    }
}

}  // namespace
}  // namespace kalco
