#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "work/expression.h"
#include "work/sheets/disc_bytes.h"

/// The search for players.
namespace kalco {

struct FindOptions {
    std::string text;   ///< UTF-8; part of the name, case and accents apart. "" fits every name.
    std::string where;  ///< An expression on the sheet of the players, "" for none.
    std::string sort;   ///< A field, "" for the disc's order.
};

/// The rows of the players that fit, in the disc's order or rising by a field: numbers by value, those outside the
/// window's range behind them and missing ones last; all else by its text. Equals stay in the disc's order. Throws
/// ExpressionError for an expression that is none and an unknown field.
std::vector<int> find_players(const DiscBytes& disc, const FindOptions& options);

/// Small letters without accents, as a search compares them. UTF-8; what is none stays as it is.
std::string folded(std::string_view text);

}  // namespace kalco
