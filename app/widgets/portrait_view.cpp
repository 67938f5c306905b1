#include "app/widgets/portrait_view.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <initializer_list>
#include <utility>

#include "app/portrait_palette.h"

namespace kalco::app {
namespace {

QByteArray bytes_of(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

void replace_all(QByteArray& drawing, std::initializer_list<std::pair<std::string_view, std::string_view>> tones) {
    for (const auto& [token, tone] : tones) drawing.replace(bytes_of(token), bytes_of(tone));
}

void replace_hair(QByteArray& drawing, const HairTones& token, const HairTones& tone) {
    replace_all(drawing, {{token.base, tone.base}, {token.shade, tone.shade}, {token.light, tone.light}});
}

template <typename Palette>
const auto& tones_of(const Palette& palette, int index) {
    return palette[index >= 0 && index < static_cast<int>(palette.size()) ? static_cast<std::size_t>(index) : 0];
}

}  // namespace

PortraitView::PortraitView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

PortraitView::~PortraitView() = default;

void PortraitView::show_looks(const Looks& looks) {
    if (looks == looks_ && !layers_.empty()) return;
    looks_ = looks;
    layers_.clear();
    add_layer(QStringLiteral("card"));
    if (looks.skin >= 0) {
        const bool haired = !looks.hair_style.isEmpty();
        if (haired) add_layer(QStringLiteral("hair-%1-back").arg(looks.hair_style));
        add_layer(QStringLiteral("head"));
        if (!looks.beard_style.isEmpty()) add_layer(QStringLiteral("beard-%1").arg(looks.beard_style));
        if (haired) add_layer(QStringLiteral("hair-%1-front").arg(looks.hair_style));
    }
    update();
}

void PortraitView::add_layer(const QString& name) {
    QFile file(QStringLiteral(":/portrait/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return;
    QByteArray drawing = file.readAll();
    const SkinTones& skin = tones_of(skin_palette, looks_.skin);
    replace_all(drawing, {{skin_token.base, skin.base},
                          {skin_token.shade, skin.shade},
                          {skin_token.line, skin.line},
                          {skin_token.lips, skin.lips}});
    replace_hair(drawing, hair_token, tones_of(hair_palette, looks_.hair_colour));
    replace_hair(drawing, beard_token, tones_of(beard_palette, looks_.beard_colour));
    layers_.push_back(std::make_unique<QSvgRenderer>(drawing));
}

void PortraitView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(0.5);
    const double side = std::min(width(), height());
    const QRectF area((width() - side) / 2, (height() - side) / 2, side, side);
    for (const auto& layer : layers_) layer->render(&painter, area);
}

}  // namespace kalco::app
