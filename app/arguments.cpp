#include "app/arguments.h"

#include <QFileInfo>
#include <QTextStream>

namespace kalco::app {
namespace {

constexpr int exit_refused = 2;

constexpr auto help_text = R"(Uso: kalco [IMMAGINE]
Modifica squadre e giocatori di un gioco di calcio nell'immagine del suo CD.

  IMMAGINE       un file .bin o .img con settori di 2352 byte; senza, Kalco la chiede
  -h, --help     mostra questo aiuto
  -v, --version  mostra la versione
)";

Arguments refused(const QString& why) {
    return {Arguments::Wish::refused, {}, why};
}

}  // namespace

Arguments read_arguments(const QStringList& words) {
    Arguments result;
    bool options = true;
    for (const QString& word : words) {
        if (options && word == u"--") {
            options = false;
        } else if (options && (word == u"-h" || word == u"--help")) {
            return {Arguments::Wish::help, {}, {}};
        } else if (options && (word == u"-v" || word == u"--version")) {
            return {Arguments::Wish::version, {}, {}};
        } else if (options && word.size() > 1 && word.startsWith(u'-')) {
            return refused(QStringLiteral("opzione sconosciuta: %1").arg(word));
        } else if (!result.image.isEmpty()) {
            return refused(QStringLiteral("più di un'immagine: %1").arg(word));
        } else if (word.isEmpty()) {
            return refused(QStringLiteral("il nome dell'immagine è vuoto"));
        } else {
            result.image = QFileInfo(word).absoluteFilePath();
        }
    }
    return result;
}

std::optional<int> answer_arguments(const Arguments& arguments) {
    QTextStream out(stdout);
    switch (arguments.wish) {
        case Arguments::Wish::window: return std::nullopt;
        case Arguments::Wish::help: out << QString::fromUtf8(help_text); return 0;
        case Arguments::Wish::version: out << QStringLiteral("kalco " KALCO_VERSION "\n"); return 0;
        case Arguments::Wish::refused: break;
    }
    QTextStream(stderr) << QStringLiteral("kalco: ") << arguments.refusal
                        << QStringLiteral("\nProvate kalco --help.\n");
    return exit_refused;
}

}  // namespace kalco::app
