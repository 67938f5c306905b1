#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <array>
#include <cerrno>
#include <functional>

#include "app/support/test_list.h"
#include "app/tools/captions.h"
#include "app/tools/sentences.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "ctl/fods/fods_writer.h"
#include "ctl/patch_file.h"
#include "ctl/table_formats.h"
#include "disc/image/file_error.h"
#include "disc/image/image_copy.h"
#include "support/memory_storage.h"
#include "support/sheet_disc.h"
#include "work/container.h"
#include "work/import_plan.h"
#include "work/patch.h"
#include "work/patch_make.h"
#include "work/settle.h"
#include "work/sheet_tables.h"

using namespace kalco;

namespace {

/// A word of a sentence of the core that no Italian one has.
bool sounds_english(const QString& text) {
    static const QRegularExpression words(
        QStringLiteral("\\b(the|that|this|is|are|of|and|not|to|an|it|its|with|without|unknown|twice|than|has|beyond|no "
                       "(PPF|flat|file))\\b"));
    return words.match(text).hasMatch();
}

void compare(std::string_view english, const QString& expected) {
    const QString got = app::italian(english);
    QCOMPARE(got, expected);
    QVERIFY2(!sounds_english(got), qPrintable(got));
}

/// What the steps throw, in the window's words.
QString thrown(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const std::exception& failure) {
        return app::words_of(failure);
    }
    return QStringLiteral("nothing was thrown");
}

/// The only mistake of an import of a table.
QString mistake(const Tables& tables, const ImportOptions& options = {}) {
    static const DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const ImportPlan plan = plan_import(disc, tables, options);
    if (plan.mistakes.size() != 1) return QStringLiteral("%1 mistakes").arg(plan.mistakes.size());
    return app::italian(plan.mistakes.front().what);
}

QString csv_mistake(const std::string& csv, std::string_view sheet = {}) {
    return mistake({table_of_csv(csv)}, {sheet});
}

QString file_mistake(const std::string& bytes) {
    return thrown([&] { ctl::tables_of_file(bytes); });
}

std::string fods_of_rows(const std::string& rows) {
    return "<office:document><office:body><office:spreadsheet><table:table table:name=\"bars\">" + rows +
           "</table:table></office:spreadsheet></office:body></office:document>";
}

std::string fods_cell(const std::string& text, const std::string& attributes = {}) {
    return "<table:table-row><table:table-cell " + attributes + "><text:p>" + text +
           "</text:p></table:table-cell></table:table-row>";
}

QString patch_mistake(const std::string& bytes) {
    return thrown([&] { const PpfPatch patch{bytes}; });
}

/// A patch of one byte at a 0-based offset, of version 3 without block and undo data.
std::string small_patch(char offset, const std::string& head = std::string("\0\0\0\0", 4)) {
    return "PPF30\x02" + std::string(50, ' ') + head + offset + std::string(7, '\0') + "\x01z";
}

QString refusal(const std::string& beginning, std::int64_t size, std::int64_t at = 0) {
    const FileBytes bytes = [&](std::int64_t offset, std::size_t count) {
        std::string text(count, '\0');
        for (std::size_t i = 0; i < count; ++i) {
            const std::int64_t place = offset + static_cast<std::int64_t>(i) - at;
            if (place >= 0 && place < static_cast<std::int64_t>(beginning.size())) {
                text[i] = beginning[static_cast<std::size_t>(place)];
            }
        }
        return text;
    };
    return app::italian(look_at_container(size, bytes).refusal);
}

/// The literals of a source, those that stand one behind the other joined, without what is no part of a sentence.
QStringList literals_of(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression comment(QStringLiteral("//[^\n]*|#include[^\n]*"));
    static const QRegularExpression joint(QStringLiteral("(?<!\\\\)\"\\s*\n\\s*\""));
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\n]|\\\\.)*)\""));
    // What stands between a cell and the sentence about it.
    static const QRegularExpression joining(QStringLiteral("^: "));
    text.remove(comment);
    text.remove(joint);
    QStringList found;
    for (auto match = literal.globalMatch(text); match.hasNext();) {
        found << match.next().captured(1).replace(QStringLiteral("\\\""), QStringLiteral("\"")).remove(joining);
    }
    return found;
}

}  // namespace

/// Whatever the core tells a tool, the window tells it in Italian.
class TestToolsWords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_that_do_not_fit() {
        QCOMPARE(csv_mistake("id,speed\nt99,12\n"), QStringLiteral("l'id «t99» non esiste"));
        QCOMPARE(csv_mistake("id,speed\nt10p03,15\nt10p03,15\n"), QStringLiteral("l'id «t10p03» c'è due volte"));
        QCOMPARE(csv_mistake("id,speed\n,12\n"), QStringLiteral("manca l'id"));
        QCOMPARE(csv_mistake("speed\n12\n"), QStringLiteral("manca la colonna"));
        QCOMPARE(csv_mistake("id,velocita\n"), QStringLiteral("la colonna non esiste in questo foglio"));
        QCOMPARE(csv_mistake("id,speed,speed\n"), QStringLiteral("la colonna c'è due volte"));
        QCOMPARE(csv_mistake("id,\nt10p03,ciao\n"), QStringLiteral("un valore in una colonna senza nome: «ciao»"));
        QCOMPARE(csv_mistake("id,team\nt10p03,t11\n"), QStringLiteral("«t11»: qui si può solo leggere"));
        QVERIFY(csv_mistake("id,rev\nt10p03,r00000000\n")
                    .startsWith(QStringLiteral("il giocatore è stato cambiato nel frattempo: ora è r")));
        QCOMPARE(csv_mistake("id\n", "squadre"), QStringLiteral("«squadre» non è un foglio di Kalco"));
        QCOMPARE(mistake({{"bars", {{"id"}}, {}}}, {"links"}), QStringLiteral("non c'è il foglio Link Master League"));
        QCOMPARE(mistake({{"bars", {{"id"}, {"power"}}, {{2, {"t10", "11"}}}}, {"links", {{"id"}}, {}}}),
                 QStringLiteral("«11»: fuori dai limiti: da 0 a 10 (foglio Barre)"));
    }

    void two_changes_of_one_record() {
        const QString got = csv_mistake("id,speed\nt31p23,#0\nt32p01,#7\n");
        QVERIFY2(got.startsWith(QStringLiteral("«#7»: un'altra riga con gli stessi dati sul disco ha «")),
                 qPrintable(got));
    }

    void values_that_do_not_fit() {
        QCOMPARE(csv_mistake("id,speed\nt10p03,71\n"), QStringLiteral("«71»: fuori dai limiti: da 12 a 19"));
        QCOMPARE(csv_mistake("id,speed\nt10p03,x\n"), QStringLiteral("«x»: non è un numero intero da 12 a 19"));
        QCOMPARE(csv_mistake("id,speed\nt10p03,#x\n"), QStringLiteral("«#x»: dopo # ci vuole il numero del disco"));
        QCOMPARE(csv_mistake("id,speed\nt10p03,#9\n"), QStringLiteral("«#9»: fuori dai limiti: da #0 a #7"));
        QCOMPARE(csv_mistake("id,foot\nt10p03,\"a\"\": b\"\n"),
                 QStringLiteral("«a\": b»: non è uno dei valori possibili"));
        QCOMPARE(csv_mistake("id,s1\nc00,t99\n", "links"),
                 QStringLiteral("«t99»: non è l'id di un giocatore, né # e quattro cifre esadecimali"));
        QCOMPARE(csv_mistake("id,name\nt10p03,#1\n"),
                 QStringLiteral("«#1»: dopo # ci vogliono due cifre esadecimali per byte"));
        QCOMPARE(csv_mistake("id,name\nt10p03,#00\n"),
                 QStringLiteral("«#00»: un testo non può contenere un byte zero"));
        QCOMPARE(csv_mistake("id,name\nt10p03,Undicilette\n"),
                 QStringLiteral("«Undicilette»: troppo lungo: 11 byte, ce ne stanno 10"));
        QCOMPARE(csv_mistake("id,name\nt10p03,Š\n"), QStringLiteral("«Š»: una lettera che il disco non ha"));
        QVERIFY(
            csv_mistake("id,name\nt10p03,a\tb\n").endsWith(QStringLiteral("si può scrivere solo con # e le cifre")));
        QVERIFY(csv_mistake("id,full\nt10,7\n", "teams").endsWith(QStringLiteral("ci sono solo A-Z, a-z e il punto")));
        QVERIFY(csv_mistake("id,full\nt10,A  B\n", "teams")
                    .endsWith(QStringLiteral("gli spazi stanno uno per uno, fra le lettere")));
    }

    void files_that_are_no_tables() {
        QCOMPARE(file_mistake("a\n\"b"), QStringLiteral("le virgolette non si chiudono"));
        QCOMPARE(file_mistake("\"a\"b"), QStringLiteral("c'è del testo dopo le virgolette chiuse"));
        QCOMPARE(file_mistake("a\xFF"), QStringLiteral("non è UTF-8"));
        QCOMPARE(file_mistake("id" + std::string(1'000'000, ',')), QStringLiteral("troppe celle"));
        QVERIFY(file_mistake("PK\x03\x04").startsWith(QStringLiteral("è una cartella di lavoro compressa")));
        QVERIFY(
            file_mistake("\xD0\xCF\x11\xE0").startsWith(QStringLiteral("è una cartella di lavoro di vecchio tipo")));
        QCOMPARE(file_mistake("%PDF"), QStringLiteral("è un PDF, non una tabella"));
        QVERIFY(file_mistake("[{}]").startsWith(QStringLiteral("è un elenco fra parentesi")));
        QCOMPARE(file_mistake("{\"id\":[]}"), QStringLiteral("non è un oggetto di testi e numeri"));
        QCOMPARE(file_mistake(R"({"id":"a","id":"b"})"), QStringLiteral("la stessa chiave c'è due volte"));
        QCOMPARE(file_mistake("{\"id\":1.5}"), QStringLiteral("non è né un testo né un numero intero"));
        QCOMPARE(file_mistake("{\"id\":\"\xFF\"}"), QStringLiteral("non è UTF-8"));
        std::string sheets;
        std::string columns = "{\"id\":\"a\"";
        for (int i = 0; i < 65; ++i) sheets += "{\"sheet\":\"s" + std::to_string(i) + "\"}\n";
        for (int i = 0; i < 257; ++i) columns += ",\"c" + std::to_string(i) + "\":\"\"";
        QCOMPARE(file_mistake(sheets), QStringLiteral("troppi fogli"));
        QCOMPARE(file_mistake(columns + "}"), QStringLiteral("troppe colonne"));
    }

    void workbooks_that_are_none() {
        QCOMPARE(file_mistake("<a>"), QStringLiteral("riga 1: l'XML non è ben formato"));
        QCOMPARE(file_mistake("<a/>"), QStringLiteral("non è un foglio di calcolo FODS"));
        QCOMPARE(file_mistake("<a>\xFF</a>"), QStringLiteral("il file non è UTF-8"));
        QCOMPARE(file_mistake(fods_of_rows(fods_cell("x", "table:number-columns-repeated=\"257\""))),
                 QStringLiteral("più di 256 colonne"));
        QCOMPARE(file_mistake(fods_of_rows(fods_cell(std::string(32768, 'x')))),
                 QStringLiteral("un testo di più di 32767 byte"));
        std::string nested = "x";
        std::string grouped = fods_cell("x");
        for (int i = 0; i < 40; ++i) {
            nested = "<text:span>" + nested + "</text:span>";
            grouped = "<table:table-row-group>" + grouped + "</table:table-row-group>";
        }
        QCOMPARE(file_mistake(fods_of_rows(fods_cell(nested))),
                 QStringLiteral("elementi di testo uno dentro l'altro senza fine"));
        QCOMPARE(file_mistake(fods_of_rows(grouped)), QStringLiteral("righe raggruppate senza fine"));
        const std::string many = "<table:table-row table:number-rows-repeated=\"600000\"><table:table-cell>"
                                 "<text:p>x</text:p></table:table-cell></table:table-row>";
        QCOMPARE(file_mistake(fods_of_rows(many)),
                 QStringLiteral("più celle di quante ne abbiano i fogli di un disco"));
    }

    void patches() {
        QCOMPARE(patch_mistake("x"), QStringLiteral("non è una patch PPF"));
        QCOMPARE(patch_mistake("PPF30\x07"), QStringLiteral("è una patch di un metodo sconosciuto"));
        QCOMPARE(patch_mistake("PPF30\x02"), QStringLiteral("è tagliata al byte 6"));
        QCOMPARE(patch_mistake(small_patch(0, "\x02\0\0\0")), QStringLiteral("il tipo d'immagine è sconosciuto"));
        QCOMPARE(patch_mistake(small_patch(0, std::string("\0\x02\0\0", 4))),
                 QStringLiteral("il controllo del blocco è sconosciuto"));
        QCOMPARE(patch_mistake(small_patch(0, std::string("\0\0\x02\0", 4))),
                 QStringLiteral("il tipo di annullamento è sconosciuto"));
        const std::string head = small_patch(0).substr(0, 60);
        QCOMPARE(patch_mistake(head), QStringLiteral("è una patch senza record"));
        QCOMPARE(patch_mistake(head + std::string(9, '\0')), QStringLiteral("un record vuoto al byte 60"));
        QCOMPARE(patch_mistake(head + std::string(8, '\xFF') + "\x01z"),
                 QStringLiteral("un record oltre ogni file al byte 60"));
        test::Disc disc{std::string(2352, '\0')};
        Image image(test::opener_of(disc));
        image.open("disc");
        const PpfPatch far(head + std::string("\0\0\x01\0\0\0\0\0\x01z", 10));
        QCOMPARE(thrown([&] { write_patch(image, far, PatchWay::apply); }),
                 QStringLiteral("un record per la posizione 65537, oltre la fine dell'immagine"));
        QCOMPARE(thrown([&] { write_patch(image, PpfPatch(small_patch(0)), PatchWay::take_back); }),
                 QStringLiteral("la patch non ha i byte di prima, per toglierla"));
        test::Disc longer{std::string(4704, '\0')};
        Image other(test::opener_of(longer));
        other.open("disc");
        QCOMPARE(thrown([&] { make_patch(image, other, {}, {}); }),
                 QStringLiteral("le due immagini hanno lunghezze diverse"));
        QVERIFY(thrown([] {
                    ctl::refuse_patch_beside("a/disc.ppf", {"a/disc.bin"});
                }).startsWith(QStringLiteral("gli emulatori caricano da soli una patch")));
        image.discard();
        image.write(2350, "12345");
        QCOMPARE(thrown([&] { settle(image, "disc"); }), QStringLiteral("una modifica oltre la fine dell'immagine"));
        image.discard();
    }

    void files_that_are_no_images() {
        constexpr std::int64_t size = least_disc_sectors * sector_bytes;
        QVERIFY(refusal("CD001", size, 0x8001).startsWith(QStringLiteral("è un'immagine ISO")));
        QVERIFY(refusal("MComprHD", size).startsWith(QStringLiteral("è un'immagine CHD")));
        QVERIFY(refusal(std::string("ECM\0", 4), size).startsWith(QStringLiteral("è un'immagine compressa in ECM")));
        QVERIFY(refusal(std::string("\0PBP", 4), size).startsWith(QStringLiteral("è un'immagine PBP")));
        QVERIFY(refusal("PK\3\4", size).startsWith(QStringLiteral("è un archivio zip")));
        QVERIFY(refusal("7z\xBC\xAF\x27\x1C", size).startsWith(QStringLiteral("è un archivio 7z")));
        const std::string sync = '\0' + std::string(10, '\xFF') + '\0';
        QVERIFY(refusal(sync, 2448 * 5).startsWith(QStringLiteral("è un'immagine con 2448 byte per settore")));
        QCOMPARE(refusal("", 2353),
                 QStringLiteral("la lunghezza, 2353 byte, non è un multiplo di 2352: è tagliata, o non "
                                "è un'immagine grezza"));
        QCOMPARE(refusal("", 2352),
                 QStringLiteral("è troppo corta: ha 1 settori, e le tabelle del gioco arrivano a 2404"));
    }

    void files_that_fail() {
        const QTemporaryDir folder;
        const std::string directory = folder.path().toStdString();
        const std::string path = folder.filePath(QStringLiteral("f")).toStdString();
        QCOMPARE(thrown([&] { ctl::read_file(path, 1); }), QStringLiteral("il file non c'è"));
        QCOMPARE(thrown([&] { open_to_read(path); }), QStringLiteral("il file non c'è"));
        QCOMPARE(thrown([&] { open_to_write(directory); }), QStringLiteral("è una cartella"));
        QCOMPARE(thrown([&] { open_to_read(directory); }), QStringLiteral("non è un file"));
        QCOMPARE(thrown([&] { ctl::read_file(directory, 1); }), QStringLiteral("è una cartella"));
        QCOMPARE(thrown([&] { ctl::write_output(directory, "x", {}); }), QStringLiteral("è una cartella"));
        QCOMPARE(thrown([&] { ctl::output_target("/dev/null", {}); }), QStringLiteral("non è un file normale"));
        ctl::write_output(path, std::string(std::size_t{2} << 20, 'x'), {});
        QCOMPARE(thrown([&] { ctl::read_file(path, std::size_t{1} << 20); }), QStringLiteral("ha più di 1 MiB"));
        QCOMPARE(thrown([&] { ctl::write_output(path, "x", std::array{path}); }),
                 QStringLiteral("è l'immagine stessa"));
        QCOMPARE(thrown([&] { copy_image(path, path, {true, {}}); }), QStringLiteral("è l'immagine stessa"));
        QCOMPARE(thrown([&] {
                     Edit edit(path, false);
                     const ctl::UndoFile undo(path, edit);
                 }),
                 QStringLiteral("un file con quel nome c'è già"));
        const auto held = open_to_write(path);
        QCOMPARE(thrown([&] { open_to_write(path); }), QStringLiteral("un altro programma lo sta usando"));
        QCOMPARE(thrown([&] {
                     Image image(open_to_read);
                     image.open(path);
                     image.write(1, "y");
                     image.commit("test");
                 }),
                 QStringLiteral("è aperto solo per leggere"));
    }

    void failures_of_the_system() {
        for (int code = 1; code < 134; ++code) {
            const QString words = app::words_of(SystemFileError("f", code));
            QVERIFY2(!sounds_english(words) && !words.contains(QLatin1String("rror ")), qPrintable(words));
        }
        QCOMPARE(app::words_of(SystemFileError("f", ENOSPC)), QStringLiteral("sul disco non c'è più posto"));
        QCOMPARE(app::words_of(SystemFileError("f", ENODEV)), QStringLiteral("errore %1 del sistema").arg(ENODEV));
        QCOMPARE(app::words_of(RuntimeError(error::disk_full)), QStringLiteral("disco pieno"));
    }

    void journals_of_others() {
        compare("this is no journal of a save; nothing can be saved while it lies there",
                QStringLiteral("non è il giornale di un salvataggio; finché è lì non si può salvare"));
        compare("this is the journal of another image's save; nothing was touched",
                QStringLiteral("è il giornale del salvataggio di un'altra immagine; niente è stato toccato"));
    }

    void no_sentence_is_left_in_english_and_none_fits_two_ways() {
        for (const app::Sentence& sentence : app::sentences()) {
            const QString text = QString::fromUtf8(sentence.italian.data(), qsizetype(sentence.italian.size()));
            QVERIFY2(!text.isEmpty() && !sounds_english(text), qPrintable(text));
            QVERIFY(sentence.english.starts_with("{}") == (&sentence == app::sentences().data()));
        }
    }

    void a_sentence_without_a_translation_stays_as_it_is() {
        QCOMPARE(app::italian("something else"), QStringLiteral("something else"));
        QCOMPARE(app::italian("\"a\": something else"), QStringLiteral("\"a\": something else"));
    }

    /// Every sentence that stands in the sources has its place in the table.
    void every_literal_of_the_core_is_part_of_a_sentence() {
        static const std::array files{"src/work/import_plan.cpp",
                                      "src/work/sheets/values.cpp",
                                      "src/work/sheets/texts.cpp",
                                      "src/work/csv.cpp",
                                      "ctl/table_formats.cpp",
                                      "ctl/table_json.cpp",
                                      "ctl/fods/fods_reader.cpp",
                                      "ctl/fods/fods_text.cpp",
                                      "src/work/ppf.cpp",
                                      "src/work/patch.cpp",
                                      "src/work/container.cpp",
                                      "src/work/settle.cpp",
                                      "ctl/files.cpp",
                                      "ctl/patch_file.cpp",
                                      "src/disc/image/storage.cpp",
                                      "src/disc/image/stored_file.cpp",
                                      "src/disc/image/failures.cpp",
                                      "src/disc/image/image_copy.cpp"};
        QString all;
        for (const app::Sentence& sentence : app::sentences()) {
            all += QString::fromUtf8(sentence.english.data(), qsizetype(sentence.english.size())) + u'\n';
        }
        const QRegularExpression letters(QStringLiteral("[a-z]{2,} [a-z]"));
        int seen = 0;
        for (const char* const name : files) {
            const QStringList literals = literals_of(QStringLiteral(KALCO_SOURCE "/") + QLatin1String(name));
            QVERIFY2(!literals.isEmpty(), name);
            for (const QString& literal : literals) {
                if (!letters.match(literal).hasMatch()) continue;
                ++seen;
                QVERIFY2(all.contains(literal), qPrintable(literal));
            }
        }
        QVERIFY(seen > 50);
    }

    void every_sheet_and_field_has_a_caption() {
        QStringList captions;
        for (const Sheet& sheet : sheets()) {
            QVERIFY(!app::caption_of(sheet).isEmpty());
            captions.clear();
            for (const SheetColumn& column : sheet.columns) {
                const QString caption = app::caption_of(sheet, column);
                QVERIFY2(!caption.trimmed().isEmpty() && !caption.startsWith(u' '), column.name.c_str());
                QVERIFY2(!captions.contains(caption), qPrintable(caption));
                captions << caption;
            }
        }
        const Sheet& players = *sheet_named(players_sheet);
        QCOMPARE(app::caption_of(players, *players.column_named("speed")), QStringLiteral("Velocità"));
        QCOMPARE(app::caption_of_column(&players, "speed"), QStringLiteral("Velocità (speed)"));
        QCOMPARE(app::caption_of_column(&players, "velocita"), QStringLiteral("velocita"));
        const Sheet& formations = *sheet_named("formations");
        QCOMPARE(app::caption_of(formations, *formations.column_named("role2")), QStringLiteral("Ruolo 2"));
    }
};

KALCO_WINDOW_TEST(TestToolsWords)
#include "test_tools_words.moc"
