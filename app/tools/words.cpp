#include "app/tools/words.h"

#include <array>
#include <cerrno>
#include <optional>

#include "app/text.h"
#include "disc/image/file_error.h"
#include "disc/runtime_error.h"

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

/// A sentence and its translation. "{}" stands for a part that is taken over, in the same order.
struct Sentence {
    std::string_view english;
    std::string_view italian;
};

constexpr std::array sentences{
    Sentence{"a change beyond the image's end", "una modifica oltre la fine dell'immagine"},
    Sentence{"that is the image itself", "è l'immagine stessa"},
    Sentence{"that is a directory", "è una cartella"},
    Sentence{"that is no plain file", "non è un file normale"},
};

constexpr std::string_view gap = "{}";

/// The parts of the sentence that stand where the pattern has its gaps; none when it does not fit.
std::optional<QStringList> parts_of(std::string_view sentence, std::string_view pattern) {
    QStringList parts;
    for (;;) {
        const auto end = pattern.find(gap);
        if (end == std::string_view::npos) {
            if (sentence != pattern) return std::nullopt;
            return parts;
        }
        if (sentence.substr(0, end) != pattern.substr(0, end)) return std::nullopt;
        sentence.remove_prefix(end);
        pattern.remove_prefix(end + gap.size());
        // A gap goes to where the rest can begin, the last one to the end.
        const std::string_view next = pattern.substr(0, pattern.find(gap));
        const auto part = next.empty() ? sentence.size() : sentence.find(next);
        if (part == std::string_view::npos) return std::nullopt;
        parts << QString::fromUtf8(sentence.data(), static_cast<qsizetype>(part));
        sentence.remove_prefix(part);
    }
}

}  // namespace

QString italian(std::string_view sentence) {
    for (const Sentence& each : sentences) {
        const auto parts = parts_of(sentence, each.english);
        if (!parts) continue;
        QString text = QString::fromUtf8(each.italian.data(), static_cast<qsizetype>(each.italian.size()));
        for (const QString& part : *parts) text.replace(text.indexOf(u"{}"), 2, part);
        return text;
    }
    return QString::fromUtf8(sentence.data(), static_cast<qsizetype>(sentence.size()));
}

QString words_of(const std::exception& failure) {
    if (const auto* const error = dynamic_cast<const SystemFileError*>(&failure)) {
        for (const Reason& reason : reasons) {
            if (reason.code == error->code()) return QString::fromUtf8(reason.text);
        }
        return QString::fromStdString(error->reason());
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
