#include "editor/kickers/set_pieces.h"

#include "disc/codec/hextext.h"
#include "disc/players.h"
#include "disc/teams.h"
#include "editor/players/linked_names.h"

namespace kalco {
namespace {

using OptionColumn = ControlArray<OptionButton>;

/// In the order of the record's bytes.
std::array<OptionColumn*, set_piece_bytes> option_columns(frmKalco& form) {
    return {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP};
}

void show_linked_names(frmKalco& form, Club club) {
    const LinkedNames names = NEW_NAME_ML(form, club);
    int field = form.txtNM.first();
    for (std::size_t slot = 0; slot < set_piece_rows; ++slot) {
        // A slot without a name takes no field: the later names move up.
        if (names[slot]) form.txtNM(field++).set_text(' ' + *names[slot]);
    }
    for (; field <= form.txtNM.last(); ++field) form.txtNM(field).set_text(' ' + std::string(unknown_player));
}

void show_takers(frmKalco& form, TeamRow row) {
    if (const auto club = club_of(row)) return show_linked_names(form, *club);
    for (int player = 0; player < set_piece_rows; ++player) {
        form.txtNM(player + 1).set_text(' ' + read_player_name(form.image, *place_of(row, player)));
    }
}

void show_pick(frmKalco& form, std::size_t column, std::string_view digits) {
    OptionColumn& options = *option_columns(form)[column];
    const int row = hex_pair(digits);
    if (options.has(row)) {
        options(row).set_value(true);
        return;
    }
    for (int i = options.first(); i <= options.last(); ++i) options(i).set_value(false);
    form.set_piece_picks[column] = std::string(digits);
}

}  // namespace

std::string pick_digits(int row) {
    return row == set_piece_rows - 1 ? "0A" : '0' + std::to_string(row);
}

void CAP_KICK(frmKalco& form) {
    const std::string digits = form.txtHex.text();
    for (std::size_t column = 0; column < set_piece_bytes; ++column) {
        show_pick(form, column, std::string_view(digits).substr(2 * column, 2));
    }
}

void cboSquadra_Click(frmKalco& form) {
    const TeamRow row(form.cboSquadra.row());
    if (!row.exists()) return;
    form.listAtt.select(row.value());
    form.txtAtt.set_text(' ' + form.listAtt.text());
    show_takers(form, row);
    form.txtHex.set_text(hex_digits(form.image.read(set_piece_field(row))));
    CAP_KICK(form);
    form.fraKick.set_enabled(true);
}

void cmdCrea_Click(frmKalco& form) {
    const TeamRow row(form.cboSquadra.row());
    if (!row.exists()) return;
    std::string digits;
    for (const std::string& pick : form.set_piece_picks) digits += pick;
    form.txtHex.set_text(digits);
    write_set_pieces(form.image, row, bytes_of_digits(digits));
    form.tell_saved("Calci piazzati: " + form.cboSquadra.text());
    form.reopen_image();
}

void connect_set_pieces(frmKalco& form) {
    form.cboSquadra.set_items(short_team_rows());
    form.cboSquadra.click = [&form] { cboSquadra_Click(form); };
    const auto columns = option_columns(form);
    for (std::size_t column = 0; column < columns.size(); ++column) {
        for (int row = 0; row < set_piece_rows; ++row) {
            (*columns[column])(row).click = [&form, column, row] { form.set_piece_picks[column] = pick_digits(row); };
        }
    }
    form.cmdCrea.click = [&form] { cmdCrea_Click(form); };
}

}  // namespace kalco
