#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include "app/program.h"
#include "app/support/test_window.h"
#include "disc/runtime_error.h"
#include "editor/window/user.h"

using namespace kalco;

/// A whole run of the program with its real dialogs: what it shows and the status that it ends with.
class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { app::prepare_application(); }

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
        QTimer::singleShot(after_start, &program.window(), [&program] {
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
        QTimer::singleShot(after_start, this, [&text] { text = press_enter_in_box(); });
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
        QTimer::singleShot(after_start, &program.window(), [&] {
            QTimer::singleShot(0, &program.window(), [&text] { text = press_enter_in_box(); });
            QTest::mouseClick(program.window().binder().widget_of(form.cmdNew), Qt::LeftButton);
        });
        QCOMPARE(program.run(), 1);
        QCOMPARE(text, QStringLiteral("Errore di run-time '13':\nTipo non corrispondente"));
        QVERIFY(!form.image.is_open());
        QVERIFY(!program.window().isVisible());
    }

    void the_lost_path_after_a_cancelled_change_of_image_ends_the_next_save() {
        const test::DemoHome home;
        app::Program program;
        frmKalco& form = program.editor().form;
        choose_next(home);
        QStringList texts;
        QTimer::singleShot(after_start, &program.window(), [&] {
            app::Binder& binder = program.window().binder();
            cancel_next_dialog();
            QTest::mouseClick(binder.widget_of(form.cmdOpen), Qt::LeftButton);
            binder.act([&form] { user::pick(form, form.cboSeqSQ, 3); });
            QTimer::singleShot(0, &program.window(), [&] {
                QTimer::singleShot(0, &program.window(), [&] { texts << press_enter_in_box(); });
                texts << press_enter_in_box();
            });
            QTest::mouseClick(binder.widget_of(form.cmdSaveCar), Qt::LeftButton);
        });
        QCOMPARE(program.run(), 1);
        QCOMPARE(texts.size(), 2);
        QVERIFY(texts.contains(QStringLiteral("Salvataggio effettuato con successo")));
        QVERIFY(texts.contains(QStringLiteral("Errore di run-time '75':\nErrore di accesso al percorso/file")));
    }

    void a_dropped_image_replaces_the_open_one_without_a_dialog() {
        const test::DemoHome home;
        const test::DemoHome other;
        app::Program program;
        choose_next(home);
        QTimer::singleShot(after_start, &program.window(), [&] {
            Q_EMIT program.window().image_dropped(QString::fromStdString(other.image()));
            QCOMPARE(program.editor().form.ImagePath, other.image());
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            program.window().close();
        });
        QCOMPARE(program.run(), 0);
    }

private:
    /// Milliseconds, more than the first dialog needs to be answered.
    static constexpr int after_start = 300;

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

    /// The text of the box that is shown.
    static QString press_enter_in_box() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return QStringLiteral("no box");
        const QString text = box->text();
        QTest::keyClick(box, Qt::Key_Return);
        return text;
    }
};

QTEST_MAIN(TestProgram)
#include "test_program.moc"
