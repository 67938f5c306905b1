#include "work/expression.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "disc/codec/decimal.h"

namespace kalco {
namespace {

/// How deep brackets and `not` may stand in each other.
constexpr int most_levels = 200;
constexpr std::string_view quote_mark = "\"";
constexpr std::string_view signs = "()=!<>\"";

enum class Sign { equal, other, less, less_or_equal, greater, greater_or_equal };
struct SignText {
    std::string_view text;
    Sign sign;
};
/// The longer ones first, so that the first that fits is the right one.
constexpr std::array<SignText, 6> sign_texts{{
    {"!=", Sign::other},
    {"<=", Sign::less_or_equal},
    {">=", Sign::greater_or_equal},
    {"=", Sign::equal},
    {"<", Sign::less},
    {">", Sign::greater},
}};

constexpr bool is_order(Sign sign) {
    return sign != Sign::equal && sign != Sign::other;
}

bool holds(Sign sign, std::int64_t left, std::int64_t right) {
    switch (sign) {
        case Sign::equal: return left == right;
        case Sign::other: return left != right;
        case Sign::less: return left < right;
        case Sign::less_or_equal: return left <= right;
        case Sign::greater: return left > right;
        default: return left >= right;
    }
}

bool is_stored_form(std::string_view value) {
    return value.starts_with('#');
}

Expression::Test compare_texts(const SheetColumn* column, Sign sign, std::string value) {
    return [column, sign, value = std::move(value)](const Expression::Cell& cell) {
        return (cell(column) == value) == (sign == Sign::equal);
    };
}

/// A value outside the window's range is only equal to itself.
Expression::Test compare_numbers(const SheetColumn* column, Sign sign, const std::string& value) {
    if (is_stored_form(value)) {
        return [column, sign, value](const Expression::Cell& cell) {
            const std::string text = cell(column);
            return !text.empty() && (text == value) == (sign == Sign::equal);
        };
    }
    return [column, sign, number = number_of(value)](const Expression::Cell& cell) {
        const std::string text = cell(column);
        if (text.empty()) return false;
        return is_stored_form(text) ? sign == Sign::other : holds(sign, number_of(text), number);
    };
}

class Parser {
public:
    Parser(const Sheet& sheet, std::string_view text) : sheet_(sheet), rest_(text) {}

    Expression::Test parse() {
        Expression::Test test = either();
        if (!at_end()) throw ExpressionError("nothing is expected at: " + std::string(rest_));
        return test;
    }

private:
    using Tests = std::vector<Expression::Test>;

    Expression::Test either() {
        Tests tests{both()};
        while (take_word("or")) tests.push_back(both());
        if (tests.size() == 1) return std::move(tests.front());
        return [tests = std::move(tests)](const Expression::Cell& cell) {
            return std::any_of(tests.begin(), tests.end(), [&](const auto& test) { return test(cell); });
        };
    }

    Expression::Test both() {
        Tests tests{single()};
        while (take_word("and")) tests.push_back(single());
        if (tests.size() == 1) return std::move(tests.front());
        return [tests = std::move(tests)](const Expression::Cell& cell) {
            return std::all_of(tests.begin(), tests.end(), [&](const auto& test) { return test(cell); });
        };
    }

    Expression::Test single() {
        if (++level_ > most_levels) throw ExpressionError("too many brackets in each other");
        Expression::Test test;
        if (take_word("not")) {
            test = [denied = single()](const Expression::Cell& cell) { return !denied(cell); };
        } else if (take("(")) {
            test = either();
            if (!take(")")) throw ExpressionError("a bracket is never closed");
        } else {
            test = comparison();
        }
        --level_;
        return test;
    }

    Expression::Test comparison() {
        const std::string_view name = next_word();
        if (name.empty()) throw ExpressionError(at_end() ? "a field is missing" : "no field: " + std::string(rest_));
        const SheetColumn* column = field_named(sheet_, name);
        const Sign sign = next_sign(name);
        std::string value = next_value(name);
        const bool numbers = column != nullptr && column->field->kind == FieldKind::number;
        if (!numbers && is_order(sign))
            throw ExpressionError(std::string(name) + " is no number: it takes = and != only");
        if (!numbers) return compare_texts(column, sign, std::move(value));
        if (is_stored_form(value) ? is_order(sign) : !is_number(value)) {
            throw ExpressionError(std::string(name) + " is compared with what is no number: " + value);
        }
        return compare_numbers(column, sign, value);
    }

    Sign next_sign(std::string_view name) {
        for (const SignText& each : sign_texts) {
            if (take(each.text)) return each.sign;
        }
        throw ExpressionError(std::string(name) + " is followed by none of = != < <= > >=");
    }

    std::string next_value(std::string_view name) {
        if (!take(quote_mark)) {
            const std::string_view word = next_word();
            if (word.empty()) throw ExpressionError(std::string(name) + " is compared with nothing");
            return std::string(word);
        }
        std::string value;
        for (;;) {
            const auto end = rest_.find(quote_mark);
            if (end == std::string_view::npos) throw ExpressionError("a quote is never closed");
            value += rest_.substr(0, end);
            rest_.remove_prefix(end + 1);
            if (!rest_.starts_with(quote_mark)) return value;
            value += quote_mark;
            rest_.remove_prefix(1);
        }
    }

    static bool is_blank(char character) { return character == ' ' || (character >= '\t' && character <= '\r'); }

    void skip_blanks() {
        while (!rest_.empty() && is_blank(rest_.front())) rest_.remove_prefix(1);
    }

    bool at_end() {
        skip_blanks();
        return rest_.empty();
    }

    bool take(std::string_view sign) {
        skip_blanks();
        if (!rest_.starts_with(sign)) return false;
        rest_.remove_prefix(sign.size());
        return true;
    }

    std::string_view peek_word() {
        skip_blanks();
        const auto* const end = std::find_if(rest_.begin(), rest_.end(), [](char character) {
            return is_blank(character) || signs.find(character) != std::string_view::npos;
        });
        return rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    }

    std::string_view next_word() {
        const std::string_view word = peek_word();
        rest_.remove_prefix(word.size());
        return word;
    }

    bool take_word(std::string_view word) {
        if (peek_word() != word) return false;
        next_word();
        return true;
    }

    const Sheet& sheet_;
    std::string_view rest_;
    int level_ = 0;
};

}  // namespace

Expression parse_expression(const Sheet& sheet, std::string_view text) {
    return Expression(Parser(sheet, text).parse());
}

const SheetColumn* field_named(const Sheet& sheet, std::string_view name) {
    if (name == id_column) return nullptr;
    const SheetColumn* column = sheet.column_named(name);
    if (column == nullptr) throw ExpressionError("unknown field " + std::string(name));
    return column;
}

}  // namespace kalco
