#pragma once

#include <array>
#include <optional>
#include <string>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/indexes.h"

/// The eight places where a team's name lies, read as what they hold.
namespace kalco {

/// Three letters; the long name in two-byte letters; six tables of capitals.
enum class NamePlace { short_name, full_width, t1, t2, t3, t4, t5, t6 };

inline constexpr std::array<NamePlace, 8> name_places{NamePlace::short_name, NamePlace::full_width, NamePlace::t1,
                                                      NamePlace::t2,         NamePlace::t3,         NamePlace::t4,
                                                      NamePlace::t5,         NamePlace::t6};

/// Where a team's name lies, over the end of a sector too; none where the team has no such name. Only the short name
/// is there for all 96.
std::optional<Pieces> name_field(Team team, NamePlace place);

/// The field's bytes as they stand; empty for a name that the team lacks.
std::string read_name_bytes(const Image& image, Team team, NamePlace place);

}  // namespace kalco
