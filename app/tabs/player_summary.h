#pragma once

#include <functional>

#include "app/widgets/record_view.h"
#include "app/widgets/rows_view.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {

/// The record of the player selected in a list of the transfers, out of the lines of its file; empty when nothing is
/// selected or the line can't be read.
PlayerSummary summary_of(const ListBox& lines, int row);

/// What listNC shows beside its rows: the nationality, the default players and those that were picked.
std::function<RowNote(int row)> pool_notes(const frmKalco& form);

}  // namespace kalco::app
