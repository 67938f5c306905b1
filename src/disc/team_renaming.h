#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "disc/codec/letters.h"
#include "disc/image/image.h"
#include "disc/indexes.h"

/// Renaming a team or a club at all the places where the game keeps its names. Nothing is checked: a short name is
/// written at the length it has, a long one into what stands behind it.
namespace kalco {

/// The names as the user wrote them.
struct NewNames {
    std::string_view short_name;
    std::string_view full_width;
    std::string_view table_name;
};

/// `shown_name` is the full-width name as the team's selection showed it: the field is cleared as far as that went, and
/// only when the new name is shorter. Error 5 for the team with the split full-width name when the coded name has fewer
/// bytes than the first piece; what was written before stays.
void rename_team(Image& image, LetterEncoder& encoder, Team team, const NewNames& names, std::string_view shown_name);

/// The full-width name is cut to the letters of its field. `shown_name` is the old one as it was shown: the field is
/// cleared as far as that went, and only when the new name is shorter. Without it the whole field is cleared.
void rename_club(Image& image, LetterEncoder& encoder, Club club, const NewNames& names,
                 std::optional<std::string_view> shown_name);

}  // namespace kalco
