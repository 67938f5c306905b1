#include "app/unsaved_marks.h"

#include <QLabel>
#include <QWidget>

#include "disc/bars.h"
#include "disc/codec/hextext.h"
#include "disc/formation.h"
#include "disc/numbers.h"
#include "disc/runtime_error.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {
namespace {

bool pitch_unsaved(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (form.SSTab1.tab() != tab::formations || !row.exists()) return false;
    const Formation stored = read_formation(form.image, row);
    for (int k = first_marker; k <= last_marker; ++k) {
        const auto marker = static_cast<std::size_t>(k);
        const std::size_t player = marker - first_marker;
        if (role_label(stored.roles[player]) != form.lblGioc(k).caption()) return true;
        if (stored.x[player] != form.FormationX[marker] || stored.y[player] != form.FormationY[marker]) return true;
    }
    return false;
}

bool bars_unsaved(frmKalco& form) {
    const TeamRow row(form.cboSeqSQ2.row());
    if (form.SSTab1.tab() != tab::formations || !has_bars(row)) return false;
    return hex_digits(form.image.read(bars_field(row))) != form.listApp2.item(row.value());
}

bool numbers_unsaved(frmKalco& form) {
    const TeamRow row(form.cboSQNum.row());
    if (form.SSTab1.tab() != tab::numbers || !row.exists()) return false;
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
