#include "editor/players/player_fields.h"

#include <algorithm>
#include <vector>

#include "disc/codec/decimal.h"
#include "disc/player_record.h"
#include "disc/runtime_error.h"
#include "editor/window/general.h"

namespace kalco {
namespace {

constexpr std::string_view no_beard = "A";

template <std::size_t n>
std::vector<std::string> rows_of(const std::array<std::string_view, n>& texts) {
    return {texts.begin(), texts.end()};
}

std::string beard_style_picture(const std::string& style) {
    return style + style;
}

std::string beard_colour_picture(const std::string& colour) {
    return colour + colour + '1';
}

std::string boots_picture(const std::string& boots) {
    return boots + 'S';
}

template <typename Box>
void show(Box& box, const std::optional<std::string>& text) {
    if (text) box.set_text(*text);
}

void show_looks(frmKalco& form, const DecodedPlayer& player) {
    form.cboStlBar.set_text(player.beard_style);
    form.imgStBar.set_picture(player.beard_style_shown ? beard_style_picture(player.beard_style) : std::string());
    form.cboColBar.set_text(player.beard_colour);
    form.imgColBar.set_picture(player.beard_colour_shown ? beard_colour_picture(player.beard_colour) : std::string());
    show(form.cboColCap, player.hair_colour);
    if (player.hair_colour) form.imgColCap.set_picture(*player.hair_colour);
    show(form.cboCapelli, player.hair_style);
    if (player.hair_style) form.imgStile.set_picture(*player.hair_style);
    show(form.cboScarpa, player.boots);
    form.imgScarpa.set_picture(player.boots ? boots_picture(*player.boots) : std::string());
}

/// A number that a substitution replaces: 0 counts as `least`.
std::int64_t number_or(const std::string& text, std::int64_t least) {
    const std::int64_t number = number_of(text);
    return number == 0 ? least : number;
}

PlayerValues values_of_fields(frmKalco& form) {
    PlayerValues values;
    values.role = value_of(role_texts, form.cboRuolo.text());
    values.hair_style = value_of(hair_style_texts, form.cboCapelli.text());
    values.hair_colour = value_of(hair_colour_texts, form.cboColCap.text());
    values.beard_style = value_of(beard_texts, form.cboStlBar.text());
    values.beard_colour = value_of(beard_texts, form.cboColBar.text());
    values.height = std::max<std::int64_t>(number_of(form.txtAlt.text()), lowest_height);
    values.number = number_or(form.txtNum.text(), 1);
    // An empty field packs like "Si".
    values.in_role = form.cboOutSide.text() == "No";
    values.skin = value_of(skin_texts, form.cboPelle.text());
    values.build = value_of(build_texts, form.cboFisico.text());
    values.age = number_or(form.txtEta.text(), lowest_age);
    values.boots = value_of(boots_texts, form.cboScarpa.text());
    values.foot = value_of(foot_texts, form.cboPiede.text());
    const auto combos = skill_combos(form);
    for (std::size_t i = 0; i < skill_count; ++i) values.skills[i] = number_or(combos[i]->text(), lowest_skill);
    return values;
}

}  // namespace

void DecodePlayer(frmKalco& form) {
    const DecodedPlayer player =
        decode_player({number_of(form.Text1.text()), number_of(form.Text2.text()), number_of(form.Text3.text())});
    show(form.cboOutSide, player.out_of_role);
    show(form.txtNum, player.number);
    show(form.txtAlt, player.height);
    show_looks(form, player);
    show(form.cboRuolo, player.role);
    const auto combos = skill_combos(form);
    for (std::size_t i = 0; i < skill_count; ++i) show(*combos[i], player.skills[i]);
    show(form.txtEta, player.age);
    show(form.cboFisico, player.build);
    show(form.cboPelle, player.skin);
    show(form.cboPiede, player.foot);
    if (player.stopped) throw RuntimeError(error::type_mismatch);
}

void FillBlankFields(frmKalco& form) {
    fill_blank_player_fields(form);
    const Words words = pack_player(values_of_fields(form));
    form.Text1.set_text(std::to_string(words[0]));
    form.Text2.set_text(std::to_string(words[1]));
    form.Text3.set_text(std::to_string(words[2]));
}

void cboCapelli_Click(frmKalco& form) {
    form.imgStile.set_picture(form.cboCapelli.text());
}

void cboColCap_Click(frmKalco& form) {
    form.imgColCap.set_picture(form.cboColCap.text());
}

void cboScarpa_Click(frmKalco& form) {
    form.imgScarpa.set_picture(boots_picture(form.cboScarpa.text()));
}

void cboStlBar_Click(frmKalco& form) {
    form.imgStBar.set_picture(beard_style_picture(form.cboStlBar.text()));
    if (form.cboStlBar.text() == no_beard) form.imgColBar.set_picture({});
}

void cboColBar_Click(frmKalco& form) {
    const std::string& style = form.cboStlBar.text();
    const bool bearded = !style.empty() && style != no_beard;
    form.imgColBar.set_picture(bearded ? beard_colour_picture(form.cboColBar.text()) : std::string());
}

void connect_player_fields(frmKalco& form) {
    form.cboRuolo.set_items(rows_of(role_rows));
    form.cboOutSide.set_items(rows_of(out_of_role_texts));
    form.cboPelle.set_items(rows_of(skin_texts));
    form.cboCapelli.set_items(rows_of(hair_style_texts));
    form.cboColCap.set_items(rows_of(hair_colour_texts));
    form.cboStlBar.set_items(rows_of(beard_texts));
    form.cboColBar.set_items(rows_of(beard_texts));
    form.cboScarpa.set_items(rows_of(boots_texts));
    form.cboFisico.set_items(rows_of(build_texts));
    form.cboPiede.set_items(rows_of(foot_texts));
    std::vector<std::string> skills;
    for (int skill = lowest_skill; skill <= highest_skill; ++skill) skills.push_back(std::to_string(skill));
    for (ComboBox* combo : skill_combos(form)) combo->set_items(skills);

    form.cboCapelli.click = [&form] { cboCapelli_Click(form); };
    form.cboColCap.click = [&form] { cboColCap_Click(form); };
    form.cboScarpa.click = [&form] { cboScarpa_Click(form); };
    form.cboStlBar.click = [&form] { cboStlBar_Click(form); };
    form.cboColBar.click = [&form] { cboColBar_Click(form); };
}

}  // namespace kalco
