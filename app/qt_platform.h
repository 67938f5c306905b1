#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <functional>
#include <optional>

#include "editor/window/platform.h"

class QWidget;

namespace kalco::app {

/// Message boxes, the file dialog and the program's directory by way of Qt.
class QtPlatform : public Platform {
public:
    Answer message(const std::string& text, Icon icon, Buttons buttons) override;
    std::string open_dialog(const std::string& filter, const std::string& initial_directory) override;
    std::string program_directory() const override;
    void miss_directory(const std::string& path) override;

    /// What boxes stand before; without one they stand alone.
    void set_window(QWidget* window) { window_ = window; }
    /// Tells that the program ends, and under it what was being done.
    void tell_end(const std::string& error, const QString& doing);

    /// Runs before a box is shown, so that the window behind it is up to date.
    std::function<void()> before_box;
    /// Runs before a file dialog is shown.
    std::function<void()> before_dialog;
    /// The next dialog takes this path without being shown: a file was dropped on the window.
    void choose_next(const QString& path) { next_choice_ = path; }

private:
    QWidget* parent() const;
    QList<QUrl> side_bar(const QList<QUrl>& usual) const;

    QPointer<QWidget> window_;
    std::optional<QString> next_choice_;
};

/// The name filters of a file dialog out of pairs of a label and a pattern, divided by "|".
QStringList name_filters(const QString& filter);

}  // namespace kalco::app
