#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "app/binder/binder.h"

class QTabWidget;

namespace kalco::app {

class DoneWatch;
class Drafts;
class ImageBar;
class Menus;
class Notice;
class SavesStack;
class StatusLine;
class Tab;
class Tools;
class WindowDesk;

/// The window: the six tabs below the image's row, a notice of what is pending, and the line that tells what was done.
class KalcoWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit KalcoWindow(frmKalco& form);
    ~KalcoWindow() override;

    Binder& binder() { return *binder_; }

    /// Runs start-up, with its file dialog; shows the window unless that ended the run.
    void start();
    /// While a file dialog asks, an import is not pending yet, or is being replaced.
    void hide_pending();

Q_SIGNALS:
    /// The next dialog of the image is to take this file.
    void image_wanted(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void build();
    void build_tools();
    void add_tabs();
    void connect_keys();
    void save_shown_tab();
    void refresh();
    void tell_what_happened();
    void show_whether_open();

    frmKalco& form_;
    ImageBar* image_bar_ = nullptr;
    QTabWidget* pages_ = nullptr;
    Notice* pending_ = nullptr;
    StatusLine* status_ = nullptr;
    std::unique_ptr<Binder> binder_;
    std::unique_ptr<Drafts> drafts_;
    std::unique_ptr<DoneWatch> done_;
    std::vector<std::unique_ptr<Tab>> tabs_;  ///< In the order of the pages.
    std::unique_ptr<WindowDesk> desk_;
    std::unique_ptr<Tools> tools_;
    std::unique_ptr<SavesStack> saves_;
    std::unique_ptr<Menus> menus_;
    bool shown_open_ = true;
};

}  // namespace kalco::app
