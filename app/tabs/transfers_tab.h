#pragma once

#include "app/drafts/drafts.h"
#include "app/tabs/tab.h"

class QLabel;

namespace kalco::app {

class RecordView;

/// The records of the two selected players, and the marks of what is not saved.
class TransfersTab : public Tab {
public:
    TransfersTab(Binder& binder, QWidget& page, const Drafts& drafts);

    void refresh() override;
    /// Those whose files are changed.
    std::vector<CommandButton*> saves() override;

private:
    const Drafts& drafts_;
    RecordView& sold_;
    RecordView& bought_;
    QLabel& unsaved_first_;
    QLabel& unsaved_second_;
};

}  // namespace kalco::app
