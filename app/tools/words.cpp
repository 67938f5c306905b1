#include "app/tools/words.h"

#include <array>
#include <cerrno>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "app/text.h"
#include "app/tools/captions.h"
#include "app/tools/sentences.h"
#include "disc/image/file_error.h"
#include "disc/runtime_error.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

struct Reason {
    int code;
    const char* text;
};

/// The system's own words are those of its language.
constexpr std::array reasons{
    Reason{EACCES, "l'accesso è negato"},
    Reason{EPERM, "l'accesso è negato"},
    Reason{ENOENT, "il file non c'è"},
    Reason{ENOTDIR, "la cartella non c'è"},
    Reason{EISDIR, "è una cartella"},
    Reason{EEXIST, "un file con quel nome c'è già"},
    Reason{ENOSPC, "sul disco non c'è più posto"},
    Reason{EDQUOT, "sul disco non c'è più posto"},
    Reason{EFBIG, "il file è troppo grande per quel disco"},
    Reason{EROFS, "il disco è protetto da scrittura"},
    Reason{EIO, "il disco non risponde"},
    Reason{ENOTSUP, "non è un file normale"},
    Reason{ELOOP, "troppi collegamenti uno dietro l'altro"},
    Reason{ENAMETOOLONG, "il nome è troppo lungo"},
    Reason{EWOULDBLOCK, "un altro programma lo sta usando"},
};

constexpr std::string_view hole = "{}";

QString utf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Takes a sentence apart at the gaps of a pattern, in every way that there is, until `accept` takes the parts.
bool take_apart(std::string_view sentence, std::string_view pattern, std::vector<std::string_view>& parts,
                const std::function<bool()>& accept) {
    const auto end = pattern.find(hole);
    if (end == std::string_view::npos) return sentence == pattern && accept();
    if (!sentence.starts_with(pattern.substr(0, end))) return false;
    sentence.remove_prefix(end);
    pattern.remove_prefix(end + hole.size());
    // A hole at the end takes all that is left.
    for (std::size_t length = pattern.empty() ? sentence.size() : 0; length <= sentence.size(); ++length) {
        parts.push_back(sentence.substr(0, length));
        if (take_apart(sentence.substr(length), pattern, parts, accept)) return true;
        parts.pop_back();
    }
    return false;
}

std::optional<QString> translated(std::string_view sentence);

/// None where a part is not what the hole is for.
std::optional<QString> put_together(std::string_view italian, std::span<const std::string_view> parts) {
    QString text;
    for (const std::string_view part : parts) {
        const auto start = italian.find('{');
        if (start == std::string_view::npos) break;
        text += utf8(italian.substr(0, start));
        const char kind = italian[start + 1];
        if (kind == 't') {
            const auto inner = translated(part);
            if (!inner) return std::nullopt;
            text += *inner;
        } else if (kind == 's') {
            const Sheet* const sheet = sheet_named(part);
            if (sheet == nullptr) return std::nullopt;
            text += caption_of(*sheet);
        } else {
            text += utf8(part);
        }
        italian.remove_prefix(italian.find('}', start) + 1);
    }
    return text + utf8(italian);
}

std::optional<QString> translated(std::string_view sentence) {
    for (const Sentence& each : sentences()) {
        std::optional<QString> text;
        std::vector<std::string_view> parts;
        const auto accept = [&] {
            text = put_together(each.italian, parts);
            return text.has_value();
        };
        if (take_apart(sentence, each.english, parts, accept)) return text;
    }
    return std::nullopt;
}

}  // namespace

QString italian(std::string_view sentence) {
    return translated(sentence).value_or(utf8(sentence));
}

QString words_of(const std::exception& failure) {
    if (const auto* const error = dynamic_cast<const SystemFileError*>(&failure)) {
        for (const Reason& reason : reasons) {
            if (reason.code == error->code()) return QString::fromUtf8(reason.text);
        }
        return QStringLiteral("errore %1 del sistema").arg(error->code());
    }
    if (const auto* const error = dynamic_cast<const FileError*>(&failure)) return italian(error->reason());
    if (const auto* const error = dynamic_cast<const RuntimeError*>(&failure)) {
        QString text = qt_text(error->text());
        if (!text.isEmpty()) text[0] = text[0].toLower();
        return text;
    }
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) return QStringLiteral("la memoria non basta");
    return italian(failure.what());
}

}  // namespace kalco::app
