// Any bytes as an image: every tab reads and saves, or ends with a numbered error. The first bytes choose what is done;
// the others are the whole image, or stand in it over and over, so that every table of the disc holds some of them.

#include "disc/indexes.h"
#include "fuzz/desk.h"

using namespace kalco;

namespace {

struct Choice {
    int tab;
    int team;
    int player;
};

void use_the_tab(fuzz::Desk& desk, const Choice& choice) {
    frmKalco& form = desk.form;
    const int row = choice.team % TeamRow::count;
    user::select_tab(form, choice.tab);
    switch (choice.tab) {
        case tab::players:
            user::pick(form, form.cboSeqSQ, choice.team % Team::count);
            if (form.listDat.count() > 0) user::pick(form, form.listDat, choice.player % form.listDat.count());
            desk.click(form.cmdSaveCar);
            desk.click(form.cmdName);
            break;
        case tab::league:
            user::pick(form, form.cboSqNC, choice.team % Club::count);
            user::double_click(form, form.listNC, choice.player);
            user::pick(form, form.listDefault, choice.team % Club::count);
            user::pick(form, form.listSQLink, choice.player % roster_team_count);
            desk.click(form.cmdLink);
            break;
        case tab::kickers:
            user::pick(form, form.cboSquadra, row);
            desk.click(form.cmdCrea);
            break;
        case tab::formations:
            user::pick(form, form.cboSeqSQ2, row);
            desk.click(form.lblGioc(first_marker + choice.player % 10));
            desk.click(form.cmdRight);
            desk.click(form.cmdPiu(1 + choice.player % 5));
            desk.click(form.cmdSalva);
            desk.click(form.cmdModifica);
            break;
        case tab::numbers:
            user::pick(form, form.cboSQNum, row);
            if (form.ListName.count() > 0) user::pick(form, form.ListName, choice.player % form.ListName.count());
            user::type(form, form.txtNumMod, std::to_string(choice.player));
            desk.click(form.cmdModNum);
            desk.click(form.cmdSaveNum);
            break;
        default: break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t image_bytes = 5'700'000;
    fuzz::Bytes bytes(data, size);
    const Choice choice{bytes.next() % 6, bytes.next(), bytes.next()};
    const bool truncated = bytes.next() % 2 == 0;
    std::string image = bytes.rest();
    const std::size_t length = truncated ? image.size() : image_bytes;

    static fuzz::Desk desk(tab::players);
    desk.begin(std::move(image), length);
    desk.platform.choices.emplace_back("disc.bin");
    fuzz::attempt([] { desk.click(desk.form.cmdOpen); });
    fuzz::attempt([&] { use_the_tab(desk, choice); });
    fuzz::require(desk.disc.held, "the image stays open");
    return 0;
}
