#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "work/change.h"
#include "work/table.h"

/// Tables and changes as JSON: one object a line, UTF-8, all values texts.
namespace kalco::ctl {

using Json = nlohmann::ordered_json;

/// A row: `"sheet"`, then every column.
Json json_of_row(const Table& table, const TableRow& row);
/// `{"sheet","id","field","old","new"}`.
Json json_of_change(const FieldChange& change);

std::string json_of_tables(const Tables& tables);
/// One table a sheet, by the order in which they come up; rows are counted by lines. A missing key is an empty cell, a
/// number its digits. Throws TableError for a line that is no such object and for what is no UTF-8.
Tables tables_of_json(std::string_view text);

}  // namespace kalco::ctl
