#pragma once

#include <string>
#include <string_view>

#include "editor/window/frmKalco.h"

/// The pitch editor: ten markers of the team chosen in cboSeqSQ2.
namespace kalco {

void connect_pitch(frmKalco& form);

/// Lays the team's record on the pitch.
void ProvaRead(frmKalco& form);
/// The digits of the module that cboMod names; empty when it names none.
struct ModuleTexts {
    std::string roles;
    std::string x;
    std::string y;
};
ModuleTexts Conf_MOD(const frmKalco& form);
/// Labels the ten markers by 20 digits.
void Elab_MOD(frmKalco& form, std::string_view digits);
/// The code of the selected marker's label; empty for a label without one. Error 340 when no marker is selected.
std::string Invert_Mod(frmKalco& form);
/// Shows the name of the selected marker's player.
void Select_NAME(frmKalco& form);

/// The digits of the formation on the screen: roles, X, Y. Shorter by two for each label without a code. Leaves
/// SelectedMarker at the last marker.
std::string formation_digits(frmKalco& form);

void cboSeqSQ2_Click(frmKalco& form);
void lblGioc_MouseDown(frmKalco& form, int marker);
void lblGioc_Click(frmKalco& form, int marker);
void cboRL_Click(frmKalco& form);
void cboMod_Click(frmKalco& form);
void cmdLeft_Click(frmKalco& form);
void cmdRight_Click(frmKalco& form);
void cmdUp_Click(frmKalco& form);
void cmdDown_Click(frmKalco& form);
void cmdModifica_Click(frmKalco& form);

}  // namespace kalco
