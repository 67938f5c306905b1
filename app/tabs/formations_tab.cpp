#include "app/tabs/formations_tab.h"

#include <QLabel>
#include <cstdlib>

#include "app/tabs/club_links.h"
#include "app/text.h"
#include "app/widgets/pitch_view.h"
#include "disc/formation_facts.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

/// Steps of the arrow buttons that bring a marker nearest to a wished place; each one is a press of a button.
void drag_marker(frmKalco& form, const PitchMarker& marker, int left, int top) {
    const auto step_towards = [&form](CommandButton& back, CommandButton& forth, int distance, int step) {
        if (std::abs(distance) * 2 <= step) return false;
        return user::click(form, distance < 0 ? back : forth) == user::Outcome::done;
    };
    for (int before = marker.left(); step_towards(form.cmdLeft, form.cmdRight, left - marker.left(), arrow_step_x);
         before = marker.left()) {
        if (marker.left() == before) break;
    }
    for (int before = marker.top(); step_towards(form.cmdUp, form.cmdDown, top - marker.top(), arrow_step_y);
         before = marker.top()) {
        if (marker.top() == before) break;
    }
}

}  // namespace

FormationsTab::FormationsTab(Binder& binder, QWidget& page, const Drafts& drafts)
    : Tab(binder, page),
      drafts_(drafts),
      pitch_(view<PitchView>("viewPitch")),
      unsaved_pitch_(view<QLabel>("viewUnsavedPitch")),
      unsaved_bars_(view<QLabel>("viewUnsavedBars")) {
    for (int place = first_marker; place <= last_marker; ++place) connect_marker(place);
    QObject::connect(&pitch_, &PitchView::stepped, &page, [this](int right, int down) { step(right, down); });
    QObject::connect(&pitch_, &PitchView::turned, &page, [this](int markers) { turn(markers); });
}

void FormationsTab::connect_marker(int place) {
    PitchMarker& marker = form_.lblGioc(place);
    auto& shirt = widget_of<MarkerView>(marker);
    QObject::connect(&shirt, &MarkerView::pressed, &page_, [this, &marker] {
        pitch_.setFocus(Qt::MouseFocusReason);
        binder_.act([this, &marker] { user::click(form_, marker); }, Binder::Focus::stay);
    });
    QObject::connect(&shirt, &MarkerView::dragged, &page_, [this, &marker](int left, int top) {
        binder_.act([&] { drag_marker(form_, marker, left, top); }, Binder::Focus::stay);
    });
}

void FormationsTab::step(int right, int down) {
    CommandButton& across = right < 0 ? form_.cmdLeft : form_.cmdRight;
    CommandButton& along = down < 0 ? form_.cmdUp : form_.cmdDown;
    binder_.act([&] { user::click(form_, right != 0 ? across : along); }, Binder::Focus::stay);
}

void FormationsTab::turn(int markers) {
    constexpr int all = last_marker - first_marker + 1;
    int next = markers > 0 ? first_marker : last_marker;
    for (int place = first_marker; place <= last_marker; ++place) {
        if (form_.lblGioc(place).selected()) next = first_marker + (place - first_marker + markers + all) % all;
    }
    binder_.act([&] { user::click(form_, form_.lblGioc(next)); }, Binder::Focus::stay);
}

void FormationsTab::refresh() {
    if (form_.SSTab1.tab() != tab::formations) return;
    unsaved_pitch_.setText(unsaved_mark(drafts_.pitch()));
    unsaved_bars_.setText(bars_mark());
    show_names();
}

QString FormationsTab::bars_mark() const {
    const Draft& bars = drafts_.bars();
    if (bars.empty() || bars.owner == qt_text(form_.cboSeqSQ2.text())) return unsaved_mark(bars);
    // They stay when another team is chosen, until any team's bars are saved.
    return unsaved_mark(bars) + QStringLiteral(": ") + bars.owner;
}

void FormationsTab::show_names() {
    QStringList names;
    const TeamRow row(form_.cboSeqSQ2.row());
    if (row.exists() && form_.image.is_open()) {
        for (const std::string& name : player_names(form_.image, row, last_marker)) names << qt_text(name);
    }
    pitch_.show_names(names);
}

std::vector<CommandButton*> FormationsTab::saves() {
    std::vector<CommandButton*> changed;
    if (!drafts_.pitch().empty()) changed.push_back(&form_.cmdModifica);
    if (!drafts_.bars().empty()) changed.push_back(&form_.cmdSalva);
    if (changed.empty()) changed.push_back(&form_.cmdModifica);
    return changed;
}

}  // namespace kalco::app
