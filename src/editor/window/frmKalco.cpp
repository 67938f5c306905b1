#include "editor/window/frmKalco.h"

#include <utility>

namespace kalco {
namespace {

constexpr auto save_taken_back =
    "Un salvataggio interrotto \xE8 stato annullato: l'immagine \xE8 come era prima di quel salvataggio";
constexpr auto saves_refused =
    "Accanto all'immagine c'\xE8 un file .kalco-journal che non \xE8 di un suo salvataggio, o che non si pu\xF2 "
    "togliere: finch\xE9 resta l\xEC non si pu\xF2 salvare";
constexpr auto journal_of_another_image =
    "Il file .kalco-journal accanto all'immagine appartiene a un'altra immagine: niente \xE8 stato toccato e "
    "l'immagine non viene aperta";

}  // namespace

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

void frmKalco::open_image() {
    if (history_path_ != ImagePath) history.forget();
    history_path_ = ImagePath;
    try {
        image.open(ImagePath);
    } catch (const JournalOfAnotherImage&) {
        platform.message(journal_of_another_image, Icon::stop, Buttons::ok);
        throw;
    }
    if (image.found() == Beside::interrupted_save) inform(save_taken_back);
    if (image.found() == Beside::foreign_file) platform.message(saves_refused, Icon::warning, Buttons::ok);
}

void frmKalco::reopen_image() {
    image.close();
    open_image();
}

void frmKalco::inform(const std::string& text) {
    platform.message(text, Icon::information, Buttons::ok);
}

void frmKalco::tell_saved(std::string_view what, const std::string& text) {
    image.commit(what);
    inform(text);
}

}  // namespace kalco
