// Any bytes as an expression on the players: it is refused with a reason, or each player fits it or fits its denial.

#include "fuzz/sheet_bytes.h"
#include "work/expression.h"
#include "work/sheets/values.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    const std::string text = fuzz::Bytes(data, size).rest();
    const Sheet& players = *sheet_named(players_sheet);
    try {
        const Expression fits = parse_expression(players, text);
        const Expression denied = parse_expression(players, "not (" + text + ")");
        for (int row = 0; row < players.rows; row += 97) {
            const auto cell = [&](const SheetColumn* column) {
                return column == nullptr ? players.id(row) : cell_at(fuzz::sheet_bytes(), *column, row);
            };
            fuzz::require(fits.fits(cell) != denied.fits(cell));
        }
    } catch (const ExpressionError& error) {
        fuzz::require(error.what() != std::string());
    }
    return 0;
}
