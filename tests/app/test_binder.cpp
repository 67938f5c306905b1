#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSet>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/number_board.h"
#include "app/widgets/picture_box.h"
#include "app/widgets/pitch_view.h"
#include "app/widgets/strength_bar_view.h"

using namespace kalco;

/// The registry of controls and the widgets of the window are the same set.
class TestBinder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void every_control_on_the_screen_has_its_own_widget() {
        test::TestWindow t(home_);
        QSet<const QWidget*> widgets;
        int shown = 0;
        for (const Control* control : t.form().registry.all()) {
            if (!control->on_screen()) {
                QVERIFY2(t.binder().widget_of(*control) == nullptr, control->name().c_str());
                continue;
            }
            ++shown;
            const QWidget* const widget = t.binder().widget_of(*control);
            QVERIFY2(widget != nullptr, control->name().c_str());
            QVERIFY2(t.binder().control_of(widget) == control, control->name().c_str());
            widgets.insert(widget);
        }
        QCOMPARE(widgets.size(), shown);
        QVERIFY(shown > 250);
    }

    void no_widget_for_input_lacks_a_control() {
        test::TestWindow t(home_);
        int bound = 0;
        for (QWidget* widget : t.window.findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            if (name.startsWith(QStringLiteral("qt_")) || widget->inherits("QComboBoxPrivateContainer")) continue;
            // The window's own buttons act by way of the controls.
            if (name.startsWith(QStringLiteral("view"))) continue;
            const bool takes_input = qobject_cast<QLineEdit*>(widget) != nullptr ||
                                     qobject_cast<QComboBox*>(widget) != nullptr ||
                                     qobject_cast<app::MarkerView*>(widget) != nullptr ||
                                     qobject_cast<app::PictureBox*>(widget) != nullptr ||
                                     qobject_cast<app::NumberCellView*>(widget) != nullptr ||
                                     qobject_cast<app::StrengthBarView*>(widget) != nullptr ||
                                     qobject_cast<QAbstractButton*>(widget) != nullptr ||
                                     qobject_cast<QAbstractItemView*>(widget) != nullptr;
            // A combo box's own list, the tab bar's scroll buttons.
            const bool part_of_another =
                widget->parentWidget() != nullptr && (widget->parentWidget()->inherits("QComboBoxPrivateContainer") ||
                                                      widget->parentWidget()->inherits("QTabBar"));
            if (!takes_input || part_of_another) continue;
            QVERIFY2(t.binder().control_of(widget) != nullptr, qPrintable(name));
            ++bound;
        }
        QVERIFY(bound > 250);
    }

    void a_control_stands_on_its_tab_and_in_its_frame() {
        test::TestWindow t(home_);
        const auto& tabs = t.widget<QTabWidget>(t.form().SSTab1);
        for (const Control* control : t.form().registry.all()) {
            if (!control->on_screen() || control == &t.form().SSTab1) continue;
            const QWidget* const widget = t.binder().widget_of(*control);
            int tab = Place::outside_tabs;
            for (int i = 0; i < tabs.count(); ++i) {
                if (tabs.widget(i)->isAncestorOf(widget)) tab = i;
            }
            QVERIFY2(tab == control->tab(), control->name().c_str());
            const Frame* around = nullptr;
            for (const QWidget* up = widget->parentWidget(); up != nullptr && around == nullptr;
                 up = up->parentWidget()) {
                around = dynamic_cast<const Frame*>(t.binder().control_of(up));
            }
            QVERIFY2(around == control->frame(), control->name().c_str());
        }
    }

    void every_widget_of_a_control_can_be_read_aloud() {
        test::TestWindow t(home_);
        for (const Control* control : t.form().registry.all()) {
            if (!control->takes_focus() || !control->on_screen() || control == &t.form().SSTab1) continue;
            QWidget* const widget = t.binder().widget_of(*control);
            const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(spoken != nullptr && !spoken->text(QAccessible::Name).isEmpty(), control->name().c_str());
        }
    }

private:
    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestBinder)
#include "test_binder.moc"
