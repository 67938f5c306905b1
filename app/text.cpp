#include "app/text.h"

#include <QList>

namespace kalco::app {

QString qt_text(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

std::string model_text(const QString& text) {
    std::string result;
    for (const char32_t character : text.toUcs4()) result += character <= 0xFF ? static_cast<char>(character) : '?';
    return result;
}

QString visible_text(QString text) {
    constexpr char16_t first_picture = 0x2400;
    constexpr char16_t substitute = 0x2426;
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code < 0x20) {
            character = QChar(static_cast<char16_t>(first_picture + code));
        } else if (code >= 0x7F && code < 0xA0) {
            character = QChar(substitute);
        }
    }
    return text;
}

}  // namespace kalco::app
