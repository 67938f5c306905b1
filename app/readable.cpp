#include "app/readable.h"

#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>

namespace kalco::app {
namespace {

/// The light of each step of a channel.
std::array<double, 256> light_of_steps() {
    std::array<double, 256> light{};
    for (std::size_t step = 0; step < light.size(); ++step) {
        const double channel = static_cast<double>(step) / 255;
        light[step] = channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    }
    return light;
}

double luminance(const QColor& colour) {
    static const std::array<double, 256> light = light_of_steps();
    const auto of = [](int step) { return light[static_cast<std::size_t>(step)]; };
    return 0.2126 * of(colour.red()) + 0.7152 * of(colour.green()) + 0.0722 * of(colour.blue());
}

struct Mixture {
    QColor towards;
    QColor from;
    double share = 0;  ///< How much of `towards` is in it.
};

/// The first mixture, from its share on, that can be read.
QColor mixed_until_readable(const Mixture& first, const QColor& ground) {
    constexpr int steps = 50;
    for (int step = 0; step < steps; ++step) {
        const double part = first.share + (1 - first.share) * step / steps;
        const QColor colour = mix(first.towards, first.from, part);
        if (contrast(colour, ground) >= readable_contrast) return colour;
    }
    return first.towards;
}

}  // namespace

QColor mix(const QColor& one, const QColor& other, double share) {
    const auto channel = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

double contrast(const QColor& ink, const QColor& ground) {
    const double one = luminance(ink);
    const double other = luminance(ground);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor readable(const QColor& ink, const QColor& ground) {
    const QColor end = contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
    return mixed_until_readable({end, ink, 0}, ground);
}

QColor faint(const QColor& ink, const QColor& ground, double share) {
    return mixed_until_readable({ink, ground, share}, ground);
}

QColor warning_ink(const QColor& ground) {
    return readable(QColor(0xd9, 0x6a, 0x00), ground);
}

void set_ink(QWidget& label, const QColor& ink) {
    if (label.palette().color(QPalette::WindowText) == ink) return;
    QPalette colours;
    colours.setColor(QPalette::WindowText, ink);
    label.setPalette(colours);
}

void set_warning_ink(QWidget& label) {
    set_ink(label, warning_ink(label.palette().color(QPalette::Window)));
}

QPalette readable_palette(QPalette palette) {
    struct Pair {
        QPalette::ColorRole ink, ground;
    };
    constexpr std::array<Pair, 3> texts{{{QPalette::WindowText, QPalette::Window},
                                         {QPalette::Text, QPalette::Base},
                                         {QPalette::ButtonText, QPalette::Button}}};
    for (const auto& [ink, ground] : texts) {
        const QColor colour =
            readable(palette.color(QPalette::Disabled, ink), palette.color(QPalette::Disabled, ground));
        // Fields that look as labels do stand on the window.
        palette.setColor(QPalette::Disabled, ink,
                         readable(colour, palette.color(QPalette::Disabled, QPalette::Window)));
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        // Hints stand in fields and beside them.
        QColor hint = palette.color(group, QPalette::PlaceholderText);
        const QColor base = palette.color(group, QPalette::Base);
        hint = mix(QColor(hint.rgb()), base, hint.alphaF());
        hint = readable(readable(hint, base), palette.color(group, QPalette::Window));
        palette.setColor(group, QPalette::PlaceholderText, hint);
    }
    return palette;
}

}  // namespace kalco::app
