#include "editor/kickers/kickers_file.h"

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"
#include "editor/kickers/set_pieces.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

constexpr auto kickers_filter = "*.kcp|*.kcp";
constexpr std::string_view kickers_extension = ".kcp";

/// False when the file could not be handled; the failure has been told.
template <typename Steps>
bool with_file_route(frmKalco& form, Steps steps) {
    try {
        steps();
        return true;
    } catch (const RuntimeError& failure) {
        form.platform.message(std::string(failure.text()), Icon::stop, Buttons::ok);
        return false;
    }
}

}  // namespace

std::string kickers_file_path(const frmKalco& form) {
    const std::string name = std::string(trim(form.txtAtt.text())).append(kickers_extension);
    return side_file_path(form.platform, directory::kickers, name);
}

void cmdExpKick_Click(frmKalco& form) {
    if (form.cboSquadra.row() < 0) return;
    const bool written = with_file_route(form, [&form] {
        make_side_directory(form.platform, directory::kickers);
        write_lines(form.platform, kickers_file_path(form), {form.txtHex.text()});
    });
    if (written) form.inform("File creato con successo");
}

void cmdImpKick_Click(frmKalco& form) {
    const TeamRow row(form.cboSquadra.row());
    if (!row.exists()) return;
    const std::string path = form.platform.open_dialog(kickers_filter, form.platform.program_directory());
    if (path.empty()) return;
    std::string line;
    if (!with_file_route(form, [&] { line = read_first_line(form.platform, path); })) return;
    // A longer line overwrites the records behind this one.
    write_set_pieces(form.image, row, bytes_of_digits(line));
    form.tell_saved("Importazione calci piazzati: " + form.cboSquadra.text());
    form.reopen_image();
    cboSquadra_Click(form);
}

void connect_kickers_file(frmKalco& form) {
    form.cmdExpKick.click = [&form] { cmdExpKick_Click(form); };
    form.cmdImpKick.click = [&form] { cmdImpKick_Click(form); };
}

}  // namespace kalco
