#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "work/sheets/field.h"

/// Conditions on the rows of a sheet, as a person types them:
///
///     role = Terzino and (speed >= 17 or not age < 24)
///
/// A comparison is a field, one of = != < <= > >=, and a value; `not` binds before `and`, `and` before `or`. A value
/// with blanks or one of ()=!<>" stands in double quotes, a quote in it is doubled.
namespace kalco {

/// An expression that is none, or that names a field that the sheet lacks.
class ExpressionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Expression {
public:
    /// The cell of the row in question, UTF-8; "" where the row lacks the field.
    using Cell = std::function<std::string(const SheetColumn* column)>;

    /// Whether a row fits. A number that the row lacks fits no comparison, one outside the window's range (`#7`) no
    /// order.
    bool fits(const Cell& cell) const { return test_(cell); }

    using Test = std::function<bool(const Cell&)>;
    explicit Expression(Test test) : test_(std::move(test)) {}

private:
    Test test_;
};

/// Throws ExpressionError. Cell is asked for nullptr when the id is meant.
Expression parse_expression(const Sheet& sheet, std::string_view text);

/// The column of a name, nullptr for the id. Throws ExpressionError for an unknown one.
const SheetColumn* field_named(const Sheet& sheet, std::string_view name);

}  // namespace kalco
