#pragma once

#include "work/markup.h"
#include "work/report/report.h"

namespace kalco {

/// A team's formation on a pitch, its own goal at the left as in the window, and its module.
void write_pitch(Markup& page, const Report& report, const ReportTeam& team);

/// "4-4-2": how many stand in defence, in midfield and in attack by their roles; empty when a role is unknown.
std::string module_of(const std::vector<ReportSpot>& formation);

}  // namespace kalco
