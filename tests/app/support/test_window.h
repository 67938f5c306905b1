#pragma once

#include <memory>
#include <string>

#include "app/kalco_window.h"
#include "editor.h"
#include "support/fake_platform.h"

namespace kalco::test {

/// What every test's program does first: the look of the real program.
void prepare_application(bool dark = false);

/// An editor on an image file with its real window, shown.
class TestWindow {
public:
    /// Starts on the image at the path.
    explicit TestWindow(const std::string& image, const std::string& home = ".");

    FakePlatform platform;
    Editor editor{platform};
    app::KalcoWindow window{editor.form};

    frmKalco& form() { return editor.form; }

    template <typename Widget = QWidget>
    Widget& widget(const Control& control) {
        return *qobject_cast<Widget*>(window.binder().widget_of(control));
    }
};

}  // namespace kalco::test
