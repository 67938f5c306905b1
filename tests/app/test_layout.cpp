#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabBar>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

/// What the tabs look like at the window's own size and at its smallest, in light and dark.
class TestLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void no_text_is_cut_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("dark");
        QTest::addRow("as it opens") << QSize(1100, 720) << false;
        QTest::addRow("dark") << QSize(1100, 720) << true;
        QTest::addRow("smallest") << QSize(1, 1) << false;
        QTest::addRow("large") << QSize(1900, 1000) << false;
    }

    void no_text_is_cut() {
        QFETCH(QSize, size);
        QFETCH(bool, dark);
        test::prepare_application(dark);
        test::TestWindow t(home_);
        t.window.resize(size);
        for (int tab = tab::players; tab <= tab::numbers; ++tab) {
            t.select_tab(tab);
            choose_a_team(t, tab);
            QApplication::processEvents();
            int checked = 0;
            for (QWidget* widget : t.window.findChildren<QWidget*>()) {
                const bool has_text = qobject_cast<QLabel*>(widget) != nullptr ||
                                      qobject_cast<QAbstractButton*>(widget) != nullptr ||
                                      qobject_cast<QGroupBox*>(widget) != nullptr || t.binder().control_of(widget);
                if (!has_text || !widget->isVisible() || widget->objectName() == QStringLiteral("viewPath")) continue;
                // The arrows of a tab bar that is too narrow are as small as it.
                if (qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr) continue;
                const QSize needed = widget->minimumSizeHint();
                const std::string where = std::to_string(tab) + ' ' + widget->objectName().toStdString();
                QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(), where.c_str());
                const QWidget& around = page_of(t, *widget);
                QVERIFY2(around.rect().contains(QRect(widget->mapTo(&around, QPoint()), widget->size())),
                         where.c_str());
                ++checked;
            }
            QVERIFY(checked > 10);
        }
    }

    void the_window_fits_a_small_screen() {
        test::prepare_application();
        test::TestWindow t(home_);
        t.window.resize(1, 1);
        QApplication::processEvents();
        QVERIFY2(t.window.width() <= 640 && t.window.height() <= 400,
                 qPrintable(QStringLiteral("%1 x %2").arg(t.window.width()).arg(t.window.height())));
    }

    void lists_grow_and_fields_do_not() {
        test::prepare_application();
        test::TestWindow t(home_);
        // More than the page needs, on whatever screen.
        t.window.resize(1120, 1000);
        QApplication::processEvents();
        const int list = t.widget(t.form().listDat).height();
        const int field = t.widget(t.form().txtName).height();
        const int combo = t.widget(t.form().cboRuolo).height();
        t.window.resize(t.window.width(), t.window.height() + 200);
        QApplication::processEvents();
        QVERIFY(t.widget(t.form().listDat).height() >= list + 170);
        QCOMPARE(t.widget(t.form().txtName).height(), field);
        QCOMPARE(t.widget(t.form().cboRuolo).height(), combo);
    }

    void a_row_of_options_stands_beside_its_player() {
        test::prepare_application();
        for (const int height : {690, 720, 1000}) {
            test::TestWindow t(home_);
            t.window.resize(1100, height);
            t.select_tab(tab::kickers);
            frmKalco& form = t.form();
            for (int k = 1; k <= 11; ++k) {
                const int middle = centre(t, form.txtNM(k)).y();
                for (auto* column : {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP}) {
                    QVERIFY(std::abs(centre(t, (*column)(k - 1)).y() - middle) <= 2);
                }
            }
        }
    }

private:
    /// What the widget must lie within: its page, which may scroll, or the window.
    static const QWidget& page_of(test::TestWindow& t, const QWidget& widget) {
        for (const QScrollArea* area : t.window.findChildren<QScrollArea*>()) {
            if (area->widget()->isAncestorOf(&widget)) return *area->widget();
        }
        return t.window;
    }

    static QPoint centre(test::TestWindow& t, const Control& control) {
        QWidget& widget = t.widget(control);
        return widget.mapTo(&t.window, widget.rect().center());
    }

    static void choose_a_team(test::TestWindow& t, int tab) {
        frmKalco& form = t.form();
        ComboBox* const combo = tab == tab::players      ? &form.cboSeqSQ
                                : tab == tab::league     ? &form.cboSqNC
                                : tab == tab::kickers    ? &form.cboSquadra
                                : tab == tab::formations ? &form.cboSeqSQ2
                                : tab == tab::numbers    ? &form.cboSQNum
                                                         : nullptr;
        if (combo != nullptr) t.binder().act([&] { user::pick(form, *combo, 10); });
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestLayout)
#include "test_layout.moc"
