#pragma once

#include <string>
#include <string_view>

#include "work/report/report.h"

namespace kalco {

/// The report as one HTML page, well-formed as XML, that asks for nothing from a network. `title` is UTF-8.
std::string report_page(const Report& report, std::string_view title);

}  // namespace kalco
