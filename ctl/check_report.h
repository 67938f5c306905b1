#pragma once

#include <string>

#include "work/check/image_check.h"

/// What `check` and `repair` print: a line for each bad sector and one at the end.
namespace kalco::ctl {

/// `sector 1234 (00:18:34) at 2902369: EDC, P, Q`, or the same as JSON.
std::string line_of(const check::BadSector& bad, bool json);
std::string line_of(const check::Summary& summary, bool json);

}  // namespace kalco::ctl
