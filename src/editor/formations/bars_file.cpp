#include "editor/formations/bars_file.h"

#include "disc/bars.h"
#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/formation.h"
#include "editor/formations/bars.h"
#include "editor/formations/pitch.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

constexpr auto bars_filter = "*.bfr|*.bfr";
constexpr std::string_view bars_extension = ".bfr";
constexpr auto question =
    "S\xEC = Importa barre & formazione\r\nNo = Importa solo Barre\r\nAnnulla = Importa solo formazione";

std::string bar_digits(const frmKalco& form) {
    std::string digits;
    for (int i = 1; i <= bar_count; ++i) {
        const std::string& caption = form.pbFZ(i).caption();
        digits += hex_number(caption.empty() ? 0 : number_of(caption), 2);
    }
    return digits;
}

void import_bars(frmKalco& form, TeamRow row, std::string_view line) {
    write_bars(form.image, row, bytes_of_whole_pairs(left(line, 2 * bar_count)));
    form.listApp2.clear();
    Read_Bar(form);
}

/// What the answer to the question takes from the file, in the words of the history.
std::string imported_parts(Answer answer) {
    if (answer == Answer::cancel) return "Importazione formazione: ";
    return answer == Answer::no ? "Importazione barre: " : "Importazione formazione e barre: ";
}

TeamRow chosen_row(const frmKalco& form) {
    return TeamRow(form.cboSeqSQ2.row());
}

}  // namespace

std::string bars_file_path(const frmKalco& form) {
    return side_file_path(form.platform, directory::formations,
                          upper(form.txtSqHEX2.text()) + std::string(bars_extension));
}

void cmdExport_Click(frmKalco& form) {
    if (!has_bars(chosen_row(form))) return;
    make_side_directory(form.platform, directory::formations);
    write_lines_made(form.platform, bars_file_path(form),
                     [&form] { return std::vector{bar_digits(form) + formation_digits(form)}; });
    form.inform("File creato con successo");
}

void cmdImport_Click(frmKalco& form) {
    const TeamRow row = chosen_row(form);
    if (!has_bars(row)) return;
    const std::string path = form.platform.open_dialog(bars_filter, form.platform.program_directory());
    if (path.empty()) return;
    const std::string line = read_first_line(form.platform, path);
    const Answer answer = form.platform.message(question, Icon::warning, Buttons::yes_no_cancel);
    // Cancel is not a way out: it takes the formation alone.
    if (answer != Answer::cancel) import_bars(form, row, line);
    if (answer != Answer::no) write_formation(form.image, row, bytes_of_whole_pairs(right(line, 2 * formation_bytes)));
    form.tell_saved(imported_parts(answer) + form.cboSeqSQ2.text());
    form.reopen_image();
    cboSeqSQ2_Click(form);
}

void connect_bars_file(frmKalco& form) {
    form.cmdExport.click = [&form] { cmdExport_Click(form); };
    form.cmdImport.click = [&form] { cmdImport_Click(form); };
}

}  // namespace kalco
