#pragma once

#include <QMainWindow>
#include <memory>

#include "app/binder/binder.h"

class QLabel;

namespace kalco::app {

class UnsavedMarks;

/// The window: the six tabs under a row with the image's button, and a line that tells what is pending.
class KalcoWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit KalcoWindow(frmKalco& form);
    ~KalcoWindow() override;

    Binder& binder() { return *binder_; }

    /// Runs start-up, with its file dialog; shows the window unless that ended the run.
    void start();

Q_SIGNALS:
    /// A file was dropped: the next dialog of the image is to take it.
    void image_dropped(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void build();
    void connect_pitch();
    void connect_board();
    void connect_lists();
    void refresh();
    void refresh_header();
    void refresh_players_tab();
    void refresh_transfers_tab();

    frmKalco& form_;
    QLabel* path_ = nullptr;
    QLabel* pending_ = nullptr;
    std::unique_ptr<Binder> binder_;
    std::unique_ptr<UnsavedMarks> unsaved_;
};

}  // namespace kalco::app
