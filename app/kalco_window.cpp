#include "app/kalco_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/done.h"
#include "app/drafts/drafts.h"
#include "app/image_bar.h"
#include "app/menus.h"
#include "app/pending.h"
#include "app/readable.h"
#include "app/saves_stack.h"
#include "app/status_line.h"
#include "app/tabs/formations_tab.h"
#include "app/tabs/kickers_tab.h"
#include "app/tabs/league_tab.h"
#include "app/tabs/numbers_tab.h"
#include "app/tabs/players_tab.h"
#include "app/tabs/transfers_tab.h"
#include "app/tools/message.h"
#include "app/tools/sectors/sectors_button.h"
#include "app/tools/tools.h"
#include "app/widgets/notice.h"
#include "app/window_desk.h"
#include "editor/window/user.h"
#include "ui_tab0.h"
#include "ui_tab1.h"
#include "ui_tab2.h"
#include "ui_tab3.h"
#include "ui_tab4.h"
#include "ui_tab5.h"

namespace kalco::app {
namespace {

/// A page scrolls where the screen is smaller than it.
template <typename Form>
void add_page(QTabWidget& tabs) {
    auto* const page = new QWidget;
    Form form;
    form.setupUi(page);
    auto* const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(page);
    page->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    tabs.addTab(area, QString());
}

/// The file of a drop that is an image by its name; empty for anything else.
QString dropped_image(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls[0].isLocalFile()) return {};
    const QString path = urls[0].toLocalFile();
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == u"bin" || suffix == u"img" ? path : QString();
}

/// What the window opens with, on whatever screen.
QSize first_size(const QScreen& screen) {
    constexpr QSize wished(1120, 780);
    constexpr QSize frame(16, 48);  // What a window manager may draw around it.
    return wished.boundedTo(screen.availableSize() - frame);
}

}  // namespace

KalcoWindow::KalcoWindow(frmKalco& form) : form_(form) {
    build();
    binder_ = std::make_unique<Binder>(form_, *this);
    drafts_ = std::make_unique<Drafts>(form_);
    done_ = std::make_unique<DoneWatch>(form_, drafts_->listeners());
    add_tabs();
    connect_keys();
    build_tools();
    connect(binder_.get(), &Binder::synced, this, &KalcoWindow::refresh);
    connect(image_bar_, &ImageBar::reopen_wanted, this, &KalcoWindow::image_wanted);
    refresh();
}

KalcoWindow::~KalcoWindow() {
    // A child that goes with the focus would still be heard.
    qApp->disconnect(this);
}

void KalcoWindow::build() {
    auto* const middle = new QWidget;
    auto* const column = new QVBoxLayout(middle);
    image_bar_ = new ImageBar;
    column->addWidget(image_bar_);

    pages_ = new QTabWidget;
    pages_->setObjectName(QStringLiteral("SSTab1"));
    add_page<Ui::tab0>(*pages_);
    add_page<Ui::tab1>(*pages_);
    add_page<Ui::tab2>(*pages_);
    add_page<Ui::tab3>(*pages_);
    add_page<Ui::tab4>(*pages_);
    add_page<Ui::tab5>(*pages_);
    column->addWidget(pages_, 1);

    pending_ = new Notice;
    pending_->setObjectName(QStringLiteral("viewPending"));
    column->addWidget(pending_);

    setCentralWidget(middle);
    status_ = new StatusLine;
    setStatusBar(status_);
    setAcceptDrops(true);
    resize(first_size(*screen()));
}

void KalcoWindow::build_tools() {
    desk_ = std::make_unique<WindowDesk>(*binder_, drafts_->listeners(), *status_);
    tools_ = std::make_unique<Tools>(*desk_, *this);
    saves_ = std::make_unique<SavesStack>(*binder_);
    saves_->on_failure = [this](const QString& text) { tell_failure(this, text); };
    menus_ = std::make_unique<Menus>(*this, *binder_, *saves_, *tools_);
    auto* const sectors = new SectorsButton(*desk_);
    connect(sectors, &QPushButton::clicked, this, [this] { tools_->sectors(); });
    status_->addPermanentWidget(sectors);
}

void KalcoWindow::add_tabs() {
    const auto page = [this](int tab) -> QWidget& { return *pages_->widget(tab); };
    tabs_.push_back(std::make_unique<PlayersTab>(*binder_, page(tab::players), *drafts_));
    tabs_.push_back(std::make_unique<LeagueTab>(*binder_, page(tab::league)));
    tabs_.push_back(std::make_unique<KickersTab>(*binder_, page(tab::kickers), *drafts_));
    tabs_.push_back(std::make_unique<TransfersTab>(*binder_, page(tab::transfers), *drafts_));
    tabs_.push_back(std::make_unique<FormationsTab>(*binder_, page(tab::formations), *drafts_));
    tabs_.push_back(std::make_unique<NumbersTab>(*binder_, page(tab::numbers), *drafts_));
}

void KalcoWindow::connect_keys() {
    const auto on_key = [this](const QString& key, auto step) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, step);
    };
    on_key(QStringLiteral("Ctrl+S"), [this] { save_shown_tab(); });
    for (int tab = tab::players; tab <= tab::numbers; ++tab) {
        on_key(QStringLiteral("Ctrl+%1").arg(tab + 1),
               [this, tab] { binder_->act([this, tab] { user::select_tab(form_, tab); }); });
    }
    // A field that gets the keyboard outside the shown part of its page is scrolled to.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        auto* const area = qobject_cast<QScrollArea*>(pages_->currentWidget());
        if (now != nullptr && area != nullptr && area->isAncestorOf(now)) area->ensureWidgetVisible(now, 20, 20);
    });
}

void KalcoWindow::save_shown_tab() {
    const auto buttons = tabs_.at(static_cast<std::size_t>(form_.SSTab1.tab()))->saves();
    bool pressed = false;
    binder_->act([&] {
        for (CommandButton* button : buttons) pressed |= user::click(form_, *button) == user::Outcome::done;
    });
    if (!pressed && !binder_->over()) status_->tell(QStringLiteral("Qui non c'è niente da salvare"));
}

void KalcoWindow::start() {
    binder_->act([this] { user::start(form_); });
    if (!binder_->over()) show();
}

void KalcoWindow::hide_pending() {
    pending_->show_notice({});
}

void KalcoWindow::refresh() {
    if (binder_->over()) return;
    image_bar_->show_image(form_);
    const QString& image = image_bar_->title();
    setWindowTitle(image.isEmpty() ? QStringLiteral("Kalco") : image + QStringLiteral(" – Kalco"));
    show_whether_open();
    if (!binder_->acting()) {
        tell_what_happened();
        pending_->show_notice(pending_text(form_));
    }
    for (const auto& tab : tabs_) tab->refresh();
    if (menus_) menus_->refresh();
}

void KalcoWindow::tell_what_happened() {
    QStringList told = done_->take();
    std::vector<std::function<void()>> steps;
    for (const Draft& draft : drafts_->look()) {
        told << draft.told();
        if (draft.make_again) steps.push_back(draft.make_again);
    }
    if (told.isEmpty()) return;
    const QString text = told.join(QStringLiteral(" · "));
    if (steps.empty()) return status_->tell(text);
    status_->tell(text, [this, steps] {
        binder_->act([&steps] {
            for (const auto& step : steps) step();
        });
    });
}

void KalcoWindow::show_whether_open() {
    const bool open = form_.image.is_open();
    const bool before_start = !open && form_.ImagePath.empty() && !isVisible();
    if (open == shown_open_ || before_start) return;
    shown_open_ = open;
    QPalette colours = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto ink : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::Base}) {
            colours.setColor(group, ink, colours.color(QPalette::Disabled, ink));
        }
    }
    for (int tab = tab::players; tab <= tab::numbers; ++tab) {
        // The transfers work on files alone.
        if (tab != tab::transfers) pages_->widget(tab)->setPalette(open ? QPalette() : colours);
    }
}

void KalcoWindow::closeEvent(QCloseEvent* event) {
    binder_->act([this] { user::close(form_); });
    event->setAccepted(binder_->over());
}

void KalcoWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (dropped_image(*event->mimeData()).isEmpty()) {
        event->ignore();
    } else {
        event->acceptProposedAction();
    }
}

void KalcoWindow::dropEvent(QDropEvent* event) {
    const QString path = dropped_image(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT image_wanted(path);
}

}  // namespace kalco::app
