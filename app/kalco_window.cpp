#include "app/kalco_window.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <cstdlib>

#include "app/player_summary.h"
#include "app/text.h"
#include "app/unsaved_marks.h"
#include "app/widgets/number_board.h"
#include "app/widgets/pitch_view.h"
#include "app/widgets/portrait_view.h"
#include "app/widgets/record_view.h"
#include "app/widgets/rows_view.h"
#include "disc/formation_facts.h"
#include "editor/window/user.h"
#include "ui_tab0.h"
#include "ui_tab1.h"
#include "ui_tab2.h"
#include "ui_tab3.h"
#include "ui_tab4.h"
#include "ui_tab5.h"

namespace kalco::app {
namespace {

template <typename Form>
void add_page(QTabWidget& tabs) {
    auto* const page = new QWidget;
    Form form;
    form.setupUi(page);
    tabs.addTab(page, QString());
}

/// Steps of the arrow buttons that bring a marker nearest to a wished place; each one is a press of a button.
void drag_marker(frmKalco& form, const PitchMarker& marker, int left, int top) {
    const auto step_towards = [&form](CommandButton& back, CommandButton& forth, int distance, int step) {
        if (std::abs(distance) * 2 <= step) return false;
        return user::click(form, distance < 0 ? back : forth) == user::Outcome::done;
    };
    for (int before = marker.left(); step_towards(form.cmdLeft, form.cmdRight, left - marker.left(), arrow_step_x);
         before = marker.left()) {
        if (marker.left() == before) break;
    }
    for (int before = marker.top(); step_towards(form.cmdUp, form.cmdDown, top - marker.top(), arrow_step_y);
         before = marker.top()) {
        if (marker.top() == before) break;
    }
}

QString local_file(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls[0].isLocalFile() ? urls[0].toLocalFile() : QString();
}

}  // namespace

KalcoWindow::KalcoWindow(frmKalco& form) : form_(form) {
    build();
    binder_ = std::make_unique<Binder>(form_, *this);
    unsaved_ = std::make_unique<UnsavedMarks>(form_, *this);
    connect_pitch();
    connect_board();
    connect_lists();
    connect(binder_.get(), &Binder::synced, this, &KalcoWindow::refresh);
    refresh();
}

KalcoWindow::~KalcoWindow() = default;

void KalcoWindow::build() {
    auto* const middle = new QWidget;
    auto* const column = new QVBoxLayout(middle);
    auto* const header = new QHBoxLayout;
    auto* const open = new QPushButton;
    open->setObjectName(QStringLiteral("cmdOpen"));
    open->setToolTip(QStringLiteral("Passa a un'altra immagine; si può anche trascinarla sulla finestra"));
    path_ = new QLabel;
    path_->setObjectName(QStringLiteral("viewPath"));
    path_->setTextFormat(Qt::PlainText);
    path_->setForegroundRole(QPalette::PlaceholderText);
    path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    header->addWidget(open);
    header->addWidget(path_, 1);
    column->addLayout(header);

    auto* const tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("SSTab1"));
    add_page<Ui::tab0>(*tabs);
    add_page<Ui::tab1>(*tabs);
    add_page<Ui::tab2>(*tabs);
    add_page<Ui::tab3>(*tabs);
    add_page<Ui::tab4>(*tabs);
    add_page<Ui::tab5>(*tabs);
    column->addWidget(tabs, 1);

    pending_ = new QLabel;
    pending_->setObjectName(QStringLiteral("viewPending"));
    pending_->setTextFormat(Qt::PlainText);
    pending_->setMinimumHeight(pending_->fontMetrics().height());
    column->addWidget(pending_);

    setCentralWidget(middle);
    setAcceptDrops(true);
    resize(1100, 720);
}

void KalcoWindow::connect_pitch() {
    auto* const pitch = findChild<PitchView*>(QStringLiteral("viewPitch"));
    for (int k = first_marker; k <= last_marker; ++k) {
        PitchMarker& marker = form_.lblGioc(k);
        auto* const view = qobject_cast<MarkerView*>(binder_->widget_of(marker));
        connect(view, &MarkerView::pressed, this, [this, &marker, pitch] {
            pitch->setFocus(Qt::MouseFocusReason);
            binder_->act([this, &marker] { user::click(form_, marker); }, Binder::Focus::stay);
        });
        connect(view, &MarkerView::dragged, this, [this, &marker](int left, int top) {
            binder_->act([&] { drag_marker(form_, marker, left, top); }, Binder::Focus::stay);
        });
    }
    connect(pitch, &PitchView::stepped, this, [this](int right, int down) {
        CommandButton& across = right < 0 ? form_.cmdLeft : form_.cmdRight;
        CommandButton& along = down < 0 ? form_.cmdUp : form_.cmdDown;
        binder_->act([&] { user::click(form_, right != 0 ? across : along); }, Binder::Focus::stay);
    });
    connect(pitch, &PitchView::turned, this, [this](int step) {
        constexpr int markers = last_marker - first_marker + 1;
        int next = step > 0 ? first_marker : last_marker;
        for (int k = first_marker; k <= last_marker; ++k) {
            if (form_.lblGioc(k).selected()) next = first_marker + (k - first_marker + step + markers) % markers;
        }
        binder_->act([&] { user::click(form_, form_.lblGioc(next)); }, Binder::Focus::stay);
    });
}

void KalcoWindow::connect_board() {
    for (int number = form_.lblNum.first(); number <= form_.lblNum.last(); ++number) {
        auto* const cell = qobject_cast<NumberCellView*>(binder_->widget_of(form_.lblNum(number)));
        connect(cell, &NumberCellView::pressed, this, [this](int pressed) {
            if (form_.lblNum(pressed).in_use() || form_.ListName.row() < 0) return;
            const std::string digits = (pressed < 10 ? "0" : "") + std::to_string(pressed);
            binder_->act([&] { user::type(form_, form_.txtNumMod, digits); });
        });
    }
}

void KalcoWindow::connect_lists() {
    const auto list = [this](const ListBox& control) { return qobject_cast<RowsView*>(binder_->widget_of(control)); };
    QScrollBar* const names = list(form_.ListName)->verticalScrollBar();
    QScrollBar* const numbers = list(form_.ListNum)->verticalScrollBar();
    connect(names, &QScrollBar::valueChanged, numbers, &QScrollBar::setValue);
    connect(numbers, &QScrollBar::valueChanged, names, &QScrollBar::setValue);
    list(form_.listNC)->note = pool_notes(form_);
}

void KalcoWindow::start() {
    binder_->act([this] { user::start(form_); });
    if (!binder_->over()) show();
}

void KalcoWindow::refresh() {
    refresh_header();
    refresh_players_tab();
    refresh_transfers_tab();
    findChild<QProgressBar*>(QStringLiteral("viewPicks"))->setValue(form_.listAppNameNC.count());
    const int marked = qt_text(form_.txtNumMod.text()).toInt();
    for (int number = form_.lblNum.first(); number <= form_.lblNum.last(); ++number) {
        qobject_cast<NumberCellView*>(binder_->widget_of(form_.lblNum(number)))->show_marked(number == marked);
    }
    for (const ListBox* list : {&form_.listNC}) binder_->widget_of(*list)->update();
    unsaved_->refresh();
}

void KalcoWindow::refresh_header() {
    const QString path = QString::fromStdString(form_.ImagePath);
    setWindowTitle(path.isEmpty() ? QStringLiteral("Kalco") : QFileInfo(path).fileName() + QStringLiteral(" – Kalco"));
    path_->setText(path);
    path_->setToolTip(path);
    const bool pending = form_.ImportPending != 0 || form_.ImportPendingML != 0;
    pending_->setText(pending ? QStringLiteral("● Importazione in sospeso: niente arriva all'immagine finché non si "
                                               "preme «Salva», che scrive tutta la squadra.")
                              : QString());
}

void KalcoWindow::refresh_players_tab() {
    Looks looks;
    looks.skin = form_.cboPelle.row();
    looks.hair_style = form_.cboCapelli.text();
    looks.hair_colour = form_.cboColCap.row();
    looks.beard_style = form_.cboStlBar.text();
    looks.beard_colour = form_.cboColBar.row();
    findChild<PortraitView*>(QStringLiteral("viewPortrait"))->show_looks(looks);
}

void KalcoWindow::refresh_transfers_tab() {
    const auto show = [this](const char* view, const ListBox& names, const ListBox& lines) {
        findChild<RecordView*>(QString::fromLatin1(view))->show_player(summary_of(names, lines));
    };
    show("viewRecord1", form_.ListVende, form_.listTras1);
    show("viewRecord2", form_.ListCompra, form_.listTras2);
}

void KalcoWindow::closeEvent(QCloseEvent* event) {
    binder_->act([this] { user::close(form_); });
    event->setAccepted(binder_->over());
}

void KalcoWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!local_file(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void KalcoWindow::dropEvent(QDropEvent* event) {
    const QString path = local_file(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT image_dropped(path);
}

}  // namespace kalco::app
