#include "ctl/table_formats.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ctl/files.h"
#include "ctl/fods/fods_reader.h"
#include "ctl/fods/fods_writer.h"
#include "ctl/table_json.h"

namespace kalco::ctl {
namespace {

struct NamedFormat {
    std::string_view name;
    TableFormat format;
};
constexpr std::array<NamedFormat, 3> named_formats{
    {{"csv", TableFormat::csv}, {"fods", TableFormat::fods}, {"json", TableFormat::json}}};

/// What a file of another kind begins with.
struct Stranger {
    std::string_view beginning;
    std::string_view what;
};
constexpr std::array<Stranger, 3> strangers{{
    {"PK\x03\x04", "a zipped workbook; save it as FODS (flat XML) or CSV"},
    {"\xD0\xCF\x11\xE0", "a workbook of an old form; save it as FODS (flat XML) or CSV"},
    {"%PDF", "a PDF, no table"},
}};

constexpr std::size_t most_file_bytes = std::size_t{64} << 20;

std::string small_letters(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return result;
}

}  // namespace

std::vector<std::string_view> format_names() {
    std::vector<std::string_view> names;
    names.reserve(named_formats.size());
    for (const NamedFormat& each : named_formats) names.push_back(each.name);
    return names;
}

std::optional<TableFormat> format_named(std::string_view name) {
    const auto* const found = std::find_if(named_formats.begin(), named_formats.end(),
                                           [&](const NamedFormat& each) { return each.name == name; });
    return found == named_formats.end() ? std::nullopt : std::optional(found->format);
}

TableFormat format_of_path(std::string_view path) {
    const std::string_view name = path.substr(path.find_last_of('/') + 1);
    const auto dot = name.find_last_of('.');
    if (dot == std::string_view::npos) return TableFormat::csv;
    return format_named(small_letters(name.substr(dot + 1))).value_or(TableFormat::csv);
}

std::string file_of_tables(const Tables& tables, TableFormat format, CsvForm form) {
    switch (format) {
        case TableFormat::fods: return fods_of_tables(tables);
        case TableFormat::json: return json_of_tables(tables);
        default: return csv_of_table(tables.at(0), form);
    }
}

Tables tables_of_file(std::string bytes) {
    for (const Stranger& stranger : strangers) {
        if (bytes.starts_with(stranger.beginning)) throw TableError(0, {}, std::string(stranger.what));
    }
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    const std::string_view whole = bytes;
    const std::string_view text = whole.substr(whole.starts_with(byte_order_mark) ? byte_order_mark.size() : 0);
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first != std::string_view::npos && text[first] == '{') return tables_of_json(text);
    if (first != std::string_view::npos && text[first] == '[') {
        throw TableError(0, {}, "a list in brackets; JSON is one object a line here");
    }
    if (first != std::string_view::npos && text[first] == '<') return tables_of_fods(std::move(bytes));
    return {table_of_csv(bytes)};
}

Tables read_tables(const std::string& path) {
    return tables_of_file(read_file(path, most_file_bytes));
}

}  // namespace kalco::ctl
