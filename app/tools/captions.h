#pragma once

#include <QString>

#include "work/sheets/field.h"

/// The sheets and their fields as the window calls them.
namespace kalco::app {

/// "Giocatori", "Numeri di maglia".
QString caption_of(const Sheet& sheet);
/// "Velocità", "Ruolo 2".
QString caption_of(const Sheet& sheet, const SheetColumn& column);
/// A column of a file as a complaint names it, with the name that it has there: "Velocità (speed)"; a name that is no
/// column's as it is. Without a sheet it is the first one that has such a column.
QString caption_of_column(const Sheet* sheet, std::string_view name);

}  // namespace kalco::app
