// Any bytes as a file of shirt numbers, imported into a nation, a club or the default team.

#include "disc/numbers.h"
#include "fuzz/desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t image_bytes = 2'100'000;
    fuzz::Bytes bytes(data, size);
    const TeamRow row(bytes.next() % TeamRow::count);
    static fuzz::Desk desk(tab::numbers);
    desk.begin({}, image_bytes);
    frmKalco& form = desk.form;
    const int failure = fuzz::attempt([&] {
        user::pick(form, form.cboSQNum, row.value());
        desk.choose_file(bytes.rest());
        desk.click(form.cmdImpNum);
        desk.click(form.cmdExpNum);
    });
    fuzz::require(failure == 0, "no error leaves the import");
    fuzz::require(desk.disc.size() == image_bytes, "the image keeps its size");
    fuzz::require(desk.first_written() >= number_field(row).position(), "nothing in front of the record changes");
    return 0;
}
