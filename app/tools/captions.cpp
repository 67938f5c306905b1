#include "app/tools/captions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "app/text.h"
#include "disc/player_facts.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

struct Caption {
    std::string_view name;
    const char16_t* italian;
};

constexpr std::array sheet_captions{
    Caption{"players", u"Giocatori"},        Caption{"teams", u"Nomi delle squadre"},
    Caption{"formations", u"Formazioni"},    Caption{"bars", u"Barre"},
    Caption{"numbers", u"Numeri di maglia"}, Caption{"set_pieces", u"Kickers e capitani"},
    Caption{"links", u"Link Master League"},
};

/// By the field's name; a run's columns add their number. What the player's record holds has its captions in the table
/// of its bits.
constexpr std::array field_captions{
    Caption{"players.team", u"Squadra"},
    Caption{"players.rev", u"Revisione"},
    Caption{"players.name", u"Nome"},
    Caption{"players.cost", u"Costo ML"},
    Caption{"teams.short", u"Sigla"},
    Caption{"teams.full", u"Nome per esteso"},
    Caption{"teams.t", u"Nome nella tabella"},
    Caption{"formations.role", u"Ruolo"},
    Caption{"formations.x", u"X"},
    Caption{"formations.y", u"Y"},
    Caption{"bars.offense", u"Attacco"},
    Caption{"bars.defense", u"Difesa"},
    Caption{"bars.power", u"Potenza"},
    Caption{"bars.speed", u"Velocità"},
    Caption{"bars.technique", u"Tecnica"},
    Caption{"numbers.n", u"Giocatore"},
    Caption{"set_pieces.short_free_kick", u"Punizioni corte"},
    Caption{"set_pieces.long_free_kick", u"Punizioni lunghe"},
    Caption{"set_pieces.corner_right", u"Corner da destra"},
    Caption{"set_pieces.corner_left", u"Corner da sinistra"},
    Caption{"set_pieces.penalty", u"Rigori"},
    Caption{"set_pieces.captain", u"Capitano"},
    Caption{"links.s", u"Giocatore"},
};

/// Empty for an unknown name.
template <typename Captions>
QString found(const Captions& captions, std::string_view name) {
    const auto* const caption =
        std::find_if(captions.begin(), captions.end(), [&](const Caption& each) { return each.name == name; });
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
