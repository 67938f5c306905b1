#pragma once

#include <QWidget>

#include "editor/window/frmKalco.h"

namespace kalco::app {

class ElidedLabel;
class Notice;

/// The row above the tabs: the image's button and path, and below them what is wrong with the image.
class ImageBar : public QWidget {
    Q_OBJECT

public:
    explicit ImageBar(QWidget* parent = nullptr);

    void show_image(const frmKalco& form);
    /// What the title of the window begins with; empty without an image.
    const QString& title() const { return title_; }

Q_SIGNALS:
    /// The image whose path was lost is to be opened again.
    void reopen_wanted(const QString& path);

private:
    void show_open(const QString& path);
    void show_closed(const QString& path);
    void show_lost();

    ElidedLabel* path_;
    Notice* notice_;
    QString title_;
    QString open_path_;  ///< The last path under which the image was open.
};

/// Why an image can't be opened, in small letters.
QString why_closed(const QString& path);

}  // namespace kalco::app
