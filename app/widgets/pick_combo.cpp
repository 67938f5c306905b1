#include "app/widgets/pick_combo.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "app/pictures.h"
#include "app/text.h"

namespace kalco::app {
namespace {

/// A row of the popup: its drawing, its text.
class PickDelegate : public QStyledItemDelegate {
public:
    explicit PickDelegate(PickCombo& combo) : QStyledItemDelegate(&combo), combo_(combo) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize hint = QStyledItemDelegate::sizeHint(option, index);
        if (pattern().isEmpty()) return {hint.width(), option.fontMetrics.height() + 5};
        return {hint.width() + picture_side + gap, picture_side + 4};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (pattern().isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
        const QString text = index.data().toString();
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text.clear();
        const QStyle& style = *combo_.style();
        style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        const QRect area = option.rect.adjusted(gap / 2, 2, 0, -2);
        const QPixmap drawn =
            picture(QString(pattern()).replace(u'*', text), picture_side, painter->device()->devicePixelRatioF());
        if (!drawn.isNull()) painter->drawPixmap(area.topLeft(), drawn);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const auto ink = selected ? QPalette::HighlightedText : QPalette::Text;
        style.drawItemText(painter, area.adjusted(picture_side + gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                           option.palette, true, visible_text(text), ink);
    }

private:
    static constexpr int picture_side = 28;
    static constexpr int gap = 8;

    QString pattern() const { return combo_.property("pictures").toString(); }

    PickCombo& combo_;
};

constexpr int skill_bar_steps = 8;  ///< Of a skill's bar.

void draw_skill_bar(QPainter& painter, QSize size, int reached, const QColor& track) {
    painter.setPen(Qt::NoPen);
    const double step = static_cast<double>(size.width()) / skill_bar_steps;
    for (int i = 0; i < skill_bar_steps; ++i) {
        painter.setBrush(i < reached ? skill_colour((reached - 1.0) / (skill_bar_steps - 1)) : track);
        painter.drawRoundedRect(QRectF(i * step, 0, step - 2, size.height()), 2, 2);
    }
}

}  // namespace

PickCombo::PickCombo(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::TabFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(20);
    setItemDelegate(new PickDelegate(*this));
}

void PickCombo::set_rows(const QStringList& rows) {
    clear();
    addItems(rows);
}

QStringList PickCombo::rows() const {
    QStringList result;
    for (int row = 0; row < count(); ++row) result << itemText(row);
    return result;
}

void PickCombo::show_text(const QString& text, int row) {
    text_ = text;
    setCurrentIndex(row);
    update();
}

void PickCombo::showPopup() {
    // The rows are read whole even where the field is narrow.
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QComboBox::showPopup();
}

void PickCombo::keyPressEvent(QKeyEvent* event) {
    const bool chord = event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    const bool opens = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    // An access key that nothing has must not search the rows.
    if (chord && !opens) {
        event->ignore();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void PickCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QRect PickCombo::field_rect(const QStyleOptionComboBox& option) const {
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
}

void PickCombo::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentIcon = {};
    option.currentText = visible_text(text_);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    paint_field(painter, option);
}

void PickCombo::paint_field(QStylePainter& painter, QStyleOptionComboBox& option) {
    const int room = field_rect(option).width() - 4;
    if (fontMetrics().horizontalAdvance(option.currentText) > room) {
        option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, room);
    }
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QColor skill_colour(double level) {
    return QColor::fromHslF(static_cast<float>(0.06 + 0.32 * level), 0.62F, 0.48F);
}

void SkillCombo::paint_field(QStylePainter& painter, QStyleOptionComboBox& option) {
    PickCombo::paint_field(painter, option);
    constexpr int lowest = 12;
    bool is_number = false;
    const int skill = shown_text().toInt(&is_number);
    if (!is_number || skill < lowest) return;
    const int reached = std::min(skill - lowest + 1, skill_bar_steps);

    const int number = fontMetrics().horizontalAdvance(QStringLiteral("00")) + 14;
    QRect area = field_rect(option).adjusted(number, 0, -6, 0);
    const int height = std::min(8, area.height() / 2);
    area = QRect(area.left(), area.center().y() - height / 2 + 1, area.width(), height);
    if (area.width() < skill_bar_steps) return;
    QColor track = palette().color(QPalette::ButtonText);
    track.setAlphaF(0.12F);
    const auto draw = [&](QPainter& bar) { draw_skill_bar(bar, area.size(), reached, track); };
    const QString name = QStringLiteral("skill %1 %2").arg(reached).arg(track.rgba());
    if (!isEnabled()) painter.setOpacity(0.4);
    painter.drawPixmap(area.topLeft(), painted_once(name, area.size(), devicePixelRatioF(), draw));
}

}  // namespace kalco::app
