#pragma once

#include <QTemporaryDir>
#include <memory>
#include <string>

#include "app/kalco_window.h"
#include "editor/editor.h"
#include "support/fake_platform.h"

namespace kalco::test {

/// What every test's program does first: the look of the real program.
void prepare_application(bool dark = false);

/// A program's directory with a demo image of its own, removed at the end.
class DemoHome {
public:
    DemoHome();

    std::string path() const { return folder_.path().toStdString(); }
    std::string image() const { return folder_.filePath(QStringLiteral("demo.bin")).toStdString(); }
    std::string image_bytes() const;

private:
    QTemporaryDir folder_;
};

/// An editor on an image file with its real window, shown and active.
class TestWindow {
public:
    explicit TestWindow(const std::string& image, const std::string& home = ".", StorageOpener opener = open_file);
    explicit TestWindow(const DemoHome& home) : TestWindow(home.image(), home.path()) {}
    ~TestWindow();

    FakePlatform platform;
    Editor editor;
    app::KalcoWindow window{editor.form};
    /// What a failed action threw.
    std::exception_ptr failure;

    frmKalco& form() { return editor.form; }
    app::Binder& binder() { return window.binder(); }

    template <typename Widget = QWidget>
    Widget& widget(const Control& control) {
        return dynamic_cast<Widget&>(*binder().widget_of(control));
    }

    /// Real input.
    void select_tab(int tab);
    void click(const Control& control);
    void type(const Control& box, const QString& text);
    void pick_row(const Control& list, int row);
    void double_click_row(const Control& list, int row);
    void key(QWidget& widget, Qt::Key key);
    /// A key to the widget that has the focus.
    void key(Qt::Key key);
};

}  // namespace kalco::test
