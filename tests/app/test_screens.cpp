#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

/// The window on the screen that the platform has: this program is run with several.
class TestScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void the_window_stays_within_the_screen() {
        test::TestWindow t(home_);
        const QRect screen = t.window.screen()->availableGeometry();
        for (int tab = tab::players; tab <= tab::numbers; ++tab) {
            t.select_tab(tab);
            QVERIFY2(t.window.width() <= screen.width() && t.window.height() <= screen.height(), size_text(t));
        }
        // With all that can stand above and below the tabs, and made as small as it goes.
        t.platform.choices.push_back("");
        t.click(t.form().cmdOpen);
        t.window.resize(1, 1);
        QApplication::processEvents();
        QVERIFY2(t.window.width() <= screen.width() && t.window.height() <= screen.height(), size_text(t));
    }

    void everything_can_be_reached_with_the_mouse() {
        test::TestWindow t(home_);
        auto& pages = t.widget<QTabWidget>(t.form().SSTab1);
        for (int tab = tab::players; tab <= tab::numbers; ++tab) {
            t.select_tab(tab);
            QCOMPARE(t.form().SSTab1.tab(), tab);
            auto* const area = qobject_cast<QScrollArea*>(pages.currentWidget());
            for (const Control* control : t.form().registry.all()) {
                if (!control->on_screen() || control->tab() != tab || !control->visible()) continue;
                QWidget& widget = t.widget(*control);
                area->ensureWidgetVisible(&widget, 0, 0);
                QApplication::processEvents();
                const QRect shown(widget.mapTo(area->viewport(), QPoint()), widget.size());
                const QRect viewport = area->viewport()->rect();
                // A frame may be larger than the viewport: then all of it can be scrolled to.
                const bool reached = viewport.intersects(shown) || control->kind() == Kind::frame;
                QVERIFY2(reached && !shown.isEmpty(), control->name().c_str());
                if (shown.width() <= viewport.width() && shown.height() <= viewport.height()) {
                    QVERIFY2(viewport.contains(shown.center()), control->name().c_str());
                }
            }
        }
    }

    void a_field_that_gets_the_keyboard_is_scrolled_to() {
        test::TestWindow t(home_);
        t.window.resize(500, 360);
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 10); });
        QApplication::processEvents();
        auto* const area = qobject_cast<QScrollArea*>(t.widget<QTabWidget>(t.form().SSTab1).currentWidget());
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        for (const Control* control :
             {static_cast<Control*>(&t.form().cmdSaveCar), static_cast<Control*>(&t.form().txtSqShort),
              static_cast<Control*>(&t.form().cboReaz)}) {
            QWidget& widget = t.widget(*control);
            widget.setFocus(Qt::TabFocusReason);
            QVERIFY2(!widget.visibleRegion().isEmpty(), control->name().c_str());
        }
    }

private:
    static const char* size_text(const test::TestWindow& t) {
        static QByteArray text;
        text = QByteArray::number(t.window.width()) + " x " + QByteArray::number(t.window.height());
        return text;
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestScreens)
#include "test_screens.moc"
