#include "editor/window/shell.h"

#include "disc/runtime_error.h"
#include "editor/window/general.h"
#include "editor/window/side_file.h"
#include "editor/window/tabs.h"

namespace kalco {
namespace {

constexpr auto image_filter = "Image CDRWIN (*.bin)|*.bin| Image CloneCD (*.img)|*.img| All Files (*.*)|*.*";
constexpr int name_limit = 10;
constexpr int cost_limit = 3;

void make_export_directory(frmKalco& form) {
    try {
        make_side_directory(form.platform, directory::export_teams);
    } catch (const RuntimeError&) {
        form.platform.miss_directory(side_directory(form.platform, directory::export_teams));
        throw;
    }
}

void prepare_first_tab(frmKalco& form) {
    make_export_directory(form);
    form.SSTab1.select(tab::players);
    form.txtName.set_max_length(name_limit);
    form.txtML.set_max_length(cost_limit);
    form.ImportPending = 0;
}

/// The error route of start-up and cmdOpen.
template <typename Steps>
void with_opening_route(frmKalco& form, Steps steps) {
    try {
        steps();
    } catch (const RuntimeError& failure) {
        if (failure.number() != error::permission_denied) return;
        form.platform.message("Accesso negato, Immagine CD gi\xE0 aperta", Icon::stop, Buttons::ok);
        form.ended = Ending::denied;
    }
}

}  // namespace

void read_lookup_lists(frmKalco& form) {
    raise(form.slots.NAMES_GIOC_NAZ);
    raise(form.slots.NAME_NO_CONTACT);
    raise(form.slots.CONTR_NAME_NC);
}

void Form_Load(frmKalco& form) {
    with_opening_route(form, [&form] {
        form.ImagePath = form.platform.open_dialog(image_filter, form.platform.program_directory());
        if (form.ImagePath.empty()) {
            form.ended = Ending::cancelled;
            return;
        }
        form.open_image();
        prepare_first_tab(form);
        read_lookup_lists(form);
    });
}

void cmdOpen_Click(frmKalco& form) {
    with_opening_route(form, [&form] {
        form.listApp2.clear();
        form.ImagePath = form.platform.open_dialog(image_filter, form.platform.program_directory());
        // The old image stays open, but its path is lost: the next save's reopening fails.
        if (form.ImagePath.empty()) return;
        form.reopen_image();
        prepare_first_tab(form);
        cmdNew_Click(form);
        form.Frame3.set_enabled(false);
        read_lookup_lists(form);
    });
}

void cmdNew_Click(frmKalco& form) {
    form.lblPos.set_caption("1");
    for (ListBox* list : {&form.listDat, &form.listAppIMP, &form.ListFile, &form.listApp}) list->clear();
    ClearControls(form);
    form.txtEta.set_text("15");
    form.txtAlt.set_text("155");
    clear_pictures(form);
}

void Clear_Frame(frmKalco& form) {
    for (ListBox* list : {&form.listAppIMP, &form.ListFile, &form.listApp}) list->clear();
    form.txtSQ.set_text({});
    form.txtEta.set_text("15");
    form.txtAlt.set_text("155");
    form.txtName.set_text({});
    for (ComboBox* combo : {&form.cboRuolo, &form.cboPelle, &form.cboFisico, &form.cboCapelli, &form.cboColCap,
                            &form.cboStlBar, &form.cboColBar, &form.cboScarpa, &form.cboOutSide, &form.cboPiede}) {
        combo->set_text({});
    }
    for (ComboBox* combo : skill_combos(form)) combo->set_text({});
    clear_pictures(form);
}

void connect_window(frmKalco& form) {
    form.cmdOpen.click = [&form] { cmdOpen_Click(form); };
    form.cmdNew.click = [&form] { cmdNew_Click(form); };
    form.SSTab1.change = [&form] { SSTab1_Click(form); };
}

}  // namespace kalco
