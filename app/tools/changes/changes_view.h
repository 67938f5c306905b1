#pragma once

#include <QWidget>

#include "app/tools/changes/changes_model.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace kalco::app {

/// A list of changes by team, with a filter; where rows can be ticked, with boxes and two buttons for all and none.
class ChangesView : public QWidget {
    Q_OBJECT

public:
    explicit ChangesView(QWidget* parent = nullptr);

    ChangesModel& model() { return model_; }
    /// Rows can be ticked; `ticked`: they are at first.
    void offer_boxes(bool ticked);
    void show_changes(std::vector<FieldChange> changes, const DiscBytes& disc);

private:
    void filter();
    void tell_count();

    ChangesModel model_;
    QLineEdit* filter_;
    QPushButton* all_;
    QPushButton* none_;
    QLabel* count_;
    QTreeView* rows_;
    bool boxes_ = false;
};

}  // namespace kalco::app
