#include "editor/formations/bars.h"

#include "disc/bars.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"

namespace kalco {
namespace {

bool has_row(const frmKalco& form, TeamRow row) {
    return has_bars(row) && row.value() < form.listApp2.count();
}

void set_buttons(frmKalco& form, int bar, bool enabled) {
    form.cmdMeno(bar).set_enabled(enabled);
    form.cmdPiu(bar).set_enabled(enabled);
}

void step_bar(frmKalco& form, int bar, int change) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (!has_row(form, row)) return;
    form.pbFZ(bar).set_value(form.pbFZ(bar).value() + change);
    form.pbFZ(bar).set_caption(std::to_string(form.pbFZ(bar).value()));
    std::string digits;
    for (int i = 1; i <= bar_count; ++i) digits += '0' + hex_number(form.pbFZ(i).value());
    form.listApp2.remove(row.value());
    form.listApp2.insert(digits, row.value());
}

}  // namespace

void Read_Bar(frmKalco& form) {
    for (const TeamRow row : every<TeamRow>()) {
        if (has_bars(row)) form.listApp2.add(hex_digits(form.image.read(bars_field(row))));
    }
}

void show_bars(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    const bool shown = has_row(form, row);
    for (int i = 1; i <= bar_count; ++i) {
        const int value =
            shown ? hex_pair(mid(form.listApp2.item(row.value()), static_cast<std::size_t>(2 * i - 1), 2)) : 0;
        form.pbFZ(i).set_value(value);
        form.pbFZ(i).set_caption(shown ? std::to_string(value) : std::string());
        set_buttons(form, i, shown);
    }
    form.cmdSalva.set_enabled(shown);
}

void cmdMeno_Click(frmKalco& form, int bar) {
    step_bar(form, bar, -1);
}

void cmdPiu_Click(frmKalco& form, int bar) {
    step_bar(form, bar, 1);
}

void cmdSalva_Click(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (!has_row(form, row)) return;
    write_bars(form.image, row, bytes_of_digits(form.listApp2.item(row.value())));
    form.tell_saved("Barre: " + form.cboSeqSQ2.text());
    form.listApp2.clear();
    Read_Bar(form);
    form.reopen_image();
}

void connect_bars(frmKalco& form) {
    form.slots.Read_Bar = [&form] { Read_Bar(form); };
    for (int i = 1; i <= bar_count; ++i) {
        form.cmdMeno(i).click = [&form, i] { cmdMeno_Click(form, i); };
        form.cmdPiu(i).click = [&form, i] { cmdPiu_Click(form, i); };
    }
    form.cmdSalva.click = [&form] { cmdSalva_Click(form); };
}

}  // namespace kalco
