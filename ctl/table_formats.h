#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "work/csv.h"
#include "work/table.h"

/// The file formats of tables.
namespace kalco::ctl {

enum class TableFormat { csv, fods, json };

/// "csv" and so on; also the endings of files.
std::vector<std::string_view> format_names();
/// None for an unknown name.
std::optional<TableFormat> format_named(std::string_view name);
/// By the ending of a file's name; CSV for any other one.
TableFormat format_of_path(std::string_view path);

/// The bytes of a file. CSV holds one table, the first.
std::string file_of_tables(const Tables& tables, TableFormat format, CsvForm form = {});

/// The tables of a file, whose bytes decide what it is. Throws TableError for one that is none.
Tables tables_of_file(std::string bytes);
/// Reads it first, at most 64 MiB. Throws FileError when it can't be read.
Tables read_tables(const std::string& path);

}  // namespace kalco::ctl
