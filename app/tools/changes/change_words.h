#pragma once

#include <QString>

#include "disc/indexes.h"
#include "work/change.h"

/// Changes of fields in the window's words.
namespace kalco::app {

/// What changes are grouped by: a team, in the order of the lists, with the pool and the default team as the last two.
inline constexpr int default_team_group = Team::count;
int group_of(const FieldChange& change);
/// "Italy", "Giocatori ML".
QString group_name(int group);

/// Whose field it is: "3. Rossi", the name being that of the disc; for all others what the sheet holds.
QString owner_of(const FieldChange& change, const DiscBytes& disc);

/// A value of the change's field: a player's name for a link, "(vuoto)" for an empty text.
QString shown_value(const FieldChange& change, const FieldValue& value, const DiscBytes& disc);

/// "12 campi".
QString count_of_fields(int count);

}  // namespace kalco::app
