#pragma once

#include "work/markup.h"
#include "work/report/report.h"

namespace kalco {

/// A table of a team's players, a row each with portrait and skills. A club's tell whom they are linked to.
void write_roster_table(Markup& page, const Report& report, const ReportTeam& team);
/// The same of the pool.
void write_pool_table(Markup& page, const Report& report);

/// "Inter" as a link to that team.
void write_team_link(Markup& page, const Report& report, Team team);

}  // namespace kalco
