#include "editor/teamfiles/transfers.h"

#include "disc/codec/latin1.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"
#include "disc/team_file.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

constexpr int first_player_line = static_cast<int>(head_lines);
constexpr int last_player_line = first_player_line + roster_players - 1;

TransferSide first_side(frmKalco& form) {
    return {form.listTras1, form.ListVende, form.txtSquadra1};
}

TransferSide second_side(frmKalco& form) {
    return {form.listTras2, form.ListCompra, form.txtSquadra2};
}

/// False when no file was chosen. Error 5 when the file has fewer than 23 players.
bool open_side(frmKalco& form, const TransferSide& side) {
    side.lines.clear();
    side.names.clear();
    const std::string path = form.platform.open_dialog(team_file_filter, form.platform.program_directory());
    if (path.empty()) return false;
    for (const std::string& line : read_lines(form.platform, path)) side.lines.add(line);
    side.team.set_text(upper(names_of_team_file(side.lines.items()).long_name));
    for (int line = first_player_line; line <= last_player_line; ++line) {
        side.names.add(' ' + std::string(name_of_player_line(side.lines.item(line))));
    }
    return true;
}

/// Runs `enable` behind a successful opening; fewer than 23 players empty the side again, other failures are silent.
template <typename Enable>
void open_team(frmKalco& form, const TransferSide& side, Enable enable) {
    try {
        if (open_side(form, side)) enable();
    } catch (const RuntimeError& failure) {
        if (failure.number() != error::invalid_call) return;
        side.names.clear();
        side.team.set_text({});
        form.platform.message("Attenzione puoi aprire solo\r\n     files di 23 giocatori", Icon::stop, Buttons::ok);
    }
}

void copy_player(const TransferSide& from, int v, const TransferSide& to, int c) {
    to.names.replace(c, from.names.item(v));
    const int line = c + first_player_line;
    to.lines.replace(line, with_player_of(to.lines.item(line), from.lines.item(v + first_player_line)));
}

void swap_players(const TransferSide& first, int v, const TransferSide& second, int c) {
    const std::string name = second.names.item(c);
    const std::string line = second.lines.item(c + first_player_line);
    copy_player(first, v, second, c);
    first.names.replace(v, name);
    const int own = v + first_player_line;
    first.lines.replace(own, with_player_of(first.lines.item(own), line));
}

void save_side(frmKalco& form, const TransferSide& side) {
    try {
        write_lines(form.platform, transfer_file_path(form, side.team), side.lines.items());
    } catch (const RuntimeError& failure) {
        form.platform.message(std::string(failure.text()), Icon::stop, Buttons::ok);
        return;
    }
    form.inform("File creato con successo");
}

}  // namespace

std::string transfer_file_path(const frmKalco& form, const TextBox& team) {
    return side_file_path(form.platform, directory::transfer, team.text() + std::string(team_file_extension));
}

void cmdTeam1_Click(frmKalco& form) {
    open_team(form, first_side(form), [&form] {
        form.cmdteam2.set_enabled(true);
        form.ListCompra.set_enabled(true);
    });
}

void cmdteam2_Click(frmKalco& form) {
    open_team(form, second_side(form), [&form] { form.fraScambio.set_enabled(true); });
}

void ListVende_Click(frmKalco& form) {
    form.cmdTransfer.set_enabled(true);
    form.cmdSave2.set_enabled(true);
}

void OpNREC_Click(frmKalco& form) {
    form.cmdSave1.set_enabled(false);
}

void OpRec_Click(frmKalco& form) {
    form.cmdSave1.set_enabled(true);
}

void cmdTransfer_Click(frmKalco& form) {
    const int v = form.ListVende.row();
    const int c = form.ListCompra.row();
    if (v < 0 || c < 0) {
        form.inform("Devi selezionare l'altro Giocatore");
        return;
    }
    if (form.OpRec.value()) {
        swap_players(first_side(form), v, second_side(form), c);
    } else {
        copy_player(first_side(form), v, second_side(form), c);
    }
}

void cmdSave1_Click(frmKalco& form) {
    save_side(form, first_side(form));
}

void cmdSave2_Click(frmKalco& form) {
    save_side(form, second_side(form));
}

void connect_transfers(frmKalco& form) {
    form.cmdTransfer.set_hint("Trasferisci");
    form.cmdTeam1.click = [&form] { cmdTeam1_Click(form); };
    form.cmdteam2.click = [&form] { cmdteam2_Click(form); };
    form.ListVende.click = [&form] { ListVende_Click(form); };
    form.OpNREC.click = [&form] { OpNREC_Click(form); };
    form.OpRec.click = [&form] { OpRec_Click(form); };
    form.cmdTransfer.click = [&form] { cmdTransfer_Click(form); };
    form.cmdSave1.click = [&form] { cmdSave1_Click(form); };
    form.cmdSave2.click = [&form] { cmdSave2_Click(form); };
}

}  // namespace kalco
