#pragma once

#include "app/drafts/drafts.h"
#include "app/tabs/tab.h"

class QLabel;

namespace kalco::app {

/// The board under the mouse, the two lists that scroll together, and what the save button would write.
class NumbersTab : public Tab {
public:
    NumbersTab(Binder& binder, QWidget& page, const Drafts& drafts);

    void refresh() override;
    std::vector<CommandButton*> saves() override { return {&form_.cmdSaveNum}; }

private:
    void connect_lists();
    void press(int number);
    void show_board();
    std::vector<QString> wearers_by_number() const;
    void follow_packing();
    bool prepared_for_shown() const;
    QString warning() const;

    const Drafts& drafts_;
    QLabel& unsaved_;
    QLabel& would_write_;
    std::string prepared_;   ///< The packed numbers at the last look.
    QString prepared_team_;  ///< The team that they were packed for.
};

}  // namespace kalco::app
