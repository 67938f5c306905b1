#include "app/tools/captions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "app/text.h"
#include "disc/player_facts.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

struct NamedCaption {
    std::string_view name;
    const char16_t* italian;
};

constexpr std::array sheet_captions{
    NamedCaption{"players", u"Giocatori"},        NamedCaption{"teams", u"Nomi delle squadre"},
    NamedCaption{"formations", u"Formazioni"},    NamedCaption{"bars", u"Barre"},
    NamedCaption{"numbers", u"Numeri di maglia"}, NamedCaption{"set_pieces", u"Kickers e capitani"},
    NamedCaption{"links", u"Link Master League"},
};

/// By the field's name; a run's columns add their number. What the player's record holds has its captions in the table
/// of its bits.
constexpr std::array field_captions{
    NamedCaption{"players.team", u"Squadra"},
    NamedCaption{"players.rev", u"Revisione"},
    NamedCaption{"players.name", u"Nome"},
    NamedCaption{"players.cost", u"Costo ML"},
    NamedCaption{"teams.short", u"Sigla"},
    NamedCaption{"teams.full", u"Nome per esteso"},
    NamedCaption{"teams.t", u"Nome nella tabella"},
    NamedCaption{"formations.role", u"Ruolo"},
    NamedCaption{"formations.x", u"X"},
    NamedCaption{"formations.y", u"Y"},
    NamedCaption{"bars.offense", u"Attacco"},
    NamedCaption{"bars.defense", u"Difesa"},
    NamedCaption{"bars.power", u"Potenza"},
    NamedCaption{"bars.speed", u"Velocità"},
    NamedCaption{"bars.technique", u"Tecnica"},
    NamedCaption{"numbers.n", u"Giocatore"},
    NamedCaption{"set_pieces.short_free_kick", u"Punizioni corte"},
    NamedCaption{"set_pieces.long_free_kick", u"Punizioni lunghe"},
    NamedCaption{"set_pieces.corner_right", u"Corner da destra"},
    NamedCaption{"set_pieces.corner_left", u"Corner da sinistra"},
    NamedCaption{"set_pieces.penalty", u"Rigori"},
    NamedCaption{"set_pieces.captain", u"Capitano"},
    NamedCaption{"links.s", u"Giocatore"},
};

/// Empty for an unknown name.
template <typename Captions>
QString found(const Captions& captions, std::string_view name) {
    const auto* const caption =
        std::find_if(captions.begin(), captions.end(), [&](const NamedCaption& each) { return each.name == name; });
    return caption == captions.end() ? QString() : QString::fromUtf16(caption->italian);
}

QString caption_of_field(const Sheet& sheet, const Field& field) {
    if (sheet.name == players_sheet) {
        const auto* const bits = std::find_if(record_fields.begin(), record_fields.end(),
                                              [&](const BitField& each) { return each.name == field.name; });
        if (bits != record_fields.end()) return qt_text(bits->caption);
    }
    return found(field_captions, std::string(sheet.name) + '.' + std::string(field.name));
}

}  // namespace

QString caption_of(const Sheet& sheet) {
    return found(sheet_captions, sheet.name);
}

QString caption_of(const Sheet& sheet, const SheetColumn& column) {
    const Field& field = *column.field;
    const QString caption = caption_of_field(sheet, field);
    return field.last == 0 ? caption : QStringLiteral("%1 %2").arg(caption).arg(field.first + column.item);
}

QString caption_of_column(const Sheet* sheet, std::string_view name) {
    QString own = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    for (const Sheet& each : sheets()) {
        const SheetColumn* const column = each.column_named(name);
        if (column == nullptr || (sheet != nullptr && sheet != &each)) continue;
        return QStringLiteral("%1 (%2)").arg(caption_of(each, *column), own);
    }
    return own;
}

}  // namespace kalco::app
