#include "app/window_script/widget_state.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include "app/widgets/number_board.h"
#include "app/widgets/pick_combo.h"
#include "app/widgets/picture_box.h"
#include "app/widgets/pitch_view.h"
#include "app/widgets/rows_view.h"
#include "app/widgets/strength_bar_view.h"
#include "editor/window/controls.h"

namespace kalco::test {
namespace {

using script::Json;

Json json(const QString& text) {
    return text.toStdString();
}

Json json(const QStringList& texts) {
    Json array = Json::array();
    for (const QString& text : texts) array.push_back(text.toStdString());
    return array;
}

template <typename Widget>
const Widget& as(const QWidget& widget) {
    return dynamic_cast<const Widget&>(widget);
}

void add_kind_state(Json& state, const Control& control, const QWidget& widget) {
    switch (control.kind()) {
        case Kind::label: state["caption"] = json(as<QLabel>(widget).text()); break;
        case Kind::text_box:
            state["text"] = json(as<QLineEdit>(widget).text());
            // No widget shows the limit; it is felt by typing.
            state["maxLength"] = static_cast<const TextBox&>(control).max_length();
            break;
        case Kind::combo_box: {
            const auto& combo = as<app::PickCombo>(widget);
            state["text"] = json(combo.shown_text());
            state["row"] = combo.currentIndex();
            state["items"] = json(combo.rows());
            break;
        }
        case Kind::list_box: {
            const auto& rows = as<app::RowsView>(widget);
            const auto selected = rows.selectionModel()->selectedIndexes();
            state["row"] = selected.isEmpty() ? -1 : selected.constFirst().row();
            state["items"] = json(rows.rows());
            break;
        }
        case Kind::command_button: state["caption"] = json(as<QAbstractButton>(widget).text()); break;
        case Kind::option_button: state["value"] = as<QAbstractButton>(widget).isChecked(); break;
        case Kind::frame: break;
        case Kind::image_box: state["picture"] = json(as<app::PictureBox>(widget).picture()); break;
        case Kind::strength_bar:
            state["value"] = as<app::StrengthBarView>(widget).value();
            state["caption"] = json(as<app::StrengthBarView>(widget).caption());
            break;
        case Kind::number_cell: state["inUse"] = as<app::NumberCellView>(widget).in_use(); break;
        case Kind::pitch_marker: {
            const auto& marker = as<app::MarkerView>(widget);
            state["caption"] = json(marker.caption());
            state["selected"] = marker.selected();
            state["left"] = marker.left_units();
            state["top"] = marker.top_units();
            break;
        }
        case Kind::tab_control: state["tab"] = as<QTabWidget>(widget).currentIndex(); break;
    }
}

}  // namespace

Json widget_state(const Control& control, const QWidget& widget) {
    Json state;
    state["show"] = control.name();
    state["enabled"] = widget.isEnabled();
    add_kind_state(state, control, widget);
    // The window's own hints are not the model's.
    if (!control.hint().empty()) state["hint"] = json(widget.toolTip());
    return state;
}

}  // namespace kalco::test
