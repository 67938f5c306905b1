#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "app/tools/desk.h"
#include "app/tools/patch/patch_trial.h"

namespace Ui {
class PatchUsePage;
}

namespace kalco::app {

/// A patch file and what it would change in the open image, put on or taken off; then one save. What it shows follows
/// the image.
class PatchUsePage : public QWidget {
    Q_OBJECT

public:
    explicit PatchUsePage(Desk& desk, QWidget* parent = nullptr);
    ~PatchUsePage() override;

    /// Reads the patch of a file; why it can't be read is told in a box.
    void open_patch(const QString& path);

private:
    void choose();
    PatchWay way() const;
    void try_on();
    void show_trial(const PatchTrial& trial);
    void show_failure(const QString& why);
    void save();

    std::unique_ptr<Ui::PatchUsePage> ui_;
    Desk& desk_;
    QString path_;
    std::shared_ptr<const PpfPatch> patch_;
    int trials_ = 0;  ///< Only the last one that was begun counts.
    bool fits_ = true;
    bool saving_ = false;
};

}  // namespace kalco::app
