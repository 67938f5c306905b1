#include "editor/window/frmKalco.h"

#include <utility>

namespace kalco {

frmKalco::frmKalco(Platform& services, StorageOpener opener)
    : SSTab1(registry, "SSTab1",
             {"Squadre && Giocatori", "&Links Master League", "&Kickers && Capitani", "Trasferimenti",
              "&Formazioni && Barre", "Numeri Maglia"}),
      platform(services),
      image(std::move(opener)) {
    Frame3.set_enabled(false);
    Label34.set_visible(false);
    lblPos.set_visible(false);

    listNC.set_enabled(false);
    cmdImpNC.set_enabled(false);
    cmdSaveNC.set_enabled(false);

    fraKick.set_enabled(false);

    cmdteam2.set_enabled(false);
    ListCompra.set_enabled(false);
    cmdTransfer.set_enabled(false);
    cmdSave1.set_enabled(false);
    cmdSave2.set_enabled(false);
    fraScambio.set_enabled(false);
}

bool frmKalco::set_focus(Control& target) {
    if (focused_ == &target) return true;
    Control* const before = std::exchange(focused_, &target);
    // A control that the focus is taken back from before it arrived has nothing to lose.
    if (before != nullptr && before != arriving_ && before->lost_focus) {
        Control* const outer = std::exchange(arriving_, &target);
        before->lost_focus();
        arriving_ = outer;
    }
    if (focused_ != &target) return false;
    raise(target.got_focus);
    return focused_ == &target;
}

void frmKalco::reopen_image() {
    image.close();
    image.open(ImagePath);
}

void frmKalco::inform(const std::string& text) {
    platform.message(text, Icon::information, Buttons::ok);
}

}  // namespace kalco
