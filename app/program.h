#pragma once

#include <exception>
#include <optional>

#include "app/kalco_window.h"
#include "app/qt_platform.h"
#include "editor/editor.h"

namespace kalco::app {

/// The name, the look and the manners of the application; needs a QApplication.
void prepare_application();

/// One run of the editor: its dialogs, its window, and the status that it ends with.
class Program {
public:
    static constexpr int exit_done = 0;
    static constexpr int exit_failed = 1;

    explicit Program(StorageOpener opener = open_file);

    /// The first dialog takes this image without being shown.
    void open_at_start(const QString& image) { platform_.choose_next(image); }
    /// Starts, and returns the exit status when the window is closed. A cancelled start shows no window.
    int run();

    /// Ends the run as after a run-time error: tells the error, closes the image. The first failure counts.
    void fail(const std::exception_ptr& failure);

    Editor& editor() { return editor_; }
    KalcoWindow& window() { return window_; }

private:
    void open_image(const QString& path);
    void end(int status);

    QtPlatform platform_;
    Editor editor_;
    KalcoWindow window_;
    std::optional<int> status_;
    bool waiting_ = false;  ///< In the event loop of the window.
};

}  // namespace kalco::app
