#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/pick_combo.h"
#include "editor/window/user.h"

using namespace kalco;

namespace {

void turn_wheel(QWidget& widget, int steps) {
    const QPointF place(widget.rect().center());
    QWheelEvent event(place, widget.mapToGlobal(place), {}, QPoint(0, steps * 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // As from a mouse: what a program makes up by itself is not handed on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event);
}

}  // namespace

/// The wheel changes no field, with the focus or without; it scrolls the page behind it.
class TestWheel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() { t_ = std::make_unique<test::TestWindow>(home_); }
    void cleanup() { t_.reset(); }

    void it_leaves_every_unfocused_field_alone() {
        frmKalco& form = t_->form();
        t_->binder().act([&] {
            user::pick(form, form.cboSeqSQ, 10);
            user::focus(form, form.txtName);
        });
        int combos = 0;
        for (Control* control : form.registry.all()) {
            if (!control->on_screen() || control->tab() != tab::players) continue;
            if (control->kind() == Kind::combo_box) {
                const auto& combo = static_cast<ComboBox&>(*control);
                const std::string before = combo.text();
                turn_wheel(t_->widget(*control), -1);
                turn_wheel(t_->widget(*control), 2);
                QCOMPARE(combo.text(), before);
                QVERIFY(!t_->widget(*control).hasFocus());
                ++combos;
            } else if (control->kind() == Kind::text_box) {
                const std::string before = static_cast<TextBox&>(*control).text();
                turn_wheel(t_->widget(*control), 1);
                QCOMPARE(static_cast<TextBox&>(*control).text(), before);
            }
        }
        QVERIFY(combos > 25);
    }

    void it_leaves_a_combo_with_the_focus_alone() {
        frmKalco& form = t_->form();
        t_->binder().act([&] {
            user::pick(form, form.cboSeqSQ, 10);
            user::pick(form, form.cboVel, 3);
        });
        QVERIFY(t_->widget(form.cboVel).hasFocus());
        turn_wheel(t_->widget(form.cboVel), -1);
        QCOMPARE(form.cboVel.row(), 3);
        QCOMPARE(t_->widget<app::PickCombo>(form.cboVel).shown_text(), QStringLiteral("15"));
    }

    void it_scrolls_the_page_behind_a_combo() {
        frmKalco& form = t_->form();
        t_->window.resize(700, 400);
        t_->binder().act([&] { user::pick(form, form.cboSeqSQ, 10); });
        QApplication::processEvents();
        auto* const area = qobject_cast<QScrollArea*>(t_->widget<QTabWidget>(form.SSTab1).currentWidget());
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        area->verticalScrollBar()->setValue(0);
        turn_wheel(t_->widget(form.cboRuolo), -1);
        QVERIFY(area->verticalScrollBar()->value() > 0);
    }

    void it_does_not_leave_the_tab() {
        QTabBar& bar = *t_->widget<QTabWidget>(t_->form().SSTab1).tabBar();
        turn_wheel(bar, -1);
        QCOMPARE(t_->form().SSTab1.tab(), tab::players);
    }

private:
    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestWheel)
#include "test_wheel.moc"
