#include "editor/teamfiles/team_exchange.h"

#include "disc/player_record.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"
#include "disc/team_file.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

std::string line_of_player(frmKalco& form, int player) {
    if (player >= form.listApp.count()) throw RuntimeError(error::invalid_call);
    const auto groups = groups_of_entry(form.listApp.item(player));
    form.Text4.set_text(groups[0]);
    form.Text5.set_text(groups[1]);
    form.Text6.set_text(groups[2]);
    return exported_line(player + 1, groups, form.listDat.item(player));
}

void read_file(frmKalco& form, const std::string& path) {
    for (const std::string& line : read_lines(form.platform, path)) form.listAppIMP.add(line);
}

void show_names(frmKalco& form) {
    const TeamFileNames names = names_of_team_file(form.listAppIMP.items());
    form.txtSQ.set_text(names.long_name);
    form.txtSqShort.set_text(names.short_name);
    form.txtSqHEX.set_text(form.txtSQ.text());
    form.txtSqDec.set_text(form.txtSQ.text());
}

void import_player(frmKalco& form, int index) {
    const PlayerLine fields = split_player_line(form.listAppIMP.item(index), static_cast<std::size_t>(index));
    form.Text1.set_text(fields.words[0]);
    form.Text2.set_text(fields.words[1]);
    form.Text3.set_text(fields.words[2]);
    form.listDat.add(fields.imported_name());
    Conv_PARAM(form);
}

}  // namespace

std::string exported_team_path(const frmKalco& form) {
    return side_file_path(form.platform, directory::export_teams, form.txtSQ.text() + std::string(team_file_extension));
}

void cmdExp_Click(frmKalco& form) {
    if (form.cboSeqSQ.row() < 0) return;
    form.listApp.select(form.listDat.row());
    form.ListFile.clear();
    write_lines_made(form.platform, exported_team_path(form), [&form] {
        for (const std::string& line : team_file_head(form.txtSQ.text(), form.txtSqShort.text())) {
            form.ListFile.add(line);
        }
        for (int player = 0; player < roster_players; ++player) form.ListFile.add(line_of_player(form, player));
        return form.ListFile.items();
    });
    form.inform("File creato con successo");
}

void cmdImp_Click(frmKalco& form) {
    form.ImportPending = 1;
    form.listAppIMP.clear();
    const std::string path = form.platform.open_dialog(team_file_filter, form.platform.program_directory());
    // The flag stays raised: the next save writes what the lists show.
    if (path.empty()) return;
    read_file(form, path);
    show_names(form);
    for (std::size_t line = 0; line < head_lines; ++line) form.listAppIMP.remove(0);
    form.listDat.clear();
    form.listApp.clear();
    for (int index = 0; index < form.listAppIMP.count(); ++index) import_player(form, index);
    form.listDat.select(0);
}

void cmdImpML_Click(frmKalco& form) {
    cmdImp_Click(form);
    form.ImportPending = 0;
    form.ImportPendingML = 1;
    for (TextBox* name : {&form.txtSqHEX, &form.txtSqDec, &form.txtSqShort}) name->set_text({});
}

void Conv_PARAM(frmKalco& form) {
    for (TextBox* bytes : {&form.Text4, &form.Text5, &form.Text6}) bytes->set_text({});
    const std::array<std::string, 3> words{form.Text1.text(), form.Text2.text(), form.Text3.text()};
    const auto groups = groups_of_words(words);
    form.Text4.set_text(groups[0]);
    form.Text5.set_text(groups[1]);
    form.Text6.set_text(groups[2]);
    form.listApp.add(entry_of_groups(groups));
}

void connect_team_exchange(frmKalco& form) {
    form.slots.cmdImp = [&form] { cmdImp_Click(form); };
    form.cmdExp.click = [&form] { cmdExp_Click(form); };
    form.cmdImp.click = [&form] { cmdImp_Click(form); };
    form.cmdImpML.click = [&form] { cmdImpML_Click(form); };
}

}  // namespace kalco
