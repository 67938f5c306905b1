#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QtTest>

#include "app/binder/view.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/text.h"
#include "editor/window/user.h"

using namespace kalco;

/// What typing lets through, and texts between the model and the fields.
class TestTyping : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        t_ = std::make_unique<test::TestWindow>(home_);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ, 10); });
    }
    void cleanup() { t_.reset(); }

    void digits_only_where_the_box_takes_digits() {
        t_->type(form().txtML, QStringLiteral("1a-2 3b"));
        QCOMPARE(form().txtML.text(), std::string("123"));
        QCOMPARE(edit(form().txtML).text(), QStringLiteral("123"));
    }

    void the_limit_holds_for_typing_and_pasting() {
        t_->type(form().txtName, QStringLiteral("ABCDEFGHIJKLM"));
        QCOMPARE(form().txtName.text(), std::string("ABCDEFGHIJ"));
        QGuiApplication::clipboard()->setText(QStringLiteral("xyz123456789"));
        edit(form().txtName).setSelection(2, 3);
        QTest::keyClick(&edit(form().txtName), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(form().txtName.text(), std::string("ABxyzFGHIJ"));
        QCOMPARE(edit(form().txtName).text(), QStringLiteral("ABxyzFGHIJ"));
        QCOMPARE(edit(form().txtName).cursorPosition(), 5);
    }

    void an_assigned_text_above_the_limit_stays_whole() {
        t_->binder().act([this] { form().txtName.set_text("ABCDEFGHIJKLMNO"); });
        QCOMPARE(edit(form().txtName).text(), QStringLiteral("ABCDEFGHIJKLMNO"));
        t_->click(form().txtName);
        edit(form().txtName).setCursorPosition(3);
        QTest::keyClick(&edit(form().txtName), 'x');
        QCOMPARE(form().txtName.text(), std::string("ABCDEFGHIJKLMNO"));
        QCOMPARE(edit(form().txtName).cursorPosition(), 3);
        QTest::keyClick(&edit(form().txtName), Qt::Key_Backspace);
        QCOMPARE(form().txtName.text(), std::string("ABDEFGHIJKLMNO"));
    }

    void other_characters_than_latin1_become_question_marks() {
        t_->type(form().txtName, QStringLiteral("Pérez č€"));
        QCOMPARE(form().txtName.text(), std::string("P\xE9rez ??"));
        QCOMPARE(edit(form().txtName).text(), QStringLiteral("Pérez ??"));
        QCOMPARE(app::model_text(QStringLiteral("a\U0001F600b")), std::string("a?b"));
    }

    void every_byte_goes_through_the_field_unchanged() {
        std::string bytes;
        for (int code = 1; code < 256; ++code) bytes += static_cast<char>(code);
        QCOMPARE(app::model_text(app::qt_text(bytes)), bytes);
        t_->binder().act([&] { form().txtSQ.set_text(bytes); });
        QCOMPARE(app::model_text(edit(form().txtSQ).text()), bytes);
        for (const QChar shown : app::visible_text(app::qt_text(bytes))) {
            QVERIFY(shown.unicode() >= 0x20 && (shown.unicode() < 0x7F || shown.unicode() >= 0xA0));
        }
    }

    void an_edit_is_filtered_where_it_was_made() {
        Registry registry;
        TextBox box(registry, "box", Place::anywhere(), 4);
        box.set_text("abcdef");
        QCOMPARE(app::filtered_edit(box, "abcxdef"), std::string("abcdef"));
        QCOMPARE(app::filtered_edit(box, "abef"), std::string("abef"));
        QCOMPARE(app::filtered_edit(box, ""), std::string());
        box.set_text("ab");
        QCOMPARE(app::filtered_edit(box, "axyzb"), std::string("axyb"));
        QCOMPARE(app::filtered_edit(box, "a\tb"), std::string("ab"));
        box.key_filter = [](char character) { return character == 'z'; };
        QCOMPARE(app::filtered_edit(box, "axzzyb"), std::string("azzb"));
        box.set_text("aa");
        QCOMPARE(app::filtered_edit(box, "aaz"), std::string("aaz"));
        QCOMPARE(app::filtered_edit(box, "aaa"), std::string("aa"));
    }

    void enter_in_the_number_field_changes_the_number() {
        t_->select_tab(tab::numbers);
        t_->binder().act([this] { user::pick(form(), form().cboSQNum, 10); });
        t_->pick_row(form().ListName, 2);
        QVERIFY(edit(form().txtNumMod).hasFocus());
        QCOMPARE(edit(form().txtNumMod).selectedText(), qt(form().ListNum.item(2)));
        QTest::keyClicks(&edit(form().txtNumMod), QStringLiteral("31"));
        t_->key(Qt::Key_Return);
        QCOMPARE(form().ListNum.item(2), std::string("31"));
        QVERIFY(form().lblNum(31).in_use());
    }

private:
    static QString qt(const std::string& text) { return app::qt_text(text); }
    frmKalco& form() { return t_->form(); }
    QLineEdit& edit(const TextBox& box) { return t_->widget<QLineEdit>(box); }

    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestTyping)
#include "test_typing.moc"
