#include <QApplication>
#include <QSet>
#include <QTabBar>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

/// The tab key visits every control of a tab once, in reading order, and leaves every one.
class TestTabOrder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void every_control_is_visited_once_data() {
        QTest::addColumn<int>("tab");
        for (int tab = tab::players; tab <= tab::numbers; ++tab) QTest::addRow("tab %d", tab) << tab;
    }

    void every_control_is_visited_once() {
        QFETCH(int, tab);
        test::TestWindow t(home_);
        t.select_tab(tab);
        enable_all(t.form());
        t.binder().sync();

        const std::vector<std::string> visited = walk(t, Qt::Key_Tab);
        for (const Control* control : t.form().registry.all()) {
            if (control->tab() != tab && control->tab() != Place::outside_tabs) continue;
            if (!control->takes_focus() || !control->on_screen()) continue;
            const auto count = std::count(visited.begin(), visited.end(), stop_of(t.form(), *control));
            QVERIFY2(count == 1, (control->name() + ": " + std::to_string(count)).c_str());
        }

        std::vector<std::string> back = walk(t, Qt::Key_Backtab);
        std::reverse(back.begin(), back.end());
        std::rotate(back.begin(), std::find(back.begin(), back.end(), visited.front()), back.end());
        QCOMPARE(back, visited);
    }

    void the_first_tab_goes_in_reading_order() {
        test::TestWindow t(home_);
        enable_all(t.form());
        t.binder().sync();
        const std::vector<std::string> order = walk(t, Qt::Key_Tab);
        const std::vector<std::string> expected{
            "cmdOpen",   "SSTab1",   "cboSeqSQ",   "cmdNew",    "txtSqShort", "txtSqHEX",  "txtSqDec",  "cmdName",
            "txtSQ",     "listDat",  "cmdExp",     "cmdImp",    "cmdImpML",   "txtName",   "cboRuolo",  "cboOutSide",
            "txtML",     "cboPelle", "cboCapelli", "cboColCap", "cboStlBar",  "cboColBar", "cboScarpa", "cmdSottH",
            "txtAlt",    "cmdAddH",  "cmdSottEta", "txtEta",    "cmdAddEta",  "cboFisico", "cboPiede",  "cboAttacco",
            "cboDifesa", "cboEquil", "cboRes",     "cboVel",    "cboAcc",     "cboPass",   "cboPot",    "cboPrec",
            "cboElev",   "cboTesta", "cboTecn",    "cboDribbl", "cboCurv",    "cboPosit",  "cboReaz",   "cmdSaveCar"};
        QCOMPARE(order, expected);
    }

private:
    static void enable_all(frmKalco& form) {
        for (Control* control : form.registry.all()) control->set_enabled(true);
    }

    /// The selected option button, or else the first, stands for its group.
    static std::string stop_of(const frmKalco& form, const Control& control) {
        if (control.kind() != Kind::option_button) return control.name();
        const OptionButton* stop = nullptr;
        for (const Control* other : form.registry.all()) {
            if (other->kind() != Kind::option_button || other->frame() != control.frame()) continue;
            const auto* const option = static_cast<const OptionButton*>(other);
            if (stop == nullptr || option->value()) stop = option;
        }
        return stop->name();
    }

    /// The names of the controls that the key visits, from cmdOpen on and once around.
    static std::vector<std::string> walk(test::TestWindow& t, Qt::Key key) {
        QWidget& first = t.widget(t.form().cmdOpen);
        // A new window has it there already, without an action of the user.
        first.clearFocus();
        first.setFocus(Qt::TabFocusReason);
        std::vector<std::string> names;
        constexpr int more_than_any_tab = 300;
        for (int i = 0; i < more_than_any_tab; ++i) {
            const QWidget* const focused = QApplication::focusWidget();
            const Control* const control = focused == nullptr ? nullptr : t.binder().control_of(focused);
            names.push_back(control != nullptr ? control->name() : focused->objectName().toStdString());
            if (control != nullptr && t.form().focused() != control) names.back() += " without the model's focus";
            QTest::keyClick(const_cast<QWidget*>(focused), key);
            if (first.hasFocus()) break;
        }
        return names;
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestTabOrder)
#include "test_tab_order.moc"
