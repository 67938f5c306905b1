#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <optional>

#include "app/tools/desk.h"

namespace Ui {
class CompareDialog;
}

namespace kalco::app {

/// What the open image and another one differ in, by meaning; the other one is only read. Chosen fields can be taken
/// over from it as one save, and the list be written into a file.
class CompareDialog : public QDialog {
    Q_OBJECT

public:
    /// The other image is open already.
    CompareDialog(Desk& desk, std::unique_ptr<Image> other, QString path, QWidget* parent = nullptr);
    ~CompareDialog() override;

    /// Counts the places outside all fields, in a box with the progress.
    void count_others();

private:
    void compare();
    void show_others();
    void take();
    void export_list();

    std::unique_ptr<Ui::CompareDialog> ui_;
    Desk& desk_;
    std::unique_ptr<Image> other_;
    QString path_;
    std::optional<std::int64_t> other_places_;
    bool taking_ = false;
};

/// Asks for the other image and opens the dialog on it over the window; one that is open goes away.
void compare_images(Desk& desk, QWidget& window);

}  // namespace kalco::app
