#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/position.h"
#include "disc/indexes.h"

/// The catalogue of the 96 teams: what each is called, and how much room the disc has for its names.
namespace kalco {

inline constexpr int name_table_count = 6;

/// One row of the catalogue. A length or position of 0 means that the team has no such entry.
struct TeamFacts {
    std::string_view row;  ///< The text of its row in cboSeqSQ.
    ImagePos full_width_position;
    int full_width_bytes;
    std::array<int, name_table_count> name_lengths;  ///< T1 to T6, the greatest number of characters.
};

inline constexpr std::array<TeamFacts, Team::count> team_facts{{
    {"Ireland", 2003981, 14, {7, 7, 7, 0, 7, 7}},
    {"Scotland", 2003965, 14, {7, 11, 11, 0, 11, 11}},
    {"Wales", 2003953, 10, {7, 7, 7, 0, 7, 7}},
    {"England", 2003937, 14, {7, 11, 11, 0, 11, 7}},
    {"Portugal", 0, 0, {7, 7, 7, 0, 11, 11}},
    {"Spain", 2003609, 10, {7, 7, 7, 0, 7, 7}},
    {"France", 2003597, 10, {7, 7, 7, 0, 7, 7}},
    {"Belgium", 2003585, 10, {7, 7, 7, 0, 7, 7}},
    {"Netherland", 2003573, 10, {7, 7, 7, 0, 7, 11}},
    {"Switzerland", 2003561, 10, {7, 3, 3, 0, 7, 11}},
    {"Italy", 2003549, 10, {7, 7, 7, 0, 7, 7}},
    {"Czech", 2003537, 10, {7, 3, 3, 0, 7, 7}},
    {"Germany", 2003525, 10, {7, 7, 7, 0, 7, 7}},
    {"Denmark", 2003513, 10, {7, 7, 7, 0, 7, 7}},
    {"Norway", 2003501, 10, {7, 7, 7, 0, 7, 7}},
    {"Sweden", 2003485, 12, {7, 7, 7, 0, 11, 7}},
    {"Finland", 2003469, 14, {7, 7, 7, 0, 11, 7}},
    {"Poland", 2003457, 10, {7, 7, 7, 0, 11, 7}},
    {"Slovakia", 2003445, 10, {7, 7, 7, 0, 7, 11}},
    {"Austria", 2003429, 14, {7, 7, 7, 0, 7, 7}},
    {"Hungary", 2003417, 10, {7, 7, 7, 0, 7, 7}},
    {"Slovenia", 2003405, 10, {7, 7, 7, 0, 7, 11}},
    {"Croatia", 2003393, 10, {7, 7, 7, 0, 7, 7}},
    {"Yugoslavia", 2003377, 14, {7, 11, 11, 0, 11, 11}},
    {"Rumania", 2003365, 10, {7, 7, 7, 0, 7, 7}},
    {"Bulgaria", 2003353, 10, {7, 7, 7, 0, 11, 11}},
    {"Greece", 2003341, 10, {7, 7, 7, 0, 7, 7}},
    {"Turkey", 2003329, 10, {7, 3, 3, 0, 7, 7}},
    {"Ukrainia", 2003317, 10, {7, 7, 7, 0, 7, 7}},
    {"Russia", 2003305, 10, {7, 3, 3, 0, 7, 7}},
    {"Morocco", 2003293, 10, {7, 7, 7, 0, 7, 7}},
    {"Tunisia", 2003281, 10, {7, 7, 7, 0, 7, 7}},
    {"Egypt", 2003269, 10, {7, 7, 7, 0, 7, 7}},
    {"Nigeria", 2003253, 14, {7, 7, 7, 0, 11, 7}},
    {"Cameroon", 2003241, 10, {7, 7, 7, 0, 7, 11}},
    {"S. Africa", 2003229, 10, {7, 7, 7, 0, 7, 11}},
    {"Senegal", 2003217, 10, {7, 7, 7, 0, 7, 7}},
    {"Usa", 2003205, 10, {7, 7, 7, 0, 7, 11}},
    {"Mexico", 2003193, 10, {7, 7, 7, 0, 7, 7}},
    {"Costarica", 2003181, 10, {7, 7, 7, 0, 7, 11}},
    {"Colombia", 2003169, 10, {7, 7, 7, 0, 7, 11}},
    {"Brazil", 2003157, 10, {7, 7, 7, 0, 7, 7}},
    {"Peru", 2003145, 8, {7, 7, 7, 0, 7, 7}},
    {"Chile", 2003133, 10, {3, 3, 3, 0, 3, 7}},
    {"Paraguay", 2003121, 10, {7, 7, 7, 0, 11, 11}},
    {"Uruguay", 2003109, 10, {7, 7, 7, 0, 7, 7}},
    {"Argentina", 2003093, 14, {7, 7, 7, 0, 11, 11}},
    {"Ecuador", 2003081, 10, {7, 7, 7, 0, 7, 7}},
    {"Japan", 2003069, 10, {3, 7, 7, 0, 7, 7}},
    {"Korea", 2003057, 10, {3, 7, 7, 0, 7, 7}},
    {"China", 2003045, 10, {3, 7, 7, 0, 7, 7}},
    {"Iran", 2003033, 10, {7, 3, 3, 0, 7, 7}},
    {"Arabia S.", 2003017, 14, {7, 11, 11, 0, 11, 11}},
    {"Australia", 2003001, 14, {7, 7, 7, 0, 11, 11}},
    {"All Stars Euro", 2002977, 17, {7, 0, 0, 0, 0, 0}},
    {"World All Stars", 2002953, 19, {7, 0, 0, 0, 0, 0}},
    {"Classic England", 2002925, 26, {15, 0, 0, 0, 0, 0}},
    {"Classic France", 2002901, 22, {11, 0, 0, 0, 0, 0}},
    {"Classic Olanda", 2002877, 22, {11, 0, 0, 0, 0, 0}},
    {"Classic Italy", 2002853, 22, {11, 0, 0, 0, 0, 0}},
    {"Classic Germany", 2002833, 18, {11, 0, 0, 0, 0, 0}},
    {"Classic Brazil", 2002809, 22, {11, 0, 0, 0, 0, 0}},
    {"Classic Argentina", 2002781, 24, {15, 0, 0, 0, 0, 0}},
    {"Manchester", 2002769, 10, {7, 7, 7, 7, 7, 7}},
    {"Arsenal", 2002757, 10, {7, 7, 7, 7, 7, 7}},
    {"Chelsea", 2002745, 10, {7, 7, 7, 7, 7, 7}},
    {"Liverpool", 2002729, 14, {7, 7, 7, 11, 11, 11}},
    {"Leeds", 2002713, 14, {7, 7, 7, 11, 7, 11}},
    {"Newcastle", 2002701, 10, {7, 7, 7, 11, 7, 11}},
    {"Aston Villa", 2002681, 14, {11, 11, 11, 11, 15, 11}},
    {"Barcellona", 2002665, 14, {7, 7, 7, 11, 7, 11}},
    {"Real Madrid", 2002653, 10, {7, 7, 7, 7, 7, 7}},
    {"Valencia", 2002637, 14, {7, 7, 7, 11, 11, 11}},
    {"Deportivo", 2002621, 14, {7, 7, 7, 11, 11, 11}},
    {"Monaco", 2002605, 14, {7, 11, 11, 11, 11, 11}},
    {"Marsiglia", 2002589, 14, {7, 11, 11, 11, 11, 11}},
    {"P.S.G.", 2002573, 14, {7, 7, 7, 11, 11, 11}},
    {"Bordeaux", 2002561, 10, {7, 7, 7, 7, 7, 7}},
    {"Ajax", 2002545, 14, {7, 7, 7, 11, 11, 11}},
    {"Feyenoord", 2002525, 18, {11, 11, 11, 15, 11, 15}},
    {"P.S.V.", 2002513, 10, {7, 3, 7, 7, 7, 7}},
    {"Inter", 2002501, 10, {3, 3, 3, 7, 7, 7}},
    {"Juventus", 2002489, 10, {7, 7, 7, 11, 7, 11}},
    {"Milan", 2002473, 14, {7, 11, 11, 11, 11, 11}},
    {"Lazio", 2002461, 10, {7, 7, 7, 7, 7, 7}},
    {"Parma", 2002449, 10, {7, 7, 7, 7, 7, 7}},
    {"Fiorentina", 2002437, 10, {7, 7, 7, 7, 7, 7}},
    {"Roma", 2002421, 8, {7, 7, 7, 7, 11, 7}},
    {"Borussia Dort.", 2002401, 18, {11, 11, 11, 11, 11, 11}},
    {"Bayer Monaco", 2002389, 10, {7, 7, 7, 7, 7, 7}},
    {"Leverkusen", 2002377, 10, {3, 3, 3, 7, 7, 7}},
    {"Olympiakos", 2002361, 14, {7, 11, 11, 15, 11, 15}},
    {"Galatasaray", 2002341, 18, {11, 11, 11, 15, 15, 15}},
    {"D. Kiev", 2002329, 10, {7, 7, 7, 7, 7, 7}},
    {"Boca Junior", 2002317, 10, {7, 7, 7, 11, 11, 11}},
    {"Giocatori ML", 0, 0, {0, 0, 0, 0, 0, 0}},
}};

/// What the default team is called in the lists.
inline constexpr std::string_view default_team_name = "Squadra Default ML";

/// Row texts of the team lists: all 96, the 87 of the other tabs, the 32 clubs.
std::vector<std::string> all_team_rows();
std::vector<std::string> short_team_rows();
std::vector<std::string> club_rows();

}  // namespace kalco
