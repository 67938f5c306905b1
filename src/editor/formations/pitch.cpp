#include "editor/formations/pitch.h"

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/formation.h"
#include "disc/players.h"
#include "disc/runtime_error.h"
#include "disc/team_names.h"
#include "editor/formations/bars.h"
#include "editor/players/linked_names.h"

namespace kalco {
namespace {

void reset_markers(frmKalco& form) {
    for (int k = first_marker; k <= last_marker; ++k) form.lblGioc(k).set_selected(false);
}

/// No marker is selected any more, and what acts on one is off.
void drop_selection(frmKalco& form) {
    reset_markers(form);
    form.cboRL.set_text({});
    form.fraCord.set_enabled(false);
    form.cboRL.set_enabled(false);
}

std::size_t index_of(int marker) {
    return static_cast<std::size_t>(marker);
}

void place_marker(frmKalco& form, int marker, int x, int y) {
    form.FormationX[index_of(marker)] = x;
    form.FormationY[index_of(marker)] = y;
    form.lblGioc(marker).move(screen_left(x), screen_top(y));
}

/// Two columns of 20 digits; missing ones count as 0.
void place_markers(frmKalco& form, std::string_view x_digits, std::string_view y_digits) {
    for (int k = first_marker; k <= last_marker; ++k) {
        const std::size_t place = 2 * index_of(k - first_marker) + 1;
        place_marker(form, k, hex_pair(mid(x_digits, place, 2)), hex_pair(mid(y_digits, place, 2)));
    }
}

/// One press of an arrow: the limit looks at the screen place, not at the value.
void move_selected(frmKalco& form, bool allowed, int x, int y) {
    if (!allowed) return;
    PitchMarker& marker = form.lblGioc(form.SelectedMarker);
    form.FormationX[index_of(form.SelectedMarker)] += x;
    form.FormationY[index_of(form.SelectedMarker)] += y;
    marker.move(marker.left() + x * arrow_step_x, marker.top() + y * arrow_step_y);
}

std::string player_of_roster(const frmKalco& form, const PlayerPlace& place) {
    const std::string name = read_player_name(form.image, place);
    // Only the name that is read in two pieces is shown with a blank in front.
    return player_name_field(place).split() ? ' ' + name : name;
}

std::string linked_player(const frmKalco& form, Club club) {
    const LinkedNames names = NEW_NAME_ML(form, club);
    return ' ' + names.at(index_of(form.SelectedMarker - 1)).value_or(std::string(unknown_player));
}

}  // namespace

void ProvaRead(frmKalco& form) {
    const Formation formation = read_formation(form.image, TeamRow(form.cboSeqSQ2.row()));
    for (int k = first_marker; k <= last_marker; ++k) {
        const std::size_t player = index_of(k - first_marker);
        form.lblGioc(k).set_caption(role_label(formation.roles[player]));
        place_marker(form, k, formation.x[player], formation.y[player]);
    }
}

ModuleTexts Conf_MOD(const frmKalco& form) {
    const ModuleRow* const row = module_named(form.cboMod.text());
    if (row == nullptr) return {};
    return {std::string(row->roles), std::string(row->x), std::string(row->y)};
}

void Elab_MOD(frmKalco& form, std::string_view digits) {
    for (int k = first_marker; k <= last_marker; ++k) {
        form.lblGioc(k).set_caption(role_label(left(digits, 2)));
        digits = mid(digits, 3);
    }
}

std::string Invert_Mod(frmKalco& form) {
    return role_code(form.lblGioc(form.SelectedMarker).caption());
}

void Select_NAME(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (!row.exists()) return;
    const auto club = club_of(row);
    form.lblNameG.set_caption(club ? linked_player(form, *club)
                                   : player_of_roster(form, *place_of(row, form.SelectedMarker - 1)));
}

std::string formation_digits(frmKalco& form) {
    std::string roles;
    std::string x;
    std::string y;
    for (int k = first_marker; k <= last_marker; ++k) {
        form.SelectedMarker = k;
        roles += Invert_Mod(form);
        x += hex_number(form.FormationX[index_of(k)], 2);
        y += hex_number(form.FormationY[index_of(k)], 2);
    }
    return roles + x + y;
}

void cboSeqSQ2_Click(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (!row.exists()) return;
    form.SelectedMarker = row.value();
    form.txtSqHEX2.set_text(read_full_width_name(form.image, team_of(row)));
    show_bars(form);
    drop_selection(form);
    form.Frame6.set_enabled(true);
    form.fraImpExp.set_enabled(row != default_team_row);
    form.cboMod.set_text({});
    form.lblNameG.set_caption({});
    ProvaRead(form);
}

void lblGioc_MouseDown(frmKalco& form, int marker) {
    reset_markers(form);
    form.lblGioc(marker).set_selected(true);
}

void lblGioc_Click(frmKalco& form, int marker) {
    form.SelectedMarker = marker;
    form.cboRL.set_text(form.lblGioc(marker).caption());
    form.fraCord.set_enabled(true);
    form.cboRL.set_enabled(true);
    Select_NAME(form);
}

void cboRL_Click(frmKalco& form) {
    form.lblGioc(form.SelectedMarker).set_caption(form.cboRL.text());
}

void cboMod_Click(frmKalco& form) {
    reset_markers(form);
    form.lblNameG.set_caption({});
    form.cboRL.set_text({});
    form.fraCord.set_enabled(false);
    form.cboRL.set_enabled(false);
    const ModuleTexts texts = Conf_MOD(form);
    Elab_MOD(form, texts.roles);
    place_markers(form, texts.x, texts.y);
}

void cmdLeft_Click(frmKalco& form) {
    move_selected(form, form.lblGioc(form.SelectedMarker).left() > least_left, -1, 0);
}

void cmdRight_Click(frmKalco& form) {
    move_selected(form, form.lblGioc(form.SelectedMarker).left() < most_left, 1, 0);
}

void cmdUp_Click(frmKalco& form) {
    move_selected(form, form.lblGioc(form.SelectedMarker).top() > least_top, 0, -1);
}

void cmdDown_Click(frmKalco& form) {
    move_selected(form, form.lblGioc(form.SelectedMarker).top() < most_top, 0, 1);
}

void cmdModifica_Click(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (!row.exists()) return;
    drop_selection(form);
    form.cboMod.set_text({});
    form.lblNameG.set_caption({});
    write_formation(form.image, row, bytes_of_digits(formation_digits(form)));
    form.tell_saved("Formazione: " + form.cboSeqSQ2.text());
    form.reopen_image();
}

void connect_pitch(frmKalco& form) {
    form.cboSeqSQ2.set_items(short_team_rows());
    form.cboRL.set_items({role_labels.begin(), role_labels.end()});
    std::vector<std::string> modules;
    modules.reserve(module_rows.size());
    for (const ModuleRow& row : module_rows) modules.emplace_back(row.name);
    form.cboMod.set_items(std::move(modules));

    form.cboSeqSQ2.click = [&form] { cboSeqSQ2_Click(form); };
    for (int k = first_marker; k <= last_marker; ++k) {
        form.lblGioc(k).press = [&form, k] { lblGioc_MouseDown(form, k); };
        form.lblGioc(k).click = [&form, k] { lblGioc_Click(form, k); };
    }
    form.cboRL.click = [&form] { cboRL_Click(form); };
    form.cboMod.click = [&form] { cboMod_Click(form); };
    form.cmdLeft.click = [&form] { cmdLeft_Click(form); };
    form.cmdRight.click = [&form] { cmdRight_Click(form); };
    form.cmdUp.click = [&form] { cmdUp_Click(form); };
    form.cmdDown.click = [&form] { cmdDown_Click(form); };
    form.cmdModifica.click = [&form] { cmdModifica_Click(form); };
}

}  // namespace kalco
