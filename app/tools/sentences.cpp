#include "app/tools/sentences.h"

#include <array>

namespace kalco::app {
namespace {

constexpr std::array every_sentence{
    // What stands around other sentences.
    Sentence{"{} (sheet {})", "{t} (foglio {s})"},
    Sentence{R"("{}": another row with the same record has "{}")",
             "«{}»: un'altra riga con gli stessi dati sul disco ha «{}»"},
    Sentence{"\"{}\": {}", "«{}»: {t}"},

    // The rows and columns of a table.
    Sentence{"it has no sheet \"{}\"", "non c'è il foglio {s}"},
    Sentence{"unknown sheet \"{}\"", "«{}» non è un foglio di Kalco"},
    Sentence{"the column is missing", "manca la colonna"},
    Sentence{"twice the same column", "la colonna c'è due volte"},
    Sentence{"unknown column", "la colonna non esiste in questo foglio"},
    Sentence{"the id is missing", "manca l'id"},
    Sentence{"unknown id \"{}\"", "l'id «{}» non esiste"},
    Sentence{"twice the same id \"{}\"", "l'id «{}» c'è due volte"},
    Sentence{"a value in a column without a name: \"{}\"", "un valore in una colonna senza nome: «{}»"},
    Sentence{"the record was changed since: it is {}", "il giocatore è stato cambiato nel frattempo: ora è {}"},
    Sentence{"read-only here", "qui si può solo leggere"},

    // The values of fields.
    Sentence{"# is not followed by a stored number", "dopo # ci vuole il numero del disco"},
    Sentence{"out of range: # 0 to {}", "fuori dai limiti: da #0 a #{}"},
    Sentence{"out of range: {} to {}", "fuori dai limiti: da {} a {}"},
    Sentence{"not a whole number, {} to {}", "non è un numero intero da {} a {}"},
    Sentence{"not in the list of values", "non è uno dei valori possibili"},
    Sentence{"neither a player's id nor # and four hexadecimal digits",
             "non è l'id di un giocatore, né # e quattro cifre esadecimali"},
    Sentence{"# is not followed by two hexadecimal digits a byte", "dopo # ci vogliono due cifre esadecimali per byte"},
    Sentence{"a text can't hold a zero byte", "un testo non può contenere un byte zero"},
    Sentence{"too long: {} bytes, there is room for {}", "troppo lungo: {} byte, ce ne stanno {}"},
    Sentence{"a letter that the disc can't hold", "una lettera che il disco non ha"},
    Sentence{"a letter that the disc can't hold: a full-width name has A to Z, a to z and full stops",
             "una lettera che il disco non ha: nel nome per esteso ci sono solo A-Z, a-z e il punto"},
    Sentence{"a control character, which can only be given as # and digits",
             "un carattere di controllo, che si può scrivere solo con # e le cifre"},
    Sentence{"blanks stand one by one, between letters", "gli spazi stanno uno per uno, fra le lettere"},

    // Files that are no tables.
    Sentence{"too many cells", "troppe celle"},
    Sentence{"too many sheets", "troppi fogli"},
    Sentence{"too many columns", "troppe colonne"},
    Sentence{"a quote is never closed", "le virgolette non si chiudono"},
    Sentence{"text behind a closing quote", "c'è del testo dopo le virgolette chiuse"},
    Sentence{"not UTF-8", "non è UTF-8"},
    Sentence{"the file is not UTF-8", "il file non è UTF-8"},
    Sentence{"a zipped workbook; save it as FODS (flat XML) or CSV",
             "è una cartella di lavoro compressa; salvala come FODS (XML piatto) o CSV"},
    Sentence{"a workbook of an old form; save it as FODS (flat XML) or CSV",
             "è una cartella di lavoro di vecchio tipo; salvala come FODS (XML piatto) o CSV"},
    Sentence{"a PDF, no table", "è un PDF, non una tabella"},
    Sentence{"a list in brackets; JSON is one object a line here",
             "è un elenco fra parentesi; qui JSON è un oggetto per riga"},
    Sentence{"not an object of texts and numbers", "non è un oggetto di testi e numeri"},
    Sentence{"twice the same key", "la stessa chiave c'è due volte"},
    Sentence{"neither a text nor a whole number", "non è né un testo né un numero intero"},
    Sentence{"rows grouped without end", "righe raggruppate senza fine"},
    Sentence{"more than 256 columns", "più di 256 colonne"},
    Sentence{"text elements nested without end", "elementi di testo uno dentro l'altro senza fine"},
    Sentence{"a text of more than 32767 bytes", "un testo di più di 32767 byte"},
    Sentence{"more cells than the sheets of a disc have", "più celle di quante ne abbiano i fogli di un disco"},
    // What the reader of XML finds wrong is left out.
    Sentence{"line {}: no well-formed XML: {}", "riga {}: l'XML non è ben formato"},
    Sentence{"no flat OpenDocument spreadsheet", "non è un foglio di calcolo FODS"},

    // Patches.
    Sentence{"no PPF patch", "non è una patch PPF"},
    Sentence{"cut off at byte {}", "è tagliata al byte {}"},
    Sentence{"a patch of an unknown method", "è una patch di un metodo sconosciuto"},
    Sentence{"an unknown image type", "il tipo d'immagine è sconosciuto"},
    Sentence{"an unknown block check", "il controllo del blocco è sconosciuto"},
    Sentence{"an unknown kind of undo data", "il tipo di annullamento è sconosciuto"},
    Sentence{"an empty record at byte {}", "un record vuoto al byte {}"},
    Sentence{"a record beyond any file at byte {}", "un record oltre ogni file al byte {}"},
    Sentence{"a patch without records", "è una patch senza record"},
    Sentence{"a record for position {}, beyond the image's end",
             "un record per la posizione {}, oltre la fine dell'immagine"},
    Sentence{"the patch has no old bytes to take it back", "la patch non ha i byte di prima, per toglierla"},
    Sentence{"the image has neither its old nor its new bytes", "l'immagine non ha né i byte di prima né quelli nuovi"},
    Sentence{"the images have different lengths", "le due immagini hanno lunghezze diverse"},
    Sentence{"emulators load a patch of this name with {} by themselves, and a stale one hides later edits; take "
             "another name, or --force",
             "gli emulatori caricano da soli una patch con il nome dell'immagine, e una vecchia nasconde le modifiche "
             "fatte dopo"},

    // Files that are no raw images.
    Sentence{"an ISO image, with 2048 bytes a sector; what lies around them on the disc can't be made up: read the "
             "disc again as a raw image of 2352 bytes a sector (BIN/CUE)",
             "è un'immagine ISO, con 2048 byte per settore; quello che sul disco sta intorno non si può inventare: "
             "rileggi il disco come immagine grezza di 2352 byte per settore (BIN/CUE)"},
    Sentence{"a compressed CHD image; unpack it with 'chdman extractcd -i FILE -o image.cue -ob image.bin'",
             "è un'immagine CHD compressa; estraila con «chdman extractcd -i FILE -o image.cue -ob image.bin»"},
    Sentence{"an image packed as ECM; unpack it with 'unecm FILE image.bin'",
             "è un'immagine compressa in ECM; estraila con «unecm FILE image.bin»"},
    Sentence{"an image packed as PBP; extract the disc from it as BIN/CUE first",
             "è un'immagine PBP; estraine prima il disco come BIN/CUE"},
    Sentence{"a zip archive; unpack it with 'unzip FILE' and take the raw image in it",
             "è un archivio zip; estrailo con «unzip FILE» e prendi l'immagine grezza che contiene"},
    Sentence{"a 7z archive; unpack it with '7z x FILE' and take the raw image in it",
             "è un archivio 7z; estrailo con «7z x FILE» e prendi l'immagine grezza che contiene"},
    Sentence{
        "an image with 2448 bytes a sector: the subchannels' 96 bytes lie behind each one; read the disc, or "
        "convert the image, without them (2352 bytes a sector)",
        "è un'immagine con 2448 byte per settore: dopo ognuno ci sono i 96 byte dei sottocanali; rileggi il disco, "
        "o converti l'immagine, senza (2352 byte per settore)"},
    Sentence{"its size, {} bytes, is no multiple of 2352: it is cut off, or no raw image",
             "la lunghezza, {} byte, non è un multiplo di 2352: è tagliata, o non è un'immagine grezza"},
    Sentence{"too short: it has {} sectors, and the game's tables reach to {}",
             "è troppo corta: ha {} settori, e le tabelle del gioco arrivano a {}"},

    // Files.
    Sentence{"a change beyond the image's end", "una modifica oltre la fine dell'immagine"},
    Sentence{"that is the image itself", "è l'immagine stessa"},
    Sentence{"that is a directory", "è una cartella"},
    Sentence{"that is no plain file", "non è un file normale"},
    Sentence{"a file of that name exists", "un file con quel nome c'è già"},
    Sentence{"it has more than {} MiB", "ha più di {} MiB"},
    Sentence{"this is no file", "non è un file"},
    Sentence{"another program has it open", "un altro programma lo sta usando"},
    Sentence{"this was opened to be read only", "è aperto solo per leggere"},
    Sentence{"this is no journal of a save; nothing can be saved while it lies there",
             "non è il giornale di un salvataggio; finché è lì non si può salvare"},
    Sentence{"this is the journal of another image's save; nothing was touched",
             "è il giornale del salvataggio di un'altra immagine; niente è stato toccato"},
};

}  // namespace

std::span<const Sentence> sentences() {
    return every_sentence;
}

}  // namespace kalco::app
