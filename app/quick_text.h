#pragma once

#include <QPainter>

namespace kalco::app {

/// Draws a text as QPainter::drawText does with the same area and flags of Qt::AlignmentFlag and Qt::TextFlag. The
/// shapes of a short line are kept for the next time: finding them takes longer than drawing them.
void draw_text(QPainter& painter, const QRect& area, int flags, const QString& text);

/// The same for one line that ends in "…" where it has no room.
void draw_elided(QPainter& painter, const QRect& area, int flags, const QString& text,
                 Qt::TextElideMode mode = Qt::ElideRight);

}  // namespace kalco::app
