#pragma once

#include <QString>
#include <string>
#include <string_view>

/// The border between the model's texts (Latin-1, one byte a character) and Qt's.
namespace kalco::app {

QString qt_text(std::string_view text);

/// A character that Latin-1 does not have becomes "?".
std::string model_text(const QString& text);

/// The text with its control characters as visible signs, for painting only.
QString visible_text(QString text);

}  // namespace kalco::app
