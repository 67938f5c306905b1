#pragma once

#include <QWidget>
#include <memory>

#include "app/tools/desk.h"

namespace Ui {
class PatchMakePage;
}

namespace kalco::app {

/// Makes a patch from an original image to the open one.
class PatchMakePage : public QWidget {
    Q_OBJECT

public:
    explicit PatchMakePage(Desk& desk, QWidget* parent = nullptr);
    ~PatchMakePage() override;

private:
    void choose();
    void make();
    /// Compares and writes, whole or not at all; tells what came of it.
    void write(const QString& path);

    std::unique_ptr<Ui::PatchMakePage> ui_;
    Desk& desk_;
    std::unique_ptr<Image> original_;
    QString original_path_;
};

}  // namespace kalco::app
