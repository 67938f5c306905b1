// Any bytes as a team file: opened on both sides of the transfers, then imported over a team and saved.

#include "disc/roster.h"
#include "fuzz/desk.h"

using namespace kalco;

namespace {

void open_both_sides(fuzz::Desk& desk, const std::string& file, int player) {
    frmKalco& form = desk.form;
    user::select_tab(form, tab::transfers);
    desk.choose_file(file);
    desk.click(form.cmdTeam1);
    desk.choose_file(file);
    desk.click(form.cmdteam2);
    fuzz::require(form.ListVende.count() == roster_players || form.ListVende.count() == 0, "a side is whole or empty");
    if (form.ListVende.count() < roster_players || form.ListCompra.count() < roster_players) return;
    desk.click(form.OpRec);
    user::pick(form, form.ListVende, player);
    user::pick(form, form.ListCompra, roster_players - 1 - player);
    desk.click(form.cmdTransfer);
    desk.click(form.cmdSave2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t image_bytes = 5'700'000;
    fuzz::Bytes bytes(data, size);
    const int team = bytes.next() % roster_team_count;
    const std::string file = bytes.rest();
    static fuzz::Desk desk(tab::players);
    desk.begin({}, image_bytes);
    frmKalco& form = desk.form;
    const int failure = fuzz::attempt([&] { open_both_sides(desk, file, team % roster_players); });
    fuzz::require(failure == 0, "no error leaves the transfers");

    fuzz::attempt([&] {
        user::select_tab(form, tab::players);
        user::pick(form, form.cboSeqSQ, team);
        desk.choose_file(file);
        desk.click(form.cmdImp);
        desk.click(form.cmdSaveCar);
    });
    fuzz::require(desk.disc.size() == image_bytes, "the image keeps its size");
    return 0;
}
