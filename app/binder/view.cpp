#include "app/binder/view.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <stdexcept>

#include "app/text.h"
#include "app/widgets/number_board.h"
#include "app/widgets/pick_combo.h"
#include "app/widgets/picture_box.h"
#include "app/widgets/pitch_view.h"
#include "app/widgets/rows_view.h"
#include "app/widgets/strength_bar_view.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

QStringList qt_rows(const std::vector<std::string>& items) {
    QStringList rows;
    rows.reserve(static_cast<qsizetype>(items.size()));
    for (const std::string& item : items) rows << qt_text(item);
    return rows;
}

/// A view whose control and widget are of known kinds.
template <typename Model, typename Widget>
class ViewOf : public View {
public:
    ViewOf(Binder& binder, Control& control, QWidget& widget)
        : View(control, widget),
          binder_(binder),
          model_(static_cast<Model&>(control)),
          widget_(*qobject_cast<Widget*>(&widget)) {}

protected:
    Binder& binder_;
    Model& model_;
    Widget& widget_;
};

class LabelView : public ViewOf<Label, QLabel> {
public:
    LabelView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        widget_.setTextFormat(Qt::PlainText);
    }

protected:
    void show() override { widget_.setText(qt_text(model_.caption())); }
};

class TextBoxView : public ViewOf<TextBox, QLineEdit> {
public:
    TextBoxView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        QObject::connect(&widget_, &QLineEdit::textEdited, &binder, [this](const QString& text) { edited(text); });
    }

protected:
    void show() override {
        const QString text = qt_text(model_.text());
        if (text != widget_.text()) {
            // What stands behind the cursor is not touched by a refused key.
            const auto behind = widget_.text().size() - widget_.cursorPosition();
            widget_.setText(text);
            widget_.setCursorPosition(editing_ ? static_cast<int>(std::max(qsizetype{0}, text.size() - behind)) : 0);
        }
        if (model_.has_selection_request()) {
            const auto selection = model_.take_selection();
            widget_.setSelection(selection.start, selection.length);
        }
    }

private:
    void edited(const QString& text) {
        const std::string wanted = filtered_edit(model_, model_text(text));
        binder_.touch(model_);
        editing_ = true;
        binder_.act([this, &wanted] { user::edit(binder_.form(), model_, wanted); });
        editing_ = false;
    }

    bool editing_ = false;
};

class ComboBoxView : public ViewOf<ComboBox, PickCombo> {
public:
    ComboBoxView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        QObject::connect(&widget_, &QComboBox::activated, &binder, [this](int row) {
            binder_.touch(model_);
            binder_.act([this, row] { user::pick(binder_.form(), model_, row); });
        });
    }

protected:
    void show() override {
        if (items_ != model_.items()) {
            items_ = model_.items();
            widget_.set_rows(qt_rows(items_));
        }
        widget_.show_text(qt_text(model_.text()), model_.row());
    }

private:
    std::vector<std::string> items_;
};

class ListBoxView : public ViewOf<ListBox, RowsView> {
public:
    ListBoxView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        QObject::connect(&widget_, &RowsView::picked, &binder, [this](int row) {
            binder_.touch(model_);
            binder_.act([this, row] { user::pick(binder_.form(), model_, row); });
        });
        QObject::connect(&widget_, &RowsView::pressed_again, &binder, [this](int row) {
            frmKalco& form = binder_.form();
            // Without the focus the first press has been refused, and this one begins anew.
            const bool second = form.focused() == &model_ && model_.row() == row;
            binder_.touch(model_);
            binder_.act([&, row] { second ? user::press_again(form, model_) : user::pick(form, model_, row); });
        });
        QObject::connect(&widget_, &RowsView::confirmed, &binder, [this](int row) {
            binder_.touch(model_);
            binder_.act([this, row] { confirm(row); });
        });
    }

protected:
    void show() override {
        if (items_ != model_.items()) {
            items_ = model_.items();
            widget_.set_rows(qt_rows(items_));
        }
        widget_.set_row(model_.row());
    }

private:
    void confirm(int row) {
        frmKalco& form = binder_.form();
        // The keyboard may have come here without an action: the list that had it was switched off.
        const bool here = form.focused() == &model_ && model_.row() == row;
        if (here || user::pick(form, model_, row) == user::Outcome::done) user::press_again(form, model_);
    }

    std::vector<std::string> items_;
};

class ButtonView : public ViewOf<CommandButton, QAbstractButton> {
public:
    ButtonView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        widget_.setFocusPolicy(Qt::TabFocus);
        widget_.setText(qt_text(model_.caption()));
        QObject::connect(&widget_, &QAbstractButton::clicked, &binder,
                         [this] { binder_.act([this] { user::click(binder_.form(), model_); }); });
    }
};

class OptionView : public ViewOf<OptionButton, QAbstractButton> {
public:
    OptionView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        widget_.setAutoExclusive(false);  // The model excludes.
        widget_.setText(qt_text(model_.caption()));
        QObject::connect(&widget_, &QAbstractButton::clicked, &binder, [this] {
            binder_.touch(model_);
            binder_.act([this] { user::click(binder_.form(), model_); });
        });
    }

protected:
    void show() override { widget_.setChecked(model_.value()); }
};

class FrameView : public ViewOf<Frame, QWidget> {
public:
    FrameView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        const QString caption = qt_text(model_.caption());
        if (auto* box = qobject_cast<QGroupBox*>(&widget_)) {
            box->setTitle(caption);
        } else if (auto* label = widget_.findChild<QLabel*>(QStringLiteral("caption_") + widget_.objectName())) {
            label->setText(caption);
        }
    }
};

class ImageBoxView : public ViewOf<ImageBox, PictureBox> {
public:
    using ViewOf::ViewOf;

protected:
    void show() override { widget_.show_picture(qt_text(model_.picture())); }
};

class BarView : public ViewOf<StrengthBar, StrengthBarView> {
public:
    using ViewOf::ViewOf;

protected:
    void show() override {
        widget_.show_value(model_.value());
        widget_.show_caption(qt_text(model_.caption()));
    }
};

class CellView : public ViewOf<NumberCell, NumberCellView> {
public:
    using ViewOf::ViewOf;

protected:
    void show() override { widget_.show_in_use(model_.in_use()); }
};

class PitchMarkerView : public ViewOf<PitchMarker, MarkerView> {
public:
    using ViewOf::ViewOf;

protected:
    void show() override {
        widget_.show_caption(qt_text(model_.caption()));
        widget_.show_selected(model_.selected());
        widget_.show_place(model_.left(), model_.top());
    }
};

class TabsView : public ViewOf<TabControl, QTabWidget> {
public:
    TabsView(Binder& binder, Control& control, QWidget& widget) : ViewOf(binder, control, widget) {
        for (int tab = 0; tab < widget_.count(); ++tab) {
            widget_.setTabText(tab, qt_text(model_.captions()[static_cast<std::size_t>(tab)]));
        }
        widget_.tabBar()->setFocusPolicy(Qt::TabFocus);
        QObject::connect(&widget_, &QTabWidget::currentChanged, &binder, [this](int tab) {
            if (tab == model_.tab()) return;
            binder_.touch(model_);
            binder_.act([this, tab] { user::select_tab(binder_.form(), tab); });
        });
    }

protected:
    void show() override {
        if (widget_.currentIndex() == model_.tab()) return;
        widget_.setCurrentIndex(model_.tab());
        // Laid out and marked as shown before it is painted, the page is painted once.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    }
};

template <typename ViewKind, typename Widget>
std::unique_ptr<View> make(Binder& binder, Control& control, QWidget& widget) {
    if (qobject_cast<Widget*>(&widget) == nullptr) {
        throw std::logic_error("the widget of " + control.name() + " is of another kind");
    }
    return std::make_unique<ViewKind>(binder, control, widget);
}

}  // namespace

View::View(Control& control, QWidget& widget) : control_(control), widget_(widget), own_hint_(widget.toolTip()) {}

void View::sync() {
    marked_ = false;
    widget_.setEnabled(control_.enabled());
    if (control_.kind() != Kind::tab_control) widget_.setVisible(control_.visible());
    widget_.setToolTip(control_.hint().empty() ? own_hint_ : qt_text(control_.hint()));
    show();
}

std::unique_ptr<View> make_view(Binder& binder, Control& control, QWidget& widget) {
    switch (control.kind()) {
        case Kind::label: return make<LabelView, QLabel>(binder, control, widget);
        case Kind::text_box: return make<TextBoxView, QLineEdit>(binder, control, widget);
        case Kind::combo_box: return make<ComboBoxView, PickCombo>(binder, control, widget);
        case Kind::list_box: return make<ListBoxView, RowsView>(binder, control, widget);
        case Kind::command_button: return make<ButtonView, QAbstractButton>(binder, control, widget);
        case Kind::option_button: return make<OptionView, QAbstractButton>(binder, control, widget);
        case Kind::frame: return make<FrameView, QWidget>(binder, control, widget);
        case Kind::image_box: return make<ImageBoxView, PictureBox>(binder, control, widget);
        case Kind::strength_bar: return make<BarView, StrengthBarView>(binder, control, widget);
        case Kind::number_cell: return make<CellView, NumberCellView>(binder, control, widget);
        case Kind::pitch_marker: return make<PitchMarkerView, MarkerView>(binder, control, widget);
        case Kind::tab_control: return make<TabsView, QTabWidget>(binder, control, widget);
    }
    return nullptr;
}

std::string filtered_edit(const TextBox& box, const std::string& edited) {
    const std::string& before = box.text();
    const std::size_t common = std::min(before.size(), edited.size());
    std::size_t head = 0;
    while (head < common && before[head] == edited[head]) ++head;
    std::size_t tail = 0;
    while (tail < common - head && before[before.size() - 1 - tail] == edited[edited.size() - 1 - tail]) ++tail;

    std::string result = edited.substr(0, head);
    for (std::size_t i = head; i < edited.size() - tail; ++i) {
        if (box.max_length() > 0 && result.size() + tail >= static_cast<std::size_t>(box.max_length())) break;
        if (user::accepts_key(box, edited[i])) result += edited[i];
    }
    return result + edited.substr(edited.size() - tail);
}

}  // namespace kalco::app
