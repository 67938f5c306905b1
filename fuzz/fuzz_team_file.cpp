// Any bytes as a team file: imported over a team and saved, then opened on both sides of the transfers.

#include "fuzz/editor_desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const int team = bytes.next() % 63;
    const std::string file = bytes.rest();
    static const std::string image(5700000, '\0');

    fuzz::EditorDesk transfers(image.substr(0, 1));
    const int failure = fuzz::EditorDesk::attempt([&] {
        frmKalco& form = transfers.form;
        user::select_tab(form, tab::transfers);
        transfers.choose_file(file);
        user::click(form, form.cmdTeam1);
        transfers.choose_file(file);
        user::click(form, form.cmdteam2);
        if (form.ListVende.count() == 23 && form.ListCompra.count() == 23) {
            user::click(form, form.OpRec);
            user::pick(form, form.ListVende, team % 23);
            user::pick(form, form.ListCompra, size % 23);
            user::click(form, form.cmdTransfer);
        }
        fuzz::require(form.ListVende.count() == 23 || form.ListVende.count() == 0);
    });
    fuzz::require(failure == 0);

    static fuzz::EditorDesk desk(image);
    frmKalco& form = desk.form;
    fuzz::EditorDesk::attempt([&] {
        user::pick(form, form.cboSeqSQ, team);
        desk.choose_file(file);
        user::click(form, form.cmdImp);
        user::click(form, form.cmdSaveCar);
    });
    fuzz::require(desk.disc.bytes.size() == image.size());
    return 0;
}
