// Any bytes as an image: every tab reads and saves, or ends with a numbered error. The first bytes choose what is done.

#include "fuzz/editor_desk.h"

using namespace kalco;

namespace {

/// The bytes over and over, so that every table of the disc holds some of them.
std::string spread(const std::string& bytes) {
    constexpr std::size_t image_size = 5700000;
    static std::string image(image_size, '\0');
    if (bytes.empty()) return {};
    // A stretch around each table is enough, and much faster than the whole image.
    for (const std::size_t start :
         {387000U, 1010000U, 1880000U, 2000000U, 2179000U, 2300000U, 2824000U, 3067000U, 4820000U, 5650000U}) {
        for (std::size_t i = 0; i < 32000; ++i) image[start + i] = bytes[(start + i) % bytes.size()];
    }
    return image;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const int tab = bytes.next() % 6;
    const int team = bytes.next();
    const int player = bytes.next();
    const bool truncated = bytes.next() % 2 == 0;
    fuzz::EditorDesk desk(truncated ? bytes.rest() : spread(bytes.rest()));
    frmKalco& form = desk.form;
    fuzz::EditorDesk::attempt([&] {
        user::select_tab(form, tab);
        const int row = team % 87;
        switch (tab) {
            case tab::players:
                user::pick(form, form.cboSeqSQ, team % 96);
                if (form.listDat.count() > 0) user::pick(form, form.listDat, player % form.listDat.count());
                user::click(form, form.cmdSaveCar);
                user::click(form, form.cmdName);
                break;
            case tab::league:
                user::pick(form, form.cboSqNC, team % 32);
                user::double_click(form, form.listNC, player);
                user::pick(form, form.listDefault, team % 32);
                user::pick(form, form.listSQLink, player % 63);
                user::click(form, form.cmdLink);
                break;
            case tab::kickers:
                user::pick(form, form.cboSquadra, row);
                user::click(form, form.cmdCrea);
                break;
            case tab::formations:
                user::pick(form, form.cboSeqSQ2, row);
                user::click(form, form.lblGioc(first_marker + player % 10));
                user::click(form, form.cmdRight);
                user::click(form, form.cmdPiu(1 + player % 5));
                user::click(form, form.cmdSalva);
                user::click(form, form.cmdModifica);
                break;
            case tab::numbers:
                user::pick(form, form.cboSQNum, row);
                if (form.ListName.count() > 0) user::pick(form, form.ListName, player % form.ListName.count());
                user::type(form, form.txtNumMod, std::to_string(player));
                user::click(form, form.cmdModNum);
                user::click(form, form.cmdSaveNum);
                break;
            default: break;
        }
    });
    fuzz::EditorDesk::attempt([&] { user::close(form); });
    fuzz::require(!desk.disc.held);
    return 0;
}
