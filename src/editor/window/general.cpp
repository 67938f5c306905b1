#include "editor/window/general.h"

#include "disc/codec/latin1.h"

namespace kalco {
namespace {

std::string with_capital(std::string_view word) {
    return upper(left(word, 1)) + lower(mid(word, 2));
}

}  // namespace

void ProperCase(std::string& text) {
    const auto blank = text.find(' ');
    if (blank == std::string::npos) {
        if (!text.empty()) text = with_capital(text);
        return;
    }
    const std::string first = text.substr(0, blank);
    const std::string rest = text.substr(blank + 1);
    if (first.empty() || rest.empty()) return;
    text = with_capital(first) + ' ' + with_capital(rest);
}

void ClearControls(frmKalco& form) {
    for (Control* control : form.registry.all()) {
        if (control->kind() == Kind::text_box) static_cast<TextBox*>(control)->set_text({});
    }
    for (Control* control : form.registry.all()) {
        if (control->kind() == Kind::combo_box) static_cast<ComboBox*>(control)->set_text({});
    }
}

std::array<ComboBox*, skill_count> skill_combos(frmKalco& form) {
    return {&form.cboAttacco, &form.cboDifesa, &form.cboEquil, &form.cboRes,  &form.cboVel,   &form.cboAcc,
            &form.cboPass,    &form.cboPot,    &form.cboPrec,  &form.cboElev, &form.cboTesta, &form.cboTecn,
            &form.cboDribbl,  &form.cboCurv,   &form.cboPosit, &form.cboReaz};
}

void fill_blank_player_fields(frmKalco& form) {
    const auto fill = [](auto& control, const char* text) {
        if (control.text().empty()) control.set_text(text);
    };
    fill(form.txtAlt, "155");
    fill(form.txtEta, "0");
    fill(form.txtNum, "0");
    for (ComboBox* skill : skill_combos(form)) fill(*skill, "12");
}

void clear_pictures(frmKalco& form) {
    for (ImageBox* picture : {&form.imgColBar, &form.imgColCap, &form.imgScarpa, &form.imgStBar, &form.imgStile}) {
        picture->set_picture({});
    }
}

}  // namespace kalco
