#include "ctl/fods/validations.h"

#include <algorithm>

#include "ctl/fods/sheet_writer.h"
#include "disc/codec/latin1.h"

namespace kalco::ctl::fods {
namespace {

std::string list_of(std::span<const std::string_view> choices) {
    std::string list;
    for (const std::string_view choice : choices) {
        if (!list.empty()) list += ';';
        list += '"' + utf8_of_latin1(choice) + '"';
    }
    return list;
}

/// The reference to a cell itself: "[.D2]" for "players.D2".
std::string own_reference(std::string_view cell) {
    return '[' + std::string(cell.substr(cell.find('.'))) + ']';
}

}  // namespace

std::string CellPlace::name() const {
    return std::string(sheet) + '.' + letters_of(column) + std::to_string(row);
}

int Validations::limit_of(const Field& field, const FieldPlace& place) {
    switch (field.kind) {
        case FieldKind::number: return std::min(field.highest, field.base + (1 << place.bits.width) - 1);
        case FieldKind::text:
        case FieldKind::wide_text: return place.bytes.bytes();
        default: return 0;
    }
}

Validations::Rule Validations::rule_of(const Field& field, int limit, std::string_view cell) const {
    const std::string most = std::to_string(limit);
    Rule rule;
    switch (field.kind) {
        case FieldKind::team:
        case FieldKind::revision:
            rule.condition = "of:is-true-formula(FALSE())";
            rule.message = "Questa cella si può solo leggere.";
            break;
        case FieldKind::text:
            rule.condition = "of:cell-content-text-length()<=" + most;
            rule.message = "Al massimo " + most + " caratteri.";
            break;
        case FieldKind::wide_text: {
            const std::string own = own_reference(cell);
            rule.condition =
                "of:is-true-formula(LEN(" + own + ")+LEN(SUBSTITUTE(" + own + R"(;" ";""))<=)" + most + ')';
            rule.message = "Il nome può avere " + most + " byte: due per ogni lettera o punto, uno per ogni spazio.";
            break;
        }
        case FieldKind::number: {
            const std::string least = std::to_string(field.lowest);
            rule.condition =
                "of:cell-content-is-whole-number() and cell-content-is-between(" + least + ',' + most + ')';
            rule.message = "Solo numeri interi da " + least + " a " + most + '.';
            break;
        }
        case FieldKind::choice:
            rule.condition = "of:cell-content-is-in-list(" + list_of(field.choices) + ')';
            rule.message = "Solo i valori della lista.";
            rule.list = true;
            break;
        case FieldKind::link:
            rule.list = !player_ids_.empty();
            rule.condition = rule.list ? "of:cell-content-is-in-list([" + player_ids_ + "])"
                                       : std::string("of:cell-content-text-length-is-between(4,6)");
            rule.message = "Solo l'id di un giocatore, come t10p03 o m001.";
            break;
    }
    return rule;
}

std::string_view Validations::read_only(const CellPlace& cell) {
    static constexpr Field read_only_field{{}, FieldKind::revision};
    return for_field(read_only_field, {Piece{}, {}}, cell);
}

std::string_view Validations::for_field(const Field& field, const FieldPlace& place, const CellPlace& cell) {
    const int limit = limit_of(field, place);
    const auto [known, added] = places_.try_emplace({&field, limit}, rules_.size());
    if (added) {
        const std::string name = cell.name();
        Rule rule = rule_of(field, limit, name);
        rule.name = 'v' + std::to_string(rules_.size() + 1);
        rule.cell = name;
        rules_.push_back(std::move(rule));
    }
    return rules_[known->second].name;
}

void Validations::write(Markup& markup) const {
    if (rules_.empty()) return;
    markup.open("table:content-validations");
    for (const Rule& rule : rules_) {
        markup.open("table:content-validation")
            .attribute("table:name", rule.name)
            .attribute("table:condition", rule.condition)
            .attribute("table:allow-empty-cell", "true")
            .attribute("table:display-list", rule.list ? "unsorted" : "none")
            .attribute("table:base-cell-address", rule.cell);
        markup.open("table:error-message")
            .attribute("table:title", "Valore non ammesso")
            .attribute("table:display", "true")
            .attribute("table:message-type", "stop")
            .leaf("text:p", rule.message)
            .close()
            .close();
    }
    markup.close();
}

}  // namespace kalco::ctl::fods
