#include "disc/pool_codes.h"

#include <algorithm>

#include "disc/codec/hextext.h"
#include "disc/roster.h"
#include "disc/teams.h"

namespace kalco {
namespace {

/// A stretch of the pool: the players of one nation, numbered without a gap.
struct NationRun {
    int nation;
    int players;
};

constexpr std::array<NationRun, 51> nation_runs{{
    {0x00, 4},  {0x66, 1}, {0x01, 4},  {0x02, 1}, {0x03, 41}, {0x04, 7}, {0x05, 42}, {0x06, 68}, {0x07, 5},
    {0x08, 37}, {0x09, 1}, {0x0A, 64}, {0x0B, 1}, {0x0C, 25}, {0x0D, 3}, {0x0E, 2},  {0x0F, 5},  {0x10, 1},
    {0x11, 1},  {0x13, 1}, {0x16, 4},  {0x17, 3}, {0x18, 4},  {0x1A, 8}, {0x1B, 10}, {0x1C, 4},  {0x1D, 2},
    {0x1E, 1},  {0x20, 1}, {0x21, 2},  {0x28, 1}, {0x29, 36}, {0x2C, 1}, {0x2D, 3},  {0x2E, 34}, {0x30, 4},
    {0x35, 2},  {0x5F, 1}, {0x60, 1},  {0x61, 2}, {0x62, 2},  {0x63, 2}, {0x65, 1},  {0x69, 1},  {0x6A, 7},
    {0x6C, 5},  {0x6D, 1}, {0x6E, 1},  {0x6F, 1}, {0x72, 1},  {0x74, 2},
}};

struct Nationality {
    std::string_view digits;
    std::string_view name;
};

constexpr std::array<Nationality, 69> nationalities{{
    {"00", "Ireland"},         {"01", "Scotland"},    {"02", "Wales"},     {"03", "England"},
    {"04", "Portugal"},        {"05", "Spain"},       {"06", "France"},    {"07", "Belgium"},
    {"08", "Netherland"},      {"09", "Switzerland"}, {"0A", "Italy"},     {"0B", "Czech"},
    {"0C", "Germany"},         {"0D", "Denmark"},     {"0E", "Norway"},    {"0F", "Sweden"},
    {"10", "Finland"},         {"11", "Poland"},      {"12", "Slovakia"},  {"13", "Austria"},
    {"14", "Hungary"},         {"15", "Slovenia"},    {"16", "Croatia"},   {"17", "Yugoslavia"},
    {"18", "Rumania"},         {"19", "Bulgaria"},    {"1A", "Greece"},    {"1B", "Turkey"},
    {"1C", "Ukrainia"},        {"1D", "Russia"},      {"1E", "Morocco"},   {"1F", "Tunisia"},
    {"20", "Egypt"},           {"21", "Nigeria"},     {"22", "Cameroon"},  {"23", "S.Africa"},
    {"24", "Senegal"},         {"25", "Usa"},         {"26", "Mexico"},    {"27", "Costarica"},
    {"28", "Colombia"},        {"29", "Brazil"},      {"2A", "Peru"},      {"2B", "Chile"},
    {"2C", "Paraguay"},        {"2D", "Uruguay"},     {"2E", "Argentina"}, {"2F", "Ecuador"},
    {"30", "Japan"},           {"31", "Korea"},       {"32", "China"},     {"33", "Iran"},
    {"34", "Arabia S."},       {"35", "Australia"},   {"5F", "Island"},    {"60", "Uzbekistan"},
    {"61", "Georgia"},         {"62", "Bielorussia"}, {"63", "Bosnia"},    {"65", "Lussemburgo"},
    {"66", "North Ireland"},   {"69", "Algeria"},     {"6A", "Ghana"},     {"6C", "Costa D'Avorio"},
    {"6D", "Congo"},           {"6E", "Togo"},        {"6F", "Burundi"},   {"72", "Sierra Leone"},
    {"74", "Trinidad-Tobago"},
}};

std::string code_of(int team, int number) {
    return hex_number(team, 2) + hex_number(number, 2);
}

}  // namespace

std::vector<std::string> roster_codes() {
    std::vector<std::string> codes;
    for (int team = 0; team < roster_team_count; ++team) {
        for (int number = 0; number <= last_roster_number; ++number) codes.push_back(code_of(team, number));
    }
    return codes;
}

std::vector<std::string> pool_codes() {
    std::vector<std::string> codes;
    codes.reserve(pool_players);
    for (const NationRun& run : nation_runs) {
        for (int i = 1; i <= run.players; ++i) codes.push_back(code_of(run.nation, last_roster_number + i));
    }
    return codes;
}

std::optional<std::string_view> nationality_of(std::string_view nation_digits) {
    const auto* const found =
        std::find_if(nationalities.begin(), nationalities.end(),
                     [&](const Nationality& nationality) { return nationality.digits == nation_digits; });
    if (found == nationalities.end()) return std::nullopt;
    return found->name;
}

}  // namespace kalco
