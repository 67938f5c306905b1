#include "ctl/demo/players.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace kalco::demo {
namespace {

/// What a role wants of a player: which skills stand out, and how tall he is.
struct RoleFacts {
    std::array<Skill, 4> strengths;
    std::array<Skill, 3> weaknesses;
    int usual_height;
};

/// By Role.
constexpr std::array<RoleFacts, 8> role_facts{{
    {{Skill::defence, Skill::reaction, Skill::jump, Skill::balance},
     {Skill::attack, Skill::dribbling, Skill::curve},
     188},
    {{Skill::defence, Skill::heading, Skill::jump, Skill::balance},
     {Skill::attack, Skill::dribbling, Skill::curve},
     185},
    {{Skill::defence, Skill::speed, Skill::stamina, Skill::passing},
     {Skill::heading, Skill::shot_accuracy, Skill::jump},
     178},
    {{Skill::defence, Skill::stamina, Skill::passing, Skill::positivity},
     {Skill::shot_accuracy, Skill::jump, Skill::dribbling},
     179},
    {{Skill::stamina, Skill::speed, Skill::passing, Skill::acceleration},
     {Skill::heading, Skill::defence, Skill::jump},
     176},
    {{Skill::technique, Skill::passing, Skill::dribbling, Skill::curve},
     {Skill::defence, Skill::heading, Skill::balance},
     175},
    {{Skill::attack, Skill::shot_accuracy, Skill::shot_power, Skill::heading},
     {Skill::defence, Skill::passing, Skill::stamina},
     181},
    {{Skill::attack, Skill::speed, Skill::acceleration, Skill::dribbling},
     {Skill::defence, Skill::heading, Skill::balance},
     174},
}};

void set_skills(PlayerValues& values, const RoleFacts& facts, int strength, Random& random) {
    for (std::int64_t& skill : values.skills) skill = 13 + strength / 2 + random.between(-1, 1);
    for (const Skill skill : facts.strengths) values.skill(skill) += 1 + random.below(3);
    for (const Skill skill : facts.weaknesses) values.skill(skill) -= random.below(2);
    for (std::int64_t& skill : values.skills) {
        skill = std::clamp<std::int64_t>(skill, lowest_skill, highest_skill);
    }
}

void set_looks(PlayerValues& values, Sound sound, Random& random) {
    values.hair_style = random.below(static_cast<int>(hair_style_texts.size()));
    values.hair_colour = random.below(static_cast<int>(hair_colour_texts.size()));
    if (random.chance(35)) {
        values.beard_style = random.between(1, static_cast<int>(beard_texts.size()) - 1);
        values.beard_colour = random.below(static_cast<int>(beard_texts.size()));
    }
    switch (sound) {
        case Sound::eastern: values.skin = 1; break;
        case Sound::southern: values.skin = random.between(2, 3); break;
        case Sound::levantine:
        case Sound::iberian: values.skin = random.chance(30) ? 2 : 0; break;
        default: values.skin = random.chance(12) ? random.between(2, 3) : 0;
    }
    values.boots = random.below(static_cast<int>(boots_texts.size()));
    values.foot = random.chance(20) ? 1 : random.chance(10) ? 2 : 0;
}

/// A record whose looks and role are a lone beard bit would not read back: its reader takes them for no beard at all.
void keep_readable(PlayerValues& values) {
    if (values.hair_style == 0 && values.hair_colour == 0 && values.role == 0) values.hair_style = 1;
}

}  // namespace

std::string Player::record() const {
    return record_of_words(pack_player(values));
}

int Player::cost() const {
    const std::int64_t sum = std::accumulate(values.skills.begin(), values.skills.end(), std::int64_t{0});
    const std::int64_t above = sum - lowest_skill * static_cast<std::int64_t>(skill_count);
    const std::int64_t years_beyond = std::max<std::int64_t>(values.age - 30, 0);
    return static_cast<int>(std::clamp<std::int64_t>(3 * above - 4 * years_beyond, 1, highest_cost));
}

Roles squad_roles(const std::array<Role, 10>& field_players, Random& random) {
    Roles roles{};
    std::copy(field_players.begin(), field_players.end(), roles.begin() + 1);
    // A reserve for the goal and for every field player, and one more somewhere.
    roles[11] = Role::goalkeeper;
    std::copy(field_players.begin(), field_players.end(), roles.begin() + 12);
    roles[22] = random.chance(40) ? Role::goalkeeper : random.one_of(field_players);
    return roles;
}

Player make_player(Sound sound, int strength, Role role, int number, Random& random) {
    const RoleFacts& facts = role_facts[static_cast<std::size_t>(role)];
    Player player{invented_name(sound, random), {}};
    PlayerValues& values = player.values;
    values.role = static_cast<std::int64_t>(role);
    values.number = number;
    values.in_role = !random.chance(12);
    // One draw a statement: the order of two draws in one expression is the compiler's.
    values.age = 17 + random.below(9);
    values.age += random.below(11);
    values.height = facts.usual_height + random.between(-6, 4);
    values.height += random.between(-4, 4);
    values.build = std::clamp<std::int64_t>((values.height - 160) / 6 + random.between(-1, 1), 0, 7);
    set_skills(values, facts, strength, random);
    set_looks(values, sound, random);
    keep_readable(values);
    return player;
}

std::array<int, roster_players> make_numbers(int highest, Random& random) {
    std::array<int, roster_players> numbers{};
    std::iota(numbers.begin(), numbers.end(), 1);
    // The reserves wear the numbers behind 11 in any order, some of them higher ones.
    std::vector<int> others(static_cast<std::size_t>(highest - roster_players));
    std::iota(others.begin(), others.end(), roster_players + 1);
    random.shuffle(others);
    const int higher = random.below(6);
    for (int k = 0; k < higher; ++k) {
        numbers[static_cast<std::size_t>(random.between(12, 22))] = others[static_cast<std::size_t>(k)];
    }
    for (int k = 0; k < 20; ++k) {
        std::swap(numbers[static_cast<std::size_t>(random.between(12, 22))],
                  numbers[static_cast<std::size_t>(random.between(12, 22))]);
    }
    // Field players have swapped shirts now and then.
    for (int k = 0; k < 3; ++k) {
        std::swap(numbers[static_cast<std::size_t>(random.between(1, 10))],
                  numbers[static_cast<std::size_t>(random.between(1, 10))]);
    }
    return numbers;
}

}  // namespace kalco::demo
