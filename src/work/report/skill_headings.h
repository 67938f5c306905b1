#pragma once

#include <array>
#include <string_view>

#include "disc/player_facts.h"

namespace kalco {

/// The heading of a narrow column, and what it stands for. UTF-8.
struct SkillHeading {
    std::string_view shown;
    std::string_view whole;
};

/// By Skill.
inline constexpr std::array<SkillHeading, skill_count> skill_headings{{
    {"Att", "Attacco"},
    {"Dif", "Difesa"},
    {"Equ", "Equilibrio"},
    {"Res", "Resistenza"},
    {"Vel", "Velocità"},
    {"Acc", "Accelerazione"},
    {"Pas", "Passaggi"},
    {"Pot", "Potenza tiro"},
    {"Pre", "Precisione tiro"},
    {"Ele", "Elevazione"},
    {"Tes", "Colpi di testa"},
    {"Tec", "Tecnica"},
    {"Dri", "Dribbling"},
    {"Cur", "Curvare tiri"},
    {"Pos", "Positivo"},
    {"Rea", "Reazione"},
}};

}  // namespace kalco
