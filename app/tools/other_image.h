#pragma once

#include <QString>

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

/// Asks for an image beside the open one; empty when it was cancelled.
QString choose_other_image(QWidget* parent, const QString& title, const Desk& desk);

/// Opens an image to read it only; `image` was made with open_to_read. False, and it is told why, when it can't be read
/// or is no raw image of the game, and when it is the open one itself.
bool open_other_image(QWidget* parent, Image& image, const QString& path, const Desk& desk);

}  // namespace kalco::app
