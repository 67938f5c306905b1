#pragma once

#include <QPalette>

class QWidget;

/// Inks that can be read on what they stand on, whatever palette the desktop has.
namespace kalco::app {

/// The least contrast of small text.
inline constexpr double readable_contrast = 4.5;

/// As much of one colour as `share` tells, and the rest of the other.
QColor mix(const QColor& one, const QColor& other, double share);

/// The contrast of two opaque colours: 1 for the same, 21 for black on white.
double contrast(const QColor& ink, const QColor& ground);

/// The ink, or the nearest one on its way to black or white that can be read on the ground.
QColor readable(const QColor& ink, const QColor& ground);

/// A muted ink: as much of the ink as `share` tells, and as much more as reading needs.
QColor faint(const QColor& ink, const QColor& ground, double share = 0.55);

/// What warns: a strong orange that can be read on the ground.
QColor warning_ink(const QColor& ground);

/// Gives a label an ink of its own.
void set_ink(QWidget& label, const QColor& ink);
/// The ink that warns, for where the label stands.
void set_warning_ink(QWidget& label);

/// The palette with disabled texts and hints that can be read.
QPalette readable_palette(QPalette palette);

}  // namespace kalco::app
