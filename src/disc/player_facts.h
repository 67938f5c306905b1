#pragma once

#include <array>
#include <string_view>

/// The player record: three little-endian 32-bit words, 96 bits all told here, and the tables of their values.
namespace kalco {

/// The sixteen skills, stored as the skill minus 12 in three bits.
enum class Skill {
    attack,
    defence,
    balance,
    stamina,
    speed,
    acceleration,
    passing,
    shot_power,
    shot_accuracy,
    jump,
    heading,
    technique,
    dribbling,
    curve,
    positivity,
    reaction,
};
inline constexpr std::size_t skill_count = 16;
inline constexpr int lowest_skill = 12;
inline constexpr int highest_skill = 19;

/// A stretch of bits of one of the words (1 to 3), counted from bit 0. `base` is what a stored 0 means.
struct BitField {
    std::string_view name;
    std::string_view caption;  ///< What the window calls it, Latin-1; empty for spare bits.
    int word;
    int bit;
    int width;
    int base = 0;

    constexpr long long unit() const { return 1LL << bit; }
    /// How many values it can hold.
    constexpr int count() const { return 1 << width; }
};

/// The editor's smallest height; a record stores heights from 148 on, 7 below it.
inline constexpr int lowest_height = 155;
inline constexpr int highest_height = 210;
inline constexpr int lowest_stored_height = 148;
inline constexpr int lowest_age = 15;
inline constexpr int highest_age = 46;
inline constexpr int highest_cost = 250;

inline constexpr BitField role_bits{"role", "Ruolo", 1, 0, 3};
inline constexpr BitField hair_style_bits{"hair_style", "Stile Capelli", 1, 4, 5};
inline constexpr BitField hair_colour_bits{"hair_colour", "Colore Capelli", 1, 9, 3};
inline constexpr BitField beard_style_bits{"beard_style", "Stile Barba", 1, 13, 3};
inline constexpr BitField beard_colour_bits{"beard_colour", "Colore Barba", 1, 17, 3};
inline constexpr BitField height_bits{"height", "Altezza", 1, 20, 6, lowest_stored_height};
inline constexpr BitField number_bits{"number", "N\xB0 Maglia", 1, 26, 5, 1};
inline constexpr BitField out_of_role_bits{"out_of_role", "Fuori ruolo", 1, 31, 1};
inline constexpr BitField skin_bits{"skin", "Colore Pelle", 2, 0, 2};
inline constexpr BitField build_bits{"build", "Corporatura", 2, 2, 3};
inline constexpr BitField age_bits{"age", "Et\xE0", 2, 5, 5, lowest_age};
inline constexpr BitField boots_bits{"boots", "Colore Scarpa", 3, 27, 3};
inline constexpr BitField foot_bits{"foot", "Piede pref.", 3, 30, 2};
inline constexpr std::size_t spare_count = 4;
inline constexpr std::array<BitField, spare_count> spare_bits{{
    {"spare_1_3", "", 1, 3, 1},
    {"spare_1_12", "", 1, 12, 1},
    {"spare_1_16", "", 1, 16, 1},
    {"spare_2_13", "", 2, 13, 1},
}};

/// By Skill.
inline constexpr std::array<BitField, skill_count> skill_bits{{
    {"attack", "Attacco", 2, 29, 3, lowest_skill},
    {"defence", "Difesa", 3, 0, 3, lowest_skill},
    {"balance", "Equilibrio", 2, 14, 3, lowest_skill},
    {"stamina", "Resistenza", 2, 17, 3, lowest_skill},
    {"speed", "Velocit\xE0", 2, 23, 3, lowest_skill},
    {"acceleration", "Accelerazione", 2, 26, 3, lowest_skill},
    {"passing", "Passaggi", 3, 9, 3, lowest_skill},
    {"shot_power", "Potenza Tiro", 3, 3, 3, lowest_skill},
    {"shot_accuracy", "Precis. Tiro", 3, 6, 3, lowest_skill},
    {"jump", "Elevazione", 3, 18, 3, lowest_skill},
    {"heading", "Colpi di Testa", 3, 15, 3, lowest_skill},
    {"technique", "Tecnica", 3, 12, 3, lowest_skill},
    {"dribbling", "Dribbling", 2, 20, 3, lowest_skill},
    {"curve", "Curvare Tiri", 3, 21, 3, lowest_skill},
    {"positivity", "Positivo", 3, 24, 3, lowest_skill},
    {"reaction", "Reazione", 2, 10, 3, lowest_skill},
}};

constexpr const BitField& bits_of(Skill skill) {
    return skill_bits[static_cast<std::size_t>(skill)];
}

/// All 96 bits, in the order of the words and of the bits from 0 up.
inline constexpr std::array<BitField, 33> record_fields{{
    role_bits,
    spare_bits[0],
    hair_style_bits,
    hair_colour_bits,
    spare_bits[1],
    beard_style_bits,
    spare_bits[2],
    beard_colour_bits,
    height_bits,
    number_bits,
    out_of_role_bits,
    skin_bits,
    build_bits,
    age_bits,
    bits_of(Skill::reaction),
    spare_bits[3],
    bits_of(Skill::balance),
    bits_of(Skill::stamina),
    bits_of(Skill::dribbling),
    bits_of(Skill::speed),
    bits_of(Skill::acceleration),
    bits_of(Skill::attack),
    bits_of(Skill::defence),
    bits_of(Skill::shot_power),
    bits_of(Skill::shot_accuracy),
    bits_of(Skill::passing),
    bits_of(Skill::technique),
    bits_of(Skill::heading),
    bits_of(Skill::jump),
    bits_of(Skill::curve),
    bits_of(Skill::positivity),
    boots_bits,
    foot_bits,
}};

/// By stored value. The list cboRuolo has them in another order.
inline constexpr std::array<std::string_view, 8> role_texts{"Portiere",
                                                            "Difensore Centrale",
                                                            "Terzino",
                                                            "Centrocampista Difensivo",
                                                            "Centrocampista Laterale",
                                                            "Trequartista",
                                                            "Centravanti",
                                                            "Attaccante Laterale"};
inline constexpr std::array<std::string_view, 8> role_rows{"Portiere",
                                                           "Terzino",
                                                           "Difensore Centrale",
                                                           "Centrocampista Difensivo",
                                                           "Centrocampista Laterale",
                                                           "Trequartista",
                                                           "Attaccante Laterale",
                                                           "Centravanti"};
inline constexpr std::array<std::string_view, 32> hair_style_texts{
    "A1", "A2", "A3", "B1", "B2", "B3", "B4", "B5", "B6", "C1", "C2", "D1", "D2", "E1", "E2", "F1",
    "F2", "F3", "G1", "H1", "I1", "I2", "I3", "J1", "K1", "L1", "L2", "L3", "M1", "N1", "O1", "P1"};
inline constexpr std::array<std::string_view, 8> hair_colour_texts{"A", "B", "C", "D", "E", "F", "G", "H"};
inline constexpr std::array<std::string_view, 7> beard_texts{"A", "B", "C", "D", "E", "F", "G"};
inline constexpr std::array<std::string_view, 8> boots_texts{"A", "B", "C", "D", "E", "F", "G", "H"};
inline constexpr std::array<std::string_view, 4> skin_texts{"A - Bianco", "B - Giallo", "C - Marrone", "D - Nero"};
inline constexpr std::array<std::string_view, 8> build_texts{"A < 60 Kg",
                                                             "B 60\xF7"
                                                             "65 Kg",
                                                             "C 65\xF7"
                                                             "70 Kg",
                                                             "D 70\xF7"
                                                             "75 Kg",
                                                             "E 75\xF7"
                                                             "80 Kg",
                                                             "F 80\xF7"
                                                             "85 Kg",
                                                             "G 85\xF7"
                                                             "90 Kg",
                                                             "H > 90 Kg"};
inline constexpr std::array<std::string_view, 3> foot_texts{"Destro", "Sinistro", "Ambi"};
inline constexpr std::array<std::string_view, 2> out_of_role_texts{"Si", "No"};

}  // namespace kalco
