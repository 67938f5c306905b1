#include "app/unsaved_marks.h"

#include <QLabel>
#include <QWidget>

#include "disc/codec/hextext.h"
#include "disc/formation.h"
#include "disc/formation_facts.h"
#include "disc/numbers.h"
#include "disc/runtime_error.h"
#include "disc/teams.h"
#include "editor/formations/bars.h"

namespace kalco::app {
namespace {

bool pitch_unsaved(frmKalco& form) {
    const int row = form.cboSeqSQ2.row();
    if (form.SSTab1.tab() != tab::formations || row < 0) return false;
    const std::string record = form.image.read(formation_field(row));
    for (int k = first_marker; k <= last_marker; ++k) {
        const auto place = static_cast<std::size_t>(k);
        const auto byte = [&](std::size_t column) {
            return static_cast<unsigned char>(record[column * outfield_players + place - first_marker]);
        };
        if (role_label(hex_digits(std::string(1, static_cast<char>(byte(0))))) != form.lblGioc(k).caption()) {
            return true;
        }
        if (byte(1) != form.FormationX[place] || byte(2) != form.FormationY[place]) return true;
    }
    return false;
}

bool bars_unsaved(frmKalco& form) {
    const int row = form.cboSeqSQ2.row();
    if (form.SSTab1.tab() != tab::formations || row < 0 || row >= bar_teams) return false;
    return hex_digits(form.image.read(bars_field(row))) != form.listApp2.item(row);
}

bool numbers_unsaved(frmKalco& form) {
    const int row = form.cboSQNum.row();
    if (form.SSTab1.tab() != tab::numbers || row < 0) return false;
    const std::string record = form.image.read(number_field(row));
    const bool nation = is_nation(row);
    return (nation ? decode_national_numbers(record) : decode_club_numbers(record)) != form.ListNum.items();
}

}  // namespace

UnsavedMarks::UnsavedMarks(frmKalco& form, const QWidget& window) : form_(form) {
    const auto add = [&](const char* name, bool (*unsaved)(frmKalco&)) {
        marks_.push_back({window.findChild<QLabel*>(QString::fromLatin1(name)), unsaved});
    };
    add("viewUnsavedPitch", pitch_unsaved);
    add("viewUnsavedBars", bars_unsaved);
    add("viewUnsavedNumbers", numbers_unsaved);
}

void UnsavedMarks::refresh() {
    for (const Mark& mark : marks_) {
        bool unsaved = false;
        try {
            unsaved = form_.image.is_open() && mark.unsaved(form_);
        } catch (const RuntimeError&) {
            // A record that can't be read has nothing to be compared with.
        }
        mark.label->setText(unsaved ? QStringLiteral("● non salvato") : QString());
    }
}

}  // namespace kalco::app
