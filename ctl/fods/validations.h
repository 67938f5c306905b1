#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "work/markup.h"
#include "work/sheets/field.h"

namespace kalco::ctl::fods {

/// A cell of the workbook.
struct CellPlace {
    std::string_view sheet;
    std::size_t column = 0;  ///< From 0 on.
    int row = 1;

    /// "players.D2".
    std::string name() const;
};

/// What a spreadsheet refuses when someone types it. Each cell has the name of
/// a rule; alike rules are one.
class Validations {
public:
    /// `player_ids`: the cells that links can be picked from, such as
    /// "$players.$A$2:.$A$1912"; "" when there are none.
    explicit Validations(std::string player_ids) : player_ids_(std::move(player_ids)) {}

    /// The rule for a cell that is only to be read. The name is good until the
    /// next call.
    std::string_view read_only(const CellPlace& cell);
    /// The rule for a field of a row.
    std::string_view for_field(const Field& field, const FieldPlace& place, const CellPlace& cell);

    /// The element table:content-validations of all rules that were named;
    /// nothing without any.
    void write(Markup& markup) const;

private:
    struct Rule {
        std::string name;
        std::string condition;
        std::string message;
        bool list = false;
        std::string cell;  ///< The first one that named it.
    };

    /// The greatest number, or the most bytes, that the place of a field can
    /// take.
    static int limit_of(const Field& field, const FieldPlace& place);
    Rule rule_of(const Field& field, int limit, std::string_view cell) const;

    std::string player_ids_;
    std::vector<Rule> rules_;
    std::map<std::pair<const Field*, int>, std::size_t> places_;  ///< By field and limit; nullptr for read-only cells.
};

}  // namespace kalco::ctl::fods
