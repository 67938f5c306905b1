#include "support/disc_tables.h"

namespace kalco::test {

const std::array<PrintedTeam, 96> printed_teams{{
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

const std::array<PrintedSplit, 7> printed_name_splits{{
    {0, 0, 8, 387793, 388105},
    {8, 21, 6, 390147, 390457},
    {17, 19, 4, 392501, 392809},
    {26, 17, 2, 394855, 395161},
    {44, 12, 8, 399553, 399865},
    {53, 10, 6, 401907, 402217},
    {62, 8, 4, 404261, 404569},
}};

const std::array<PrintedSplit, 6> printed_record_splits{{
    {1, 21, 4, 2180021, 2180329},
    {16, 17, 8, 2184721, 2185033},
    {24, 4, 4, 2187077, 2187385},
    {39, 0, 8, 2191777, 2192089},
    {46, 10, 4, 2194133, 2194441},
    {61, 6, 8, 2198833, 2199145},
}};

const std::array<PrintedSplit, 1> printed_pool_name_splits{{{95, 408, 8, 2010673, 2010985}}};
const std::array<PrintedSplit, 2> printed_pool_record_splits{{
    {95, 148, 8, 2205889, 2206201},
    {95, 319, 4, 2208245, 2208553},
}};

const std::array<PrintedDefaultSlot, 23> printed_default_slots{{
    {348, 2010073, 2208897}, {310, 2009693, 2208137}, {320, 2009793, 2208561}, {166, 2007949, 2206409},
    {324, 2009833, 2208609}, {274, 2009333, 2207705}, {98, 2007269, 2205289},  {167, 2007959, 2206421},
    {57, 2006859, 2204797},  {389, 2010483, 2209389}, {99, 2007279, 2205301},  {50, 2006789, 2204713},
    {299, 2009583, 2208005}, {8, 2006369, 2204209},   {303, 2009623, 2208053}, {3, 2006319, 2204149},
    {9, 2006379, 2204221},   {300, 2009593, 2208017}, {433, 2011227, 2209917}, {305, 2009643, 2208077},
    {209, 2008683, 2206925}, {313, 2009723, 2208173}, {312, 2009713, 2208161},
}};

namespace {

bool is_user_data(std::int64_t position) {
    const std::int64_t place = (position - 1) % 2352;
    return place >= 24 && place < 24 + 2048;
}

std::int64_t walked(std::int64_t position, int count, int step) {
    while (count > 0) {
        position += step;
        if (is_user_data(position)) --count;
    }
    return position;
}

/// How many bytes an entry takes on the disc.
int slot(int team, int table) {
    if (table == 1 && team == 80) return 8;
    if (table == 5 && (team == 35 || team == 52)) return 16;
    return printed_teams[static_cast<std::size_t>(team)].lengths[static_cast<std::size_t>(table)] + 1;
}

}  // namespace

std::int64_t position_before(std::int64_t position, int count) {
    return walked(position, count, -1);
}

std::int64_t position_behind(std::int64_t position, int count) {
    return walked(position, count, 1);
}

std::int64_t table_position(int team, int table) {
    constexpr std::array<std::int64_t, 6> nations{2830941, 4824021, 5652905, 0, 1882897, 1013937};
    constexpr std::array<std::int64_t, 6> clubs{0, 4823181, 5652025, 2004329, 1882285, 1012973};
    const auto column = static_cast<std::size_t>(table);
    if (printed_teams[static_cast<std::size_t>(team)].lengths[column] == 0) return 0;
    const bool own_block = team >= 63 && clubs[column] != 0;
    std::int64_t position = own_block ? clubs[column] : nations[column];
    for (int t = own_block ? 63 : 0; t < team; ++t) position = position_before(position, slot(t + 1, table));
    return position;
}

}  // namespace kalco::test
