#include "app/tools/changes/change_words.h"

#include "app/text.h"
#include "app/tools/captions.h"
#include "disc/teams.h"
#include "work/sheets/ids.h"

namespace kalco::app {
namespace {

QString utf8(const std::string& text) {
    return QString::fromStdString(text);
}

QString player_name(int row, const DiscBytes& disc) {
    static const Sheet& players = *sheet_named(players_sheet);
    static const SheetColumn& name = *players.column_named("name");
    return utf8(cell_at(disc, name, row));
}

}  // namespace

int group_of(const FieldChange& change) {
    const std::string_view sheet = change.sheet->name;
    if (sheet == players_sheet) return team_of(place_of_row(change.row)).value();
    if (sheet == "teams") return change.row;
    if (sheet == "links") return team_of(Club(change.row)).value();
    const TeamRow row(change.row);
    return row == default_team_row ? default_team_group : team_of(row).value();
}

QString group_name(int group) {
    if (group == default_team_group) return qt_text(default_team_name);
    return qt_text(team_facts.at(static_cast<std::size_t>(group)).row);
}

QString owner_of(const FieldChange& change, const DiscBytes& disc) {
    if (change.sheet->name != players_sheet) return caption_of(*change.sheet);
    const PlayerPlace place = place_of_row(change.row);
    const auto* const roster = std::get_if<RosterPlace>(&place);
    const int number = roster == nullptr ? std::get<PoolRow>(place).value() : roster->player;
    return QStringLiteral("%1. %2").arg(number + 1).arg(player_name(change.row, disc));
}

QString shown_value(const FieldChange& change, const FieldValue& value, const DiscBytes& disc) {
    const std::string cell = cell_of(*change.column, value);
    if (cell.empty()) return QStringLiteral("(vuoto)");
    if (change.column->field->kind == FieldKind::link) {
        if (const auto place = player_of_id(cell)) {
            return QStringLiteral("%1 (%2)").arg(player_name(row_of_place(*place), disc),
                                                 group_name(team_of(*place).value()));
        }
    }
    return utf8(cell);
}

QString count_of_fields(int count) {
    return count == 1 ? QStringLiteral("1 campo") : QStringLiteral("%1 campi").arg(count);
}

}  // namespace kalco::app
