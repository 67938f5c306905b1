// Any bytes as a file of shirt numbers, imported into a nation, a club or the default team.

#include "fuzz/editor_desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const int row = bytes.next() % 87;
    static const std::string image(2100000, '\0');
    static fuzz::EditorDesk desk(image);
    desk.disc.bytes = image;
    frmKalco& form = desk.form;
    const int failure = fuzz::EditorDesk::attempt([&] {
        user::select_tab(form, tab::numbers);
        user::pick(form, form.cboSQNum, row);
        desk.choose_file(bytes.rest());
        user::click(form, form.cmdImpNum);
        user::click(form, form.cmdExpNum);
    });
    fuzz::require(failure == 0);
    fuzz::require(desk.disc.bytes.size() == image.size());
    return 0;
}
