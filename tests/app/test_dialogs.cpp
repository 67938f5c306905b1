#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include "app/program.h"
#include "app/qt_platform.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

namespace {

/// Runs a step on the next dialog that is shown.
template <typename Dialog, typename Step>
void when_shown(Step step) {
    QTimer::singleShot(0, [step] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            QTest::qFail("no dialog of that kind is shown", __FILE__, __LINE__);
            if (QWidget* const other = QApplication::activeModalWidget()) other->close();
            return;
        }
        step(*dialog);
    });
}

/// A platform whose program lies in a directory of the test.
class FixedHome : public app::QtPlatform {
public:
    explicit FixedHome(const QString& home) : home_(home.toStdString()) {}
    std::string program_directory() const override { return home_; }

private:
    std::string home_;
};

QStringList captions(const QMessageBox& box) {
    QStringList result;
    for (const QAbstractButton* button : box.buttons()) result << button->text();
    return result;
}

}  // namespace

/// The real boxes and dialogs, pressed with the keyboard and the mouse.
class TestDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { app::prepare_application(); }

    void a_box_shows_the_text_and_the_icon() {
        when_shown<QMessageBox>([](QMessageBox& box) {
            QCOMPARE(box.text(), QStringLiteral("Età\ndue righe"));
            QCOMPARE(box.icon(), QMessageBox::Critical);
            QCOMPARE(captions(box), QStringList{QStringLiteral("OK")});
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QCOMPARE(platform_.message("Et\xE0\r\ndue righe", Icon::stop, Buttons::ok), Answer::ok);
    }

    void a_question_has_three_answers_in_italian() {
        for (const auto& [index, answer] : {std::pair{0, Answer::yes}, {1, Answer::no}, {2, Answer::cancel}}) {
            const int pressed = index;
            when_shown<QMessageBox>([pressed](QMessageBox& box) {
                const QStringList expected{QStringLiteral("&Sì"), QStringLiteral("&No"), QStringLiteral("Annulla")};
                for (const QString& caption : expected) QVERIFY(captions(box).contains(caption));
                for (QAbstractButton* button : box.buttons()) {
                    if (button->text() == expected[pressed]) QTest::mouseClick(button, Qt::LeftButton);
                }
            });
            QCOMPARE(platform_.message("?", Icon::information, Buttons::yes_no_cancel), answer);
        }
        when_shown<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(platform_.message("?", Icon::information, Buttons::yes_no_cancel), Answer::cancel);
    }

    void the_file_dialog_starts_where_it_is_told_with_the_filters() {
        const test::DemoHome home;
        when_shown<QFileDialog>([&home](QFileDialog& dialog) {
            QCOMPARE(dialog.directory().canonicalPath(), QDir(QString::fromStdString(home.path())).canonicalPath());
            QCOMPARE(dialog.nameFilters().size(), 3);
            QVERIFY(dialog.selectedNameFilter().contains(QStringLiteral("*.bin")));
            dialog.selectFile(QStringLiteral("demo.bin"));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        const std::string chosen = platform_.open_dialog(
            "Image CDRWIN (*.bin)|*.bin| Image CloneCD (*.img)|*.img| All Files (*.*)|*.*", home.path());
        QCOMPARE(QFileInfo(QString::fromStdString(chosen)).canonicalFilePath(),
                 QFileInfo(QString::fromStdString(home.image())).canonicalFilePath());
    }

    void a_cancelled_file_dialog_gives_no_path() {
        when_shown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(platform_.open_dialog("*.DAT|*.DAT", "."), std::string());
    }

    void a_box_is_titled_once() {
        when_shown<QMessageBox>([](QMessageBox& box) {
            QCOMPARE(box.windowTitle(), QStringLiteral("Kalco"));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        platform_.message("?", Icon::information, Buttons::ok);
    }

    void the_side_bar_has_the_side_directories_that_are_there() {
        QTemporaryDir home;
        QVERIFY(QDir(home.path()).mkdir(QStringLiteral("Export")));
        QVERIFY(QDir(home.path()).mkdir(QStringLiteral("N° Maglia")));
        FixedHome platform(home.path());
        QStringList shown;
        when_shown<QFileDialog>([&](QFileDialog& dialog) {
            for (const QUrl& url : dialog.sidebarUrls()) shown << url.toLocalFile();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        platform.open_dialog("*.DAT|*.DAT", ".");
        QVERIFY(shown.contains(home.filePath(QStringLiteral("Export"))));
        QVERIFY(shown.contains(home.filePath(QStringLiteral("N° Maglia"))));
        QVERIFY(!shown.contains(home.filePath(QStringLiteral("Transfer"))));
    }

    void the_file_dialog_speaks_italian_all_through() {
        QStringList texts;
        when_shown<QFileDialog>([&](QFileDialog& dialog) {
            for (const QLabel* label : dialog.findChildren<QLabel*>()) texts << label->text();
            for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
                texts << button->text() << button->toolTip();
            }
            for (const QAction* action : dialog.findChildren<QAction*>()) texts << action->text();
            for (const QTreeView* tree : dialog.findChildren<QTreeView*>()) {
                for (int column = 0; column < tree->model()->columnCount(); ++column) {
                    texts << tree->model()->headerData(column, Qt::Horizontal).toString();
                }
            }
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        platform_.open_dialog("*.DAT|*.DAT", ".");
        const QString all = texts.join(u'|');
        QVERIFY(all.contains(QStringLiteral("Data")));
        for (const char* english : {"Name", "Size", "Date", "Type", "Back", "Forward", "Parent", "Folder", "View",
                                    "Open", "Cancel", "Look", "Delete", "Rename", "Show", "Create", "directory"}) {
            const QRegularExpression word(QStringLiteral("\\b%1\\b").arg(QLatin1String(english)));
            QVERIFY2(!word.match(all).hasMatch(), qPrintable(QLatin1String(english) + QStringLiteral(": ") + all));
        }
    }

    void the_file_dialog_names_the_kinds_and_has_room_for_its_heads() {
        QTemporaryDir home;
        QVERIFY(QDir(home.path()).mkdir(QStringLiteral("Export")));
        when_shown<QFileDialog>([&home](QFileDialog& dialog) {
            QAbstractFileIconProvider& kinds = *dialog.iconProvider();
            QCOMPARE(kinds.type(QFileInfo(home.path())), QStringLiteral("Cartella"));
            QCOMPARE(kinds.type(QFileInfo(QStringLiteral("a.bin"))), QStringLiteral("File BIN"));
            QCOMPARE(kinds.type(QFileInfo(QStringLiteral("a"))), QStringLiteral("File"));
            const auto& head = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
            for (int column = 0; column < head.count(); ++column) {
                QVERIFY(head.sectionSize(column) >= head.sectionSizeHint(column));
            }
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        platform_.open_dialog("*.DAT|*.DAT", home.path().toStdString());
    }

    void the_filters_are_pairs_of_a_label_and_a_pattern() {
        QCOMPARE(app::name_filters(QStringLiteral("*.DAT|*.DAT")), QStringList{QStringLiteral("File (*.DAT)")});
        const QStringList image = app::name_filters(QStringLiteral("Image CDRWIN (*.bin)|*.bin| All Files (*.*)|*.*"));
        QCOMPARE(image, (QStringList{QStringLiteral("Image CDRWIN (*.bin)"), QStringLiteral("All Files (*)")}));
    }

    void the_window_behind_a_box_is_up_to_date() {
        const test::DemoHome home;
        test::TestWindow t(home);
        app::QtPlatform& platform = platform_;
        platform.before_box = [&t] { t.binder().sync(); };
        QString shown;
        when_shown<QMessageBox>([&](QMessageBox& box) {
            shown = t.widget<QLineEdit>(t.form().txtSQ).text();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        t.binder().act([&] {
            t.form().txtSQ.set_text("prima");
            platform.message("?", Icon::information, Buttons::ok);
        });
        platform.before_box = nullptr;
        QCOMPARE(shown, QStringLiteral("prima"));
    }

    void nothing_is_carried_out_behind_a_box() {
        const test::DemoHome home;
        test::TestWindow t(home);
        int presses = 0;
        t.form().cmdNew.click = [&] {
            ++presses;
            when_shown<QMessageBox>([&t](QMessageBox& box) {
                t.click(t.form().cmdNew);
                t.binder().act([] { QTest::qFail("an action inside an action", __FILE__, __LINE__); });
                QTest::keyClick(&box, Qt::Key_Return);
            });
            platform_.message("?", Icon::information, Buttons::ok);
        };
        t.click(t.form().cmdNew);
        QCOMPARE(presses, 1);
    }

private:
    app::QtPlatform platform_;
};

KALCO_WINDOW_TEST(TestDialogs)
#include "test_dialogs.moc"
