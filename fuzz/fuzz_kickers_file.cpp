// Any bytes as a file of set pieces: half as many bytes as the first line has digits are written, and no others.

#include <algorithm>

#include "disc/set_pieces.h"
#include "fuzz/desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t image_bytes = 2'400'000;
    fuzz::Bytes bytes(data, size);
    const TeamRow row(bytes.next() % TeamRow::count);
    const std::string file = bytes.rest();
    static fuzz::Desk desk(tab::kickers);
    desk.begin("\3", image_bytes);
    frmKalco& form = desk.form;
    const int failure = fuzz::attempt([&] {
        user::pick(form, form.cboSquadra, row.value());
        desk.choose_file(file);
        desk.click(form.cmdImpKick);
        desk.click(form.cmdExpKick);
    });
    fuzz::require(failure == 0, "every failure is told in a message");
    const std::size_t written = std::min(file.find_first_of("\r\n"), file.size()) / 2;
    const Piece place{set_piece_field(row).position(), static_cast<int>(written)};
    fuzz::require(desk.wrote_within({&place, 1}), "only as many bytes as the line has pairs change");
    return 0;
}
