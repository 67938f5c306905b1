#include <QApplication>
#include <QIcon>

#include "app/kalco_window.h"
#include "app/qt_platform.h"
#include "app/style.h"
#include "editor.h"
#include "runtime_error.h"
#include "window/user.h"

namespace {

using namespace kalco;

constexpr int exit_done = 0;
constexpr int exit_failed = 1;

/// The box of an error that no handler caught. Whatever was written stays, and the image is let go.
void tell_failure(const std::exception_ptr& failure, Platform& platform, frmKalco& form) {
    try {
        std::rethrow_exception(failure);
    } catch (const RuntimeError& error) {
        const std::string title = "Errore di run-time '" + std::to_string(error.number()) + "':\n";
        platform.message(title + std::string(error.text()), Icon::stop, Buttons::ok);
    }
    try {
        form.image.close();
    } catch (const RuntimeError&) {
        // The first error has been told.
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kalco"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kalco"));
    QApplication::setApplicationVersion(QStringLiteral(KALCO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.kalco.Kalco"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icon/kalco.svg")));
    QApplication::setStyle(new app::Style);
    // Closing the first dialog must not end the program; the window's end does.
    QApplication::setQuitOnLastWindowClosed(false);

    app::QtPlatform platform;
    Editor editor(platform);
    app::KalcoWindow window(editor.form);
    platform.set_window(&window);
    platform.before_box = [&window] { window.binder().sync(); };
    QObject::connect(&window, &app::KalcoWindow::image_dropped, [&](const QString& path) {
        platform.choose_next(path);
        window.binder().act([&editor] { user::click(editor.form, editor.form.cmdOpen); });
    });

    std::optional<int> status;
    const auto end = [&](int value) {
        status = value;
        window.hide();
        QCoreApplication::exit(value);
    };
    window.binder().on_failure = [&](const std::exception_ptr& failure) {
        tell_failure(failure, platform, editor.form);
        end(exit_failed);
    };
    window.binder().on_ended = [&] { end(editor.form.ended == Ending::denied ? exit_failed : exit_done); };

    window.start();
    return status ? *status : QApplication::exec();
}
