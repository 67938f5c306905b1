#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>

#include "app/application.h"
#include "app/program.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/notice.h"
#include "disc/runtime_error.h"
#include "editor/window/user.h"

using namespace kalco;

/// A program whose directory can't be used.
class HomelessPlatform : public app::QtPlatform {
public:
    std::string program_directory() const override { return "/dev/null"; }
};

/// A whole run of the program with its real dialogs: what it shows and the status that it ends with.
class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { app::prepare_application(); }

    void init() {
        // A step that fails leaves a dialog that nobody answers.
        constexpr int patience = 60000;  // Milliseconds.
        guard_ = std::make_unique<QTimer>();
        guard_->callOnTimeout([] {
            if (QWidget* const asked = QApplication::activeModalWidget()) asked->close();
            QCoreApplication::exit(unanswered);
        });
        guard_->start(patience);
    }
    void cleanup() { guard_.reset(); }

    void cancelling_the_first_dialog_ends_it_with_0() {
        app::Program program;
        cancel_next_dialog();
        QCOMPARE(program.run(), 0);
        QVERIFY(!program.window().isVisible());
    }

    void closing_the_window_ends_it_with_0() {
        const test::DemoHome home;
        app::Program program;
        choose_next(home);
        when_started(program, [&program] {
            QVERIFY(program.window().isVisible());
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
        QVERIFY(!program.editor().form.image.is_open());
    }

    void a_held_image_is_told_and_ends_it_with_1() {
        const test::DemoHome home;
        const test::TestWindow holder(home);
        app::Program program;
        choose_next(home);
        QString text;
        on_box([&text](QMessageBox& box) { text = press_enter(box); });
        QCOMPARE(program.run(), 1);
        QCOMPARE(text, QStringLiteral("Accesso negato, Immagine CD già aperta"));
        QVERIFY(!program.window().isVisible());
    }

    void an_error_that_nothing_catches_is_told_and_ends_it_with_1() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        form.cmdNew.click = [] { throw RuntimeError(error::type_mismatch); };
        choose_next(home);
        QString text;
        when_started(program, [&] {
            on_box([&text](QMessageBox& box) { text = press_enter(box); });
            QTest::mouseClick(program.window().binder().widget_of(form.cmdNew), Qt::LeftButton);
        });
        QCOMPARE(program.run(), 1);
        QCOMPARE(text, QStringLiteral("Errore di run-time '13':\nTipo non corrispondente"));
        QVERIFY(told_.contains(QStringLiteral("Durante: «New».")));
        QVERIFY(told_.contains(QStringLiteral("Kalco si chiude. Quello che era già scritto nell'immagine resta.")));
        QVERIFY(!form.image.is_open());
        QVERIFY(!program.window().isVisible());
    }

    void an_error_names_the_field_by_its_label() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        form.cboSeqSQ.click = [] { throw RuntimeError(error::type_mismatch); };
        choose_next(home);
        when_started(program, [&] {
            on_box([](QMessageBox& box) { press_enter(box); });
            QTest::keyClick(program.window().binder().widget_of(form.cboSeqSQ), Qt::Key_E);
        });
        QCOMPARE(program.run(), 1);
        QVERIFY2(told_.contains(QStringLiteral("Durante: Squadra «England».")), qPrintable(told_));
    }

    void any_other_exception_is_told_and_ends_it_with_1() {
        const std::vector<std::pair<std::exception_ptr, QString>> failures{
            {std::make_exception_ptr(std::bad_alloc()), QStringLiteral("Errore di run-time '7':\nMemoria esaurita")},
            {std::make_exception_ptr(std::out_of_range("x")),
             QStringLiteral("Errore di run-time '5':\nChiamata di routine o argomento non validi")},
            {std::make_exception_ptr(1),
             QStringLiteral("Errore di run-time '5':\nChiamata di routine o argomento non validi")},
        };
        for (const auto& [failure, expected] : failures) {
            const test::DemoHome home;
            app::Program program;
            frmKalco& form = program.editor().form;
            form.cmdNew.click = [&failure = failure] { std::rethrow_exception(failure); };
            choose_next(home);
            QString text;
            when_started(program, [&] {
                on_box([&text](QMessageBox& box) { text = press_enter(box); });
                QTest::mouseClick(program.window().binder().widget_of(form.cmdNew), Qt::LeftButton);
            });
            QCOMPARE(program.run(), 1);
            QCOMPARE(text, expected);
            QVERIFY(!form.image.is_open());
        }
    }

    void an_exception_outside_all_actions_is_told_and_ends_it_with_1() {
        const test::DemoHome home;
        app::Program program;
        application().on_failure = [&program](const std::exception_ptr& failure) { program.fail(failure); };
        choose_next(home);
        QString text;
        when_started(program, [&] {
            on_box([&text](QMessageBox& box) { text = press_enter(box); });
            QTimer::singleShot(0, &program.window(), [] { throw std::bad_alloc(); });
        });
        QCOMPARE(program.run(), 1);
        application().on_failure = nullptr;
        QCOMPARE(text, QStringLiteral("Errore di run-time '7':\nMemoria esaurita"));
        QVERIFY(!program.editor().form.image.is_open());
    }

    void a_directory_that_cannot_be_made_is_told_at_once() {
        const test::DemoHome home;
        HomelessPlatform platform;
        Editor editor(platform);
        app::KalcoWindow window(editor.form);
        platform.choose_next(QString::fromStdString(home.image()));
        QString text;
        QString title;
        on_box([&](QMessageBox& box) {
            title = box.windowTitle();
            text = press_enter(box);
        });
        window.start();
        QCOMPARE(title, QStringLiteral("Kalco"));
        QCOMPARE(text, QStringLiteral("Impossibile creare la cartella\n/dev/null/Export"));
        // The opening goes on as far as it did without the box.
        QVERIFY(window.isVisible());
        QVERIFY(editor.form.image.is_open());
        QCOMPARE(editor.form.txtName.max_length(), 0);
        window.close();
    }

    void the_lost_path_after_a_cancelled_change_of_image_ends_the_next_save() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        choose_next(home);
        QStringList texts;
        when_started(program, [&] {
            app::Binder& binder = program.window().binder();
            cancel_next_dialog();
            QTest::mouseClick(binder.widget_of(form.cmdOpen), Qt::LeftButton);
            binder.act([&form] { user::pick(form, form.cboSeqSQ, 3); });
            on_box([&texts](QMessageBox& box) {
                texts << press_enter(box);
                on_box([&texts](QMessageBox& next) { texts << press_enter(next); });
            });
            QTest::mouseClick(binder.widget_of(form.cmdSaveCar), Qt::LeftButton);
        });
        QCOMPARE(program.run(), 1);
        QCOMPARE(texts.size(), 2);
        QVERIFY(texts.contains(QStringLiteral("Salvataggio effettuato con successo")));
        QVERIFY(texts.contains(QStringLiteral("Errore di run-time '75':\nErrore di accesso al percorso/file")));
    }

    void an_image_of_the_command_line_needs_no_dialog() {
        const test::DemoHome home;
        app::Program program;
        program.open_at_start(QString::fromStdString(home.image()));
        when_started(program, [&] {
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            QCOMPARE(program.editor().form.ImagePath, home.image());
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
    }

    void an_image_of_the_command_line_that_is_not_there_is_told() {
        app::Program program;
        program.open_at_start(QStringLiteral("/nowhere/none.bin"));
        QString notice;
        when_started(program, [&] {
            notice = program.window().findChild<app::Notice*>(QStringLiteral("viewImageNotice"))->text();
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
        QVERIFY(notice.contains(QStringLiteral("il file non c'è")));
    }

    void the_remedy_for_the_lost_path_opens_the_same_image() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        choose_next(home);
        when_started(program, [&] {
            app::Binder& binder = program.window().binder();
            cancel_next_dialog();
            QTest::mouseClick(binder.widget_of(form.cmdOpen), Qt::LeftButton);
            QVERIFY(form.ImagePath.empty());
            auto* const remedy = program.window().findChild<QPushButton*>(QStringLiteral("viewReopen"));
            QVERIFY(remedy->isVisible());
            QTest::mouseClick(remedy, Qt::LeftButton);
            QCOMPARE(form.ImagePath, home.image());
            QVERIFY(form.image.is_open() && !remedy->isVisible());
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
    }

    void no_import_is_told_while_the_file_is_asked_for() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        choose_next(home);
        bool told_before = true;
        bool told_again = true;
        bool told_behind = false;
        when_started(program, [&] {
            app::Binder& binder = program.window().binder();
            const auto* const line = program.window().findChild<app::Notice*>(QStringLiteral("viewPending"));
            binder.act([&form] { user::pick(form, form.cboSeqSQ, 3); });
            for (bool* told : {&told_before, &told_again}) {
                QTimer::singleShot(0, &program.window(), [line, told] {
                    *told = line->isVisible();
                    qobject_cast<QFileDialog*>(QApplication::activeModalWidget())->reject();
                });
                QTest::mouseClick(binder.widget_of(form.cmdImp), Qt::LeftButton);
                told_behind = line->isVisible();
            }
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
        QVERIFY(!told_before && !told_again && told_behind);
    }

    void a_dropped_image_replaces_the_open_one_without_a_dialog() {
        const test::DemoHome home;
        const test::DemoHome other;
        app::Program program;
        choose_next(home);
        when_started(program, [&] {
            Q_EMIT program.window().image_wanted(QString::fromStdString(other.image()));
            QCOMPARE(program.editor().form.ImagePath, other.image());
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
    }

private:
    static app::Application& application() { return *dynamic_cast<app::Application*>(qApp); }
    static inline QString told_;
    static constexpr int unanswered = 99;
    std::unique_ptr<QTimer> guard_;

    /// Looks, from now on, until the event loop comes to where the step can be made.
    static void when(QObject& holder, const std::function<bool()>& ready, const std::function<void()>& step) {
        auto* const look = new QTimer(&holder);
        connect(look, &QTimer::timeout, look, [look, ready, step] {
            if (!ready()) return;
            look->stop();
            look->deleteLater();
            step();
        });
        constexpr int interval = 5;  // Milliseconds.
        look->start(interval);
    }

    static void when_started(app::Program& program, const std::function<void()>& step) {
        app::KalcoWindow& window = program.window();
        when(
            window, [&window] { return window.isVisible() && QApplication::activeModalWidget() == nullptr; }, step);
    }

    static void on_box(const std::function<void(QMessageBox&)>& step) {
        const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
        when(
            *qApp, [box] { return box() != nullptr; }, [box, step] { step(*box()); });
    }

    static void choose_next(const test::DemoHome& home) {
        const QString path = QString::fromStdString(home.image());
        QTimer::singleShot(0, [path] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->setDirectory(QFileInfo(path).path());
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }

    static void cancel_next_dialog() {
        QTimer::singleShot(0, [] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->reject();
        });
    }

    /// The text of the box; what stands below it goes to told_.
    static QString press_enter(QMessageBox& box) {
        const QString text = box.text();
        told_ = box.informativeText();
        QTest::keyClick(&box, Qt::Key_Return);
        return text;
    }
};

KALCO_WINDOW_TEST(TestProgram, app::Application)

#include "test_program.moc"
