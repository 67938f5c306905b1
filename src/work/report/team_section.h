#pragma once

#include "work/markup.h"
#include "work/report/report.h"

namespace kalco {

/// A team's section: names, formation, bars, set pieces and players.
void write_team(Markup& page, const Report& report, const ReportTeam& team);

/// A table of all teams that have bars.
void write_comparison(Markup& page, const Report& report);

}  // namespace kalco
