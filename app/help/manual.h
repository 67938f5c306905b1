#pragma once

#include <QDialog>

class QTextBrowser;

namespace kalco::app {

/// The manual with its pictures, in a window of its own beside the editor's.
class Manual : public QDialog {
    Q_OBJECT

public:
    explicit Manual(QWidget* parent = nullptr);

    QTextBrowser& pages() const { return *pages_; }

private:
    void give_headings_anchors();
    void fit_pictures();
    /// Its width in the page, at most `most`; never enlarged.
    double take_smooth_picture(const QString& name, double most);

    QTextBrowser* pages_;
};

/// The anchor that a link to a heading names: small letters, "-" for blanks, no other signs.
QString heading_anchor(const QString& heading);

/// What Kalco is, its version, what it stands on.
void show_about(QWidget* parent);

}  // namespace kalco::app
