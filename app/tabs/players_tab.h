#pragma once

#include "app/drafts/drafts.h"
#include "app/tabs/field_marks.h"
#include "app/tabs/tab.h"
#include "app/widgets/length_counter.h"
#include "app/widgets/rows_view.h"

class QLabel;
class QPushButton;

namespace kalco::app {

class PortraitView;

/// The portrait, the marks of what is not saved, roles and shirt numbers beside the names, the lengths of the names.
class PlayersTab : public Tab {
public:
    PlayersTab(Binder& binder, QWidget& page, const Drafts& drafts);

    void refresh() override;
    std::vector<CommandButton*> saves() override { return {&form_.cmdSaveCar}; }

private:
    void show_portrait();
    void show_unsaved();
    void show_lengths();
    void show_roster();
    void read_again();
    RowNote note(int row) const;

    const Drafts& drafts_;
    PortraitView& portrait_;
    QLabel& unsaved_names_;
    QLabel& unsaved_player_;
    QPushButton& restore_;
    RowsView& roster_;
    FieldMarks names_marks_;
    FieldMarks player_marks_;
    LengthCounter short_name_;
    LengthCounter full_name_;
    LengthCounter table_name_;
    LengthCounter player_name_;
    std::vector<std::string> numbers_;  ///< The shirt numbers of the chosen team.
};

}  // namespace kalco::app
