#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "app/readable.h"
#include "app/style.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

namespace {

/// What the usual desktops hand to Qt when they are dark, with their own disabled inks; and a light one.
QPalette desktop(const char* window, const char* base, const char* button, const char* text, const char* disabled,
                 const char* highlight) {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor ink(group == QPalette::Disabled ? disabled : text);
        palette.setColor(group, QPalette::Window, QColor(window));
        palette.setColor(group, QPalette::Base, QColor(base));
        palette.setColor(group, QPalette::AlternateBase, QColor(window));
        palette.setColor(group, QPalette::Button, QColor(button));
        palette.setColor(group, QPalette::WindowText, ink);
        palette.setColor(group, QPalette::Text, ink);
        palette.setColor(group, QPalette::ButtonText, ink);
        palette.setColor(group, QPalette::Highlight, QColor(highlight));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
        QColor hint(text);
        hint.setAlpha(128);
        palette.setColor(group, QPalette::PlaceholderText, hint);
    }
    return palette;
}

}  // namespace

/// Every text can be read, whatever palette the desktop has.
class TestReadable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void the_contrast_is_that_of_the_guidelines() {
        QCOMPARE(qRound(app::contrast(Qt::white, Qt::black)), 21);
        QCOMPARE(app::contrast(QColor(0x77, 0x77, 0x77), QColor(0x77, 0x77, 0x77)), 1.0);
        // The grey that is known to miss the mark on white by a little.
        QVERIFY(app::contrast(QColor(0x77, 0x77, 0x77), Qt::white) < 4.5);
        QVERIFY(app::contrast(QColor(0x76, 0x76, 0x76), Qt::white) > 4.5);
    }

    void an_ink_that_can_be_read_stays_as_it_is() {
        QCOMPARE(app::readable(QColor(0x33, 0x33, 0x33), Qt::white), QColor(0x33, 0x33, 0x33));
        QVERIFY(app::contrast(app::readable(Qt::yellow, Qt::white), Qt::white) >= 4.5);
        QVERIFY(app::contrast(app::readable(Qt::darkBlue, Qt::black), Qt::black) >= 4.5);
    }

    void the_palette_of_the_desktop_is_read_through_the_style() {
        const QColor hint = QApplication::palette().color(QPalette::PlaceholderText);
        QCOMPARE(hint.alpha(), 255);
        QVERIFY(app::contrast(hint, QApplication::palette().color(QPalette::Window)) >= 4.5);
    }

    void all_texts_of_the_window_can_be_read_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("breeze dark") << desktop("#2a2e32", "#1b1e20", "#31363b", "#fcfcfc", "#6f7174", "#3daee9");
        QTest::newRow("adwaita dark") << desktop("#353535", "#2d2d2d", "#353535", "#eeeeec", "#919190", "#15539e");
        QTest::newRow("fusion dark") << desktop("#323232", "#242424", "#323232", "#ffffff", "#9d9d9d", "#308cc6");
        QTest::newRow("black") << desktop("#000000", "#000000", "#101010", "#e0e0e0", "#404040", "#0050a0");
        QTest::newRow("breeze light") << desktop("#eff0f1", "#ffffff", "#fcfcfc", "#232629", "#a8a9aa", "#3daee9");
        QTest::newRow("as it comes") << QPalette();
    }

    void all_texts_of_the_window_can_be_read() {
        QFETCH(QPalette, palette);
        // As the style does with the palette of a desktop.
        app::Style().polish(palette);
        QApplication::setPalette(palette);
        test::TestWindow t(home_);
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 70); });
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const QWidget* widget : t.window.findChildren<QWidget*>()) {
                const QPalette& own = widget->palette();
                const auto reads = [&](QPalette::ColorRole ink, QPalette::ColorRole ground) {
                    return app::contrast(own.color(group, ink), own.color(group, ground)) >= 4.5;
                };
                const QByteArray name = widget->objectName().toUtf8();
                if (qobject_cast<const QLabel*>(widget) != nullptr) {
                    const bool in_field = qobject_cast<const QLineEdit*>(widget->parentWidget()) != nullptr;
                    QVERIFY2(reads(widget->foregroundRole(), in_field ? QPalette::Base : QPalette::Window), name);
                } else if (qobject_cast<const QLineEdit*>(widget) != nullptr) {
                    const bool like_label = own.color(QPalette::Base).alpha() == 0;
                    const auto ground = like_label ? QPalette::Window : QPalette::Base;
                    QVERIFY2(reads(QPalette::Text, ground) && reads(QPalette::PlaceholderText, ground), name);
                } else if (qobject_cast<const QPushButton*>(widget) != nullptr) {
                    QVERIFY2(reads(QPalette::ButtonText, QPalette::Button), name);
                }
            }
        }
        const auto& path = *t.window.findChild<QLabel*>(QStringLiteral("viewPath"));
        QCOMPARE(path.foregroundRole(), QPalette::PlaceholderText);
        QApplication::setPalette(QPalette());
    }

    void faint_and_warning_inks_can_be_read_on_any_ground() {
        for (int grey = 0; grey < 256; grey += 15) {
            const QColor ground(grey, grey, grey);
            const QColor ink = grey < 118 ? Qt::white : Qt::black;
            QVERIFY(app::contrast(app::faint(ink, ground), ground) >= 4.5);
            QVERIFY(app::contrast(app::warning_ink(ground), ground) >= 4.5);
        }
    }

private:
    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestReadable)
#include "test_readable.moc"
