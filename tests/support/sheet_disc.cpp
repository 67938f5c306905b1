#include "support/sheet_disc.h"

#include <random>
#include <stdexcept>

#include "ctl/demo/demo_image.h"
#include "work/sheets/values.h"

namespace kalco::test {
namespace {

/// As many sectors as the last table needs, and one more.
constexpr std::size_t sheet_disc_sectors = 2405;

std::pair<const Sheet&, int> find_row(std::string_view sheet, std::string_view id) {
    const Sheet* found = sheet_named(sheet);
    const auto row = found == nullptr ? std::nullopt : found->row_of(id);
    if (!row) throw std::invalid_argument("no row " + std::string(id) + " in " + std::string(sheet));
    return {*found, *row};
}

const SheetColumn& find_column(const Sheet& sheet, std::string_view column) {
    const SheetColumn* found = sheet.column_named(column);
    if (found == nullptr) throw std::invalid_argument("no column " + std::string(column));
    return *found;
}

}  // namespace

const std::string& demo_image_bytes() {
    static const std::string bytes = [] {
        const demo::DemoDisc disc = demo::make_demo_disc(1);
        std::string result;
        for (std::uint32_t number = 0; number < disc.sectors(); ++number) {
            const RawSector sector = disc.sector(number);
            result.append(sector.begin(), sector.end());
        }
        return result;
    }();
    return bytes;
}

std::string random_image_bytes(std::uint32_t seed) {
    std::mt19937 random(seed);
    std::string bytes(sheet_disc_sectors * sector_bytes, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

DiscBytes sheets_of(const std::string& image) {
    return {[&image](ImagePos position, int bytes) {
                return image.substr(static_cast<std::size_t>(position - 1), static_cast<std::size_t>(bytes));
            },
            sheet_sectors()};
}

std::string with_sheets(std::string image, const DiscBytes& disc) {
    for (const DiscBytes::Run& run : differences(sheets_of(image), disc)) {
        image.replace(static_cast<std::size_t>(run.position - 1), run.bytes.size(), run.bytes);
    }
    return image;
}

std::string cell(const DiscBytes& disc, std::string_view sheet, std::string_view id, std::string_view column) {
    const auto [found, row] = find_row(sheet, id);
    return cell_at(disc, find_column(found, column), row);
}

FieldPlace place_of_cell(std::string_view sheet, std::string_view id, std::string_view column) {
    const auto [found, row] = find_row(sheet, id);
    return find_column(found, column).place(row).value();
}

}  // namespace kalco::test
