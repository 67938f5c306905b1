#pragma once

#include "app/drafts/drafts.h"
#include "app/tabs/tab.h"

class QLabel;

namespace kalco::app {

class RowsView;

/// Whose takers the table shows, and the mark of what is not saved.
class KickersTab : public Tab {
public:
    KickersTab(Binder& binder, QWidget& page, const Drafts& drafts);

    void refresh() override;
    std::vector<CommandButton*> saves() override { return {&form_.cmdCrea}; }

private:
    const Drafts& drafts_;
    QLabel& whose_;
    QLabel& unsaved_;
    RowsView& teams_;
};

}  // namespace kalco::app
