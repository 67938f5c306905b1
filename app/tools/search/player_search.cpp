#include "app/tools/search/player_search.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "disc/codec/decimal.h"
#include "work/find.h"

namespace kalco::app {
namespace {

/// The number of a cell, also of one that the editor would not take ("#251").
int number_of_cell(std::string_view cell, int otherwise) {
    if (cell.starts_with('#')) cell.remove_prefix(1);
    return is_number(cell) ? static_cast<int>(number_of(cell)) : otherwise;
}

template <std::size_t n>
int place_in(const std::array<std::string_view, n>& texts, std::string_view text) {
    return static_cast<int>(std::ranges::find(texts, text) - texts.begin());
}

/// The places of texts in their order; equal ones share a place.
std::vector<int> places_of(const std::vector<std::string>& texts) {
    std::map<std::string_view, int> places;
    for (const std::string& text : texts) places.emplace(text, 0);
    int place = 0;
    for (auto& each : places) each.second = place++;
    std::vector<int> result;
    result.reserve(texts.size());
    for (const std::string& text : texts) result.push_back(places.at(text));
    return result;
}

}  // namespace

void PlayerSearch::set_report(Report report) {
    report_ = std::move(report);
    keys_.clear();
    keys_.reserve(report_.players.size());
    for (const ReportPlayer& player : report_.players) keys_.push_back(keys_of(player));
    order_texts();
    order_anew();
}

void PlayerSearch::set_wish(const PlayerWish& wish) {
    wish_ = wish;
    wish_.name = folded(wish.name);
    filter();
}

void PlayerSearch::sort(int column, bool falling) {
    std::erase_if(sorts_, [column](const auto& each) { return each.first == column; });
    sorts_.emplace_back(column, falling);
    order_by(column, falling);
    filter();
}

void PlayerSearch::unsort() {
    sorts_.clear();
    order_anew();
}

PlayerSearch::Keys PlayerSearch::keys_of(const ReportPlayer& player) {
    using enum player_column::Column;
    Keys keys;
    keys.name = folded(player.name);
    keys.role = place_in(role_texts, player.role);
    keys.order[role] = place_in(role_rows, player.role);
    keys.order[age] = number_of_cell(player.age, missing);
    keys.order[height] = number_of_cell(player.height, missing);
    keys.order[foot] = place_in(foot_texts, player.foot);
    keys.order[cost] = number_of_cell(player.cost, missing);
    std::ranges::copy(player.skills, keys.order.begin() + first_skill);
    return keys;
}

void PlayerSearch::order_texts() {
    std::vector<std::string> names;
    std::vector<std::string> titles;
    for (const Keys& keys : keys_) names.push_back(keys.name);
    for (const ReportTeam& team : report_.teams) titles.push_back(folded(team.title));
    const std::vector<int> name_places = places_of(names);
    const std::vector<int> title_places = places_of(titles);
    for (std::size_t i = 0; i < keys_.size(); ++i) {
        const Team team = report_.players[i].team;
        keys_[i].order[player_column::name] = name_places[i];
        // The pool behind all teams.
        keys_[i].order[player_column::team] = team == default_list ? Team::count : title_places[team.place()];
    }
}

void PlayerSearch::order_anew() {
    order_.resize(keys_.size());
    std::iota(order_.begin(), order_.end(), 0);
    for (const auto& [column, falling] : sorts_) order_by(column, falling);
    filter();
}

void PlayerSearch::order_by(int column, bool falling) {
    const auto key = [this, place = static_cast<std::size_t>(column)](int player) {
        return keys_[static_cast<std::size_t>(player)].order[place];
    };
    std::ranges::stable_sort(order_, [&](int one, int other) {
        const int a = key(one);
        const int b = key(other);
        if (a == missing || b == missing) return a != missing && b == missing;
        return falling ? b < a : a < b;
    });
}

void PlayerSearch::filter() {
    shown_.clear();
    std::ranges::copy_if(order_, std::back_inserter(shown_), [this](int player) { return fits(player); });
}

bool PlayerSearch::fits(int player) const {
    const auto place = static_cast<std::size_t>(player);
    const ReportPlayer& one = report_.players[place];
    const Keys& keys = keys_[place];
    if (wish_.role && keys.role != *wish_.role) return false;
    if (wish_.team && one.team != *wish_.team && std::ranges::find(one.clubs, *wish_.team) == one.clubs.end()) {
        return false;
    }
    for (std::size_t skill = 0; skill < skill_count; ++skill) {
        if (one.skills[skill] < wish_.least[skill]) return false;
    }
    return keys.name.find(wish_.name) != std::string::npos;
}

}  // namespace kalco::app
