#include "editor/league/links.h"

#include <optional>
#include <unordered_map>

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/links.h"
#include "disc/teams.h"
#include "editor/league/club_names.h"

namespace kalco {
namespace {

constexpr std::size_t code_digits = 4;
constexpr std::string_view unknown_player = "Giocatore ???";
/// A player whom the pool does not have; the tabs that list all 23 know his name all the same.
constexpr std::string_view vardal_code = "2517";
constexpr std::string_view vardal_name = "Vardal";
constexpr int kicker_slots = 11;

/// Rows by code; the first row of a double code wins. The codes never change.
using CodeIndex = std::unordered_map<std::string, int>;

CodeIndex index_of(const std::vector<std::string>& codes) {
    CodeIndex index;
    for (std::size_t row = 0; row < codes.size(); ++row) index.emplace(codes[row], static_cast<int>(row));
    return index;
}

std::optional<std::string> name_at(const CodeIndex& index, const std::string& code, const ListBox& names) {
    const auto found = index.find(code);
    if (found == index.end()) return std::nullopt;
    return names.item(found->second);
}

bool is_roster_code(const std::string& code) {
    return hex_pair(code.substr(2)) <= last_roster_number;
}

std::optional<std::string> linked_name(const frmKalco& form, const std::string& code) {
    static const CodeIndex roster_rows = index_of(roster_codes());
    static const CodeIndex pool_rows = index_of(pool_codes());
    if (is_roster_code(code)) return name_at(roster_rows, code, form.listNameGiocNaz);
    return name_at(pool_rows, code, form.listNC);
}

/// The same for the tabs that know the player without a row.
std::optional<std::string> linked_name_or_vardal(const frmKalco& form, const std::string& code) {
    if (code == vardal_code) return std::string(vardal_name);
    return linked_name(form, code);
}

/// The row of an 87-row list that names the club, by the tab that is shown.
int club_row_of_tab(const frmKalco& form) {
    switch (form.SSTab1.tab()) {
        case tab::players: return form.cboSeqSQ.row() - (first_club - first_club_row);
        case tab::kickers: return form.cboSquadra.row();
        case tab::formations: return form.cboSeqSQ2.row();
        case tab::numbers: return form.cboSQNum.row();
        default: return -1;
    }
}

std::vector<std::string> read_links(const Image& image, int club) {
    const std::string digits = hex_digits(image.read(link_table_field(Club(club))));
    std::vector<std::string> codes;
    for (std::size_t place = 0; place < digits.size(); place += code_digits) {
        codes.push_back(digits.substr(place, code_digits));
    }
    return codes;
}

void show_kickers(frmKalco& form, const std::vector<std::string>& codes) {
    for (int i = form.txtNM.first(); i <= form.txtNM.last(); ++i) form.txtNM(i).set_text({});
    // A slot that is not found does not take a field: the later names move up.
    int field = form.txtNM.first();
    for (std::size_t slot = 0; slot < kicker_slots; ++slot) {
        if (const auto name = linked_name(form, codes[slot])) form.txtNM(field++).set_text(' ' + *name);
    }
    for (int i = form.txtNM.first(); i <= form.txtNM.last(); ++i) {
        if (form.txtNM(i).text().empty()) form.txtNM(i).set_text(' ' + std::string(unknown_player));
    }
}

void show_marker_name(frmKalco& form, const std::vector<std::string>& codes) {
    form.lblNameG.set_caption({});
    const int slot = form.SelectedMarker - 1;
    if (slot >= 0 && slot < roster_players) {
        if (const auto name = linked_name(form, codes[static_cast<std::size_t>(slot)])) {
            form.lblNameG.set_caption(' ' + *name);
        }
    }
    if (form.lblNameG.caption().empty()) form.lblNameG.set_caption(' ' + std::string(unknown_player));
}

void show_roster(const frmKalco& form, ListBox& list, const std::vector<std::string>& codes) {
    list.clear();
    for (const std::string& code : codes) {
        if (const auto name = linked_name_or_vardal(form, code)) list.add(*name);
    }
    // The filler stands at the end of the list, not in the slot's place.
    for (int row = 0; row < roster_players; ++row) {
        if (list.item(row).empty()) list.add(unknown_player);
    }
}

}  // namespace

void LinKML(int row, ImagePos& position1, ImagePos& position2) {
    if (!is_club_row(row)) return;
    const Pieces field = link_table_field(*club_of(TeamRow(row)));
    position1 = field.position();
    if (field.split()) position2 = field[1].position;
}

void NAMES_GIOC_NAZ(frmKalco& form) {
    constexpr int names = roster_team_count * roster_players + 1;
    std::vector<std::string> rows;
    rows.reserve(names);
    for (int i = 0; i < names; ++i) {
        rows.push_back(read_player_name(form.image, roster_name_field(0, i)));
    }
    form.listNameGiocNaz.assign(std::move(rows));
}

void NEW_NAME_ML(frmKalco& form) {
    const int row = club_row_of_tab(form);
    if (!is_club_row(row)) return;
    const std::vector<std::string> codes = read_links(form.image, row - first_club_row);
    switch (form.SSTab1.tab()) {
        case tab::kickers: show_kickers(form, codes); break;
        case tab::formations: show_marker_name(form, codes); break;
        case tab::numbers: show_roster(form, form.ListName, codes); break;
        default: show_roster(form, form.listDat, codes); break;
    }
}

void listSQLink_Click(frmKalco& form) {
    form.txtNmLgML.set_text(form.listSQLink.text());
    form.txtNmShML.set_text(left(form.listSQLink.text(), short_name_bytes));
}

void cmdLink_Click(frmKalco& form) {
    if (form.listDefault.text().empty() || form.listSQLink.text().empty()) {
        form.inform("Devi selezionare entrambe le squadre");
        return;
    }
    if (!form.txtNmLgML.text().empty() && !form.txtNmShML.text().empty()) SAVE_NAME_ML2(form);
    write_links(form.image, Club(form.listDefault.row()), links_to_team(Team(form.listSQLink.row())));
    form.tell_saved("Link: " + form.listDefault.text() + ", " + form.listSQLink.text());
    form.reopen_image();
}

void connect_links(frmKalco& form) {
    form.listDefault.assign(club_rows());
    form.listHexLinkNames.assign(roster_codes());
    form.slots.NAMES_GIOC_NAZ = [&form] { NAMES_GIOC_NAZ(form); };
    form.slots.NEW_NAME_ML = [&form] { NEW_NAME_ML(form); };
    form.listSQLink.click = [&form] { listSQLink_Click(form); };
    form.cmdLink.click = [&form] { cmdLink_Click(form); };
}

}  // namespace kalco
