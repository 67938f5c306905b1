#include "disc/player_codes.h"

#include <algorithm>
#include <array>

#include "disc/codec/hextext.h"

namespace kalco {
namespace {

constexpr int first_pool_number = last_roster_number + 1;

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
    int nation;
    std::string_view name;
};

constexpr std::array<Nationality, 69> nationalities{{
    {0x00, "Ireland"},         {0x01, "Scotland"},    {0x02, "Wales"},     {0x03, "England"},
    {0x04, "Portugal"},        {0x05, "Spain"},       {0x06, "France"},    {0x07, "Belgium"},
    {0x08, "Netherland"},      {0x09, "Switzerland"}, {0x0A, "Italy"},     {0x0B, "Czech"},
    {0x0C, "Germany"},         {0x0D, "Denmark"},     {0x0E, "Norway"},    {0x0F, "Sweden"},
    {0x10, "Finland"},         {0x11, "Poland"},      {0x12, "Slovakia"},  {0x13, "Austria"},
    {0x14, "Hungary"},         {0x15, "Slovenia"},    {0x16, "Croatia"},   {0x17, "Yugoslavia"},
    {0x18, "Rumania"},         {0x19, "Bulgaria"},    {0x1A, "Greece"},    {0x1B, "Turkey"},
    {0x1C, "Ukrainia"},        {0x1D, "Russia"},      {0x1E, "Morocco"},   {0x1F, "Tunisia"},
    {0x20, "Egypt"},           {0x21, "Nigeria"},     {0x22, "Cameroon"},  {0x23, "S.Africa"},
    {0x24, "Senegal"},         {0x25, "Usa"},         {0x26, "Mexico"},    {0x27, "Costarica"},
    {0x28, "Colombia"},        {0x29, "Brazil"},      {0x2A, "Peru"},      {0x2B, "Chile"},
    {0x2C, "Paraguay"},        {0x2D, "Uruguay"},     {0x2E, "Argentina"}, {0x2F, "Ecuador"},
    {0x30, "Japan"},           {0x31, "Korea"},       {0x32, "China"},     {0x33, "Iran"},
    {0x34, "Arabia S."},       {0x35, "Australia"},   {0x5F, "Island"},    {0x60, "Uzbekistan"},
    {0x61, "Georgia"},         {0x62, "Bielorussia"}, {0x63, "Bosnia"},    {0x65, "Lussemburgo"},
    {0x66, "North Ireland"},   {0x69, "Algeria"},     {0x6A, "Ghana"},     {0x6C, "Costa D'Avorio"},
    {0x6D, "Congo"},           {0x6E, "Togo"},        {0x6F, "Burundi"},   {0x72, "Sierra Leone"},
    {0x74, "Trinidad-Tobago"},
}};

std::optional<PoolRow> pool_row_of(PlayerCode code) {
    const int ordinal = code.number - first_pool_number;
    int first_row = 0;
    for (const NationRun& run : nation_runs) {
        if (run.nation == code.team) {
            if (ordinal >= run.players) return std::nullopt;
            return PoolRow(first_row + ordinal);
        }
        first_row += run.players;
    }
    return std::nullopt;
}

std::optional<PlayerCode> code_of_pool_row(PoolRow row) {
    if (!row.exists()) return std::nullopt;
    int ordinal = row.value();
    const auto* run = nation_runs.begin();
    for (; ordinal >= run->players; ++run) ordinal -= run->players;
    return PlayerCode{static_cast<std::uint8_t>(run->nation), static_cast<std::uint8_t>(first_pool_number + ordinal)};
}

bool is_hex_digit(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
           (character >= 'a' && character <= 'f');
}

}  // namespace

std::optional<PlayerPlace> player_of(PlayerCode code) {
    if (code.number < first_pool_number) {
        const Team team(code.team);
        if (!has_roster(team)) return std::nullopt;
        return RosterPlace{team, code.number};
    }
    const auto row = pool_row_of(code);
    if (!row) return std::nullopt;
    return *row;
}

std::optional<PlayerCode> code_of(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return code_of_pool_row(*row);
    const auto& [team, player] = std::get<RosterPlace>(place);
    if (!has_roster(team) || player < 0 || player > last_roster_number) return std::nullopt;
    return PlayerCode{static_cast<std::uint8_t>(team.value()), static_cast<std::uint8_t>(player)};
}

std::string digits_of(PlayerCode code) {
    const std::array<char, 2> bytes{static_cast<char>(code.team), static_cast<char>(code.number)};
    return hex_digits({bytes.data(), bytes.size()});
}

std::optional<PlayerCode> code_of_digits(std::string_view digits) {
    if (digits.size() != 4 || !std::all_of(digits.begin(), digits.end(), is_hex_digit)) return std::nullopt;
    return PlayerCode{hex_pair(digits.substr(0, 2)), hex_pair(digits.substr(2))};
}

std::vector<std::string> roster_codes() {
    std::vector<std::string> codes;
    codes.reserve(std::size_t{roster_team_count} * roster_players);
    for (int team = 0; team < roster_team_count; ++team) {
        for (int player = 0; player < roster_players; ++player) {
            codes.push_back(digits_of(*code_of(RosterPlace{Team(team), player})));
        }
    }
    return codes;
}

std::vector<std::string> pool_codes() {
    std::vector<std::string> codes;
    codes.reserve(PoolRow::count);
    for (const PoolRow row : every<PoolRow>()) codes.push_back(digits_of(*code_of(row)));
    return codes;
}

std::optional<std::string_view> nationality_of(int nation) {
    const auto* const found = std::find_if(nationalities.begin(), nationalities.end(),
                                           [nation](const Nationality& known) { return known.nation == nation; });
    if (found == nationalities.end()) return std::nullopt;
    return found->name;
}

std::optional<std::string_view> nationality_of(std::string_view nation_digits) {
    if (nation_digits != hex_number(hex_pair(nation_digits), 2)) return std::nullopt;
    return nationality_of(hex_pair(nation_digits));
}

}  // namespace kalco
