// Any bytes as a file of set pieces: half as many bytes as the first line has digits are written, and no others.

#include <algorithm>

#include "editor/kickers/set_pieces.h"
#include "fuzz/editor_desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const int row = bytes.next() % 87;
    const std::string file = bytes.rest();
    static const std::string image(2400000, '\x03');
    static fuzz::EditorDesk desk(image);
    desk.disc.bytes = image;
    frmKalco& form = desk.form;
    const int failure = fuzz::EditorDesk::attempt([&] {
        user::select_tab(form, tab::kickers);
        user::pick(form, form.cboSquadra, row);
        desk.choose_file(file);
        user::click(form, form.cmdImpKick);
        user::click(form, form.cmdExpKick);
    });
    fuzz::require(failure == 0);
    const std::size_t start = static_cast<std::size_t>(set_piece_field(TeamRow(row)).position() - 1);
    const std::size_t written = std::min(file.find_first_of("\r\n"), file.size()) / 2;
    std::string expected = image.substr(0, start);
    fuzz::require(desk.disc.bytes.compare(0, start, expected) == 0);
    if (start + written < image.size()) {
        fuzz::require(desk.disc.bytes.compare(start + written, std::string::npos, image, start + written,
                                              std::string::npos) == 0);
    }
    return 0;
}
