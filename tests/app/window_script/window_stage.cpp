#include "app/window_script/window_stage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <utility>

#include "app/text.h"
#include "app/widgets/pick_combo.h"
#include "app/widgets/rows_view.h"
#include "app/window_script/widget_state.h"

namespace kalco::test {
namespace {

/// Opens the list with the mouse and goes to the row with the keyboard.
void pick_in_combo(app::PickCombo& combo, int row) {
    QTest::mouseClick(&combo, Qt::LeftButton);
    QAbstractItemView& rows = *combo.view();
    const bool from_end = row > combo.count() / 2;
    QTest::keyClick(&rows, from_end ? Qt::Key_End : Qt::Key_Home);
    const int steps = from_end ? combo.count() - 1 - row : row;
    for (int i = 0; i < steps; ++i) QTest::keyClick(&rows, from_end ? Qt::Key_Up : Qt::Key_Down);
    QTest::keyClick(&rows, Qt::Key_Return);
}

bool can_be_typed(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code >= 0x20 && (code < 0x7F || code >= 0xA0);
}

}  // namespace

WindowStage::WindowStage(frmKalco& form) : form_(form), window_(form) {
    window_.binder().on_failure = [this](const std::exception_ptr& failure) { failure_ = failure; };
}

QWidget& WindowStage::widget_of(const Control& control) {
    return *window_.binder().widget_of(control);
}

void WindowStage::settle() {
    QApplication::processEvents();
    // Without a window manager a closed list does not give the activation back.
    if (window_.isVisible() && !window_.isActiveWindow()) {
        window_.activateWindow();
        QApplication::processEvents();
    }
    if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void WindowStage::start() {
    window_.start();
    settle();
}

void WindowStage::focus(Control& control) {
    // A click would do more than move the focus.
    if (control.takes_focus()) widget_of(control).setFocus(Qt::TabFocusReason);
    settle();
}

void WindowStage::click(Control& control) {
    // A press on the board types its number, which no click of a script does.
    if (control.kind() == Kind::number_cell) return;
    QWidget& widget = widget_of(control);
    const bool indicator_at_left = control.kind() == Kind::option_button;
    QTest::mouseClick(&widget, Qt::LeftButton, {}, indicator_at_left ? QPoint(8, widget.height() / 2) : QPoint());
    settle();
}

QPoint WindowStage::press_row(const Control& control, int row) {
    auto& rows = dynamic_cast<app::RowsView&>(widget_of(control));
    const QModelIndex index = rows.model()->index(row, 0);
    rows.scrollTo(index);
    const QPoint place = rows.visualRect(index).center();
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, place);
    return place;
}

void WindowStage::pick(Control& control, int row) {
    if (control.kind() == Kind::combo_box) {
        pick_in_combo(dynamic_cast<app::PickCombo&>(widget_of(control)), row);
    } else {
        press_row(control, row);
    }
    settle();
}

void WindowStage::double_click(Control& control, int row) {
    if (control.kind() == Kind::combo_box) return pick(control, row);
    const QPoint place = press_row(control, row);
    QWidget* const viewport = dynamic_cast<app::RowsView&>(widget_of(control)).viewport();
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, place);
    settle();
}

void WindowStage::type(TextBox& box, const std::string& text) {
    QWidget& field = widget_of(box);
    QTest::mouseClick(&field, Qt::LeftButton);
    if (field.hasFocus()) {
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        for (const char character : text) {
            // A keyboard has no keys for control characters.
            if (!can_be_typed(character)) continue;
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, app::qt_text({&character, 1}), Qt::NoModifier);
        }
    }
    settle();
}

void WindowStage::select_tab(int tab) {
    QTabBar& bar = *dynamic_cast<QTabWidget&>(widget_of(form_.SSTab1)).tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    settle();
}

std::optional<std::string> WindowStage::undo() {
    std::optional<std::string> what;
    window_.binder().act([&] { what = user::undo(form_); });
    settle();
    return what;
}

std::optional<std::string> WindowStage::redo() {
    std::optional<std::string> what;
    window_.binder().act([&] { what = user::redo(form_); });
    settle();
    return what;
}

void WindowStage::read_anew() {
    window_.binder().act([this] { user::read_anew(form_); });
    settle();
}

void WindowStage::close() {
    window_.close();
    settle();
}

script::Json WindowStage::state(Control& control) {
    QWidget* const widget = window_.binder().widget_of(control);
    return widget == nullptr ? script::control_state(control) : widget_state(control, *widget);
}

}  // namespace kalco::test
