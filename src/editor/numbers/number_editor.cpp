#include "editor/numbers/number_editor.h"

#include <algorithm>
#include <optional>

#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/numbers.h"
#include "disc/players.h"
#include "disc/runtime_error.h"
#include "disc/team_names.h"
#include "editor/players/linked_names.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

constexpr auto numbers_filter = "*.num|*.num";
constexpr std::string_view numbers_extension = ".num";
constexpr std::string_view nation_prefix = "NAZ_";
constexpr std::string_view other_prefix = "ML_";
constexpr int entry_length = 2;

std::string packed(TeamRow row, const std::vector<std::string>& entries) {
    return is_nation(row) ? pack_national_numbers(entries) : pack_club_numbers(entries);
}

void pack(frmKalco& form) {
    if (is_nation(TeamRow(form.cboSQNum.row()))) {
        NUM_SHIRT_HEX(form);
    } else {
        NUM_SHIRT_HEX_ML(form);
    }
}

/// The cell of an entry; none for one that is no number or has no cell.
NumberCell* cell_of(frmKalco& form, const std::string& entry) {
    if (!is_number(entry)) return nullptr;
    const std::int64_t number = number_of(entry);
    if (number < form.lblNum.first() || number > form.lblNum.last()) return nullptr;
    return &form.lblNum(static_cast<int>(number));
}

void set_cell(frmKalco& form, const std::string& entry, bool in_use) {
    if (NumberCell* const cell = cell_of(form, entry)) cell->set_in_use(in_use);
}

void mark_entries(frmKalco& form) {
    for (const std::string& entry : form.ListNum.items()) set_cell(form, entry, true);
}

void select_number_text(frmKalco& form) {
    form.set_focus(form.txtNumMod);
    form.txtNumMod.select(0, entry_length);
}

std::vector<std::string> read_entries(const frmKalco& form, TeamRow row) {
    const std::string record = form.image.read(number_field(row));
    return is_nation(row) ? decode_national_numbers(record) : decode_club_numbers(record);
}

bool has_number_without_cell(const std::vector<std::string>& entries) {
    return std::any_of(entries.begin(), entries.end(), [](const std::string& entry) { return entry.size() > 2; });
}

void list_names(frmKalco& form, TeamRow row) {
    if (const auto club = club_of(row)) {
        form.ListName.assign(list_of_linked_names(form, *club));
    } else {
        READ_NAMES(form);
    }
}

/// The entries after a change, with the number swapped when a team mate wears it.
struct NumberChange {
    std::vector<std::string> entries;
    std::string old_entry;
    bool swapped = false;
};

NumberChange change_number(std::vector<std::string> entries, int row, const std::string& number) {
    NumberChange change;
    const auto place = static_cast<std::size_t>(row);
    change.old_entry = entries[place];
    const auto wearer = std::find(entries.begin(), entries.end(), number);
    change.swapped = wearer != entries.end();
    if (change.swapped) *wearer = change.old_entry;
    entries[place] = number;
    change.entries = std::move(entries);
    return change;
}

bool can_be_packed(TeamRow row, const std::vector<std::string>& entries) {
    try {
        packed(row, entries);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void show_change(frmKalco& form, int row, const NumberChange& change) {
    for (std::size_t i = 0; i < change.entries.size(); ++i) {
        if (form.ListNum.items()[i] != change.entries[i]) form.ListNum.replace(static_cast<int>(i), change.entries[i]);
    }
    if (change.swapped) {
        mark_entries(form);
    } else {
        set_cell(form, form.ListNum.item(row), true);
        set_cell(form, change.old_entry, false);
    }
}

/// The steps of an import up to the reopening. False when no file was chosen.
bool import_numbers(frmKalco& form) {
    const std::string path = form.platform.open_dialog(numbers_filter, form.platform.program_directory());
    if (path.empty()) return false;
    std::string line = read_first_line(form.platform, path);
    for (int i = 0; i < form.ListNum.count(); ++i) {
        form.ListNum.replace(i, left(line, entry_length));
        pack(form);
        SAVE_Numeri(form);
        line.erase(0, entry_length);
    }
    form.tell_saved("Importazione numeri: " + form.cboSQNum.text());
    form.reopen_image();
    return true;
}

/// What an import wrote before it stopped stays.
void keep_what_was_written(frmKalco& form) {
    try {
        form.image.commit("Importazione numeri interrotta: " + form.cboSQNum.text());
    } catch (const RuntimeError&) {
        // The error route of the import covers this too.
    }
}

}  // namespace

void NAME_NATIONAL(frmKalco& form) {
    form.txtSqSel.set_text({});
    form.txtSqSel.set_text(read_full_width_name(form.image, team_of(TeamRow(form.cboSQNum.row()))));
}

void READ_NAMES(frmKalco& form) {
    const TeamRow row(form.cboSQNum.row());
    form.ListName.clear();
    for (int player = 0; player < roster_players; ++player) {
        form.ListName.add(read_player_name(form.image, *place_of(row, player)));
    }
}

void cboSQNum_Click(frmKalco& form) {
    const TeamRow row(form.cboSQNum.row());
    if (!row.exists()) return;
    const std::vector<std::string> numbers = read_entries(form, row);
    if (has_number_without_cell(numbers)) {
        form.cboSQNum.select(-1);
        return;
    }
    form.cmdModNum.set_enabled(false);
    form.cmdSaveNum.set_enabled(false);
    form.cmdImpNum.set_enabled(true);
    form.cmdExpNum.set_enabled(true);
    form.txtNumMod.set_text({});
    NAME_NATIONAL(form);
    list_names(form, row);
    form.ListNum.clear();
    for (const std::string& number : numbers) form.ListNum.add(number);
    for (int cell = form.lblNum.first(); cell <= form.lblNum.last(); ++cell) form.lblNum(cell).set_in_use(false);
    mark_entries(form);
}

void ListName_Click(frmKalco& form) {
    const int row = form.ListName.row();
    if (row < 0 || row >= form.ListNum.count()) return;
    form.cmdModNum.set_enabled(true);
    form.cmdSaveNum.set_enabled(true);
    form.ListNum.select(row);
    form.txtNumMod.set_text(form.ListNum.item(row));
    select_number_text(form);
}

void ListNum_Click(frmKalco& form) {
    form.ListName.select_silently(form.ListNum.row());
    ListName_Click(form);
}

void txtNumMod_LostFocus(frmKalco& form) {
    const std::string& text = form.txtNumMod.text();
    if (text.size() == 1) form.txtNumMod.set_text('0' + text);
}

void NUM_SHIRT_HEX(frmKalco& form) {
    form.PackedNumberText = pack_national_numbers(form.ListNum.items());
}

void NUM_SHIRT_HEX_ML(frmKalco& form) {
    form.PackedNumberText = pack_club_numbers(form.ListNum.items());
}

void cmdModNum_Click(frmKalco& form) {
    const TeamRow team(form.cboSQNum.row());
    const int row = form.ListName.row();
    const std::string number = form.txtNumMod.text();
    if (!team.exists() || row < 0 || row >= form.ListNum.count() || !is_number(number)) return;
    form.ListNum.select(row);
    if (is_nation(team) && number_of(number) > most_national_number) {
        form.platform.message("Inserire un numero compreso fra 1 e 32", Icon::warning, Buttons::ok);
        select_number_text(form);
        return;
    }
    if (cell_of(form, number) == nullptr) return;
    const NumberChange change = change_number(form.ListNum.items(), row, number);
    if (!can_be_packed(team, change.entries)) return;
    show_change(form, row, change);
    pack(form);
    form.ListNum.select(row);
    form.ListName.select(row);
}

void SAVE_Numeri(frmKalco& form) {
    write_numbers(form.image, TeamRow(form.cboSQNum.row()), bytes_of_digits(form.PackedNumberText));
}

void cmdSaveNum_Click(frmKalco& form) {
    if (form.cboSQNum.row() < 0) return;
    SAVE_Numeri(form);
    form.tell_saved("Numeri: " + form.cboSQNum.text());
    form.reopen_image();
}

std::string numbers_file_path(const frmKalco& form) {
    std::string name(is_nation(TeamRow(form.cboSQNum.row())) ? nation_prefix : other_prefix);
    name += upper(form.txtSqSel.text());
    name += numbers_extension;
    return side_file_path(form.platform, directory::numbers, name);
}

void cmdExpNum_Click(frmKalco& form) {
    if (form.cboSQNum.row() < 0) return;
    make_side_directory(form.platform, directory::numbers);
    std::string line;
    for (const std::string& entry : form.ListNum.items()) line += entry;
    write_lines(form.platform, numbers_file_path(form), {line});
    form.inform("File creato con successo");
}

void cmdImpNum_Click(frmKalco& form) {
    if (form.cboSQNum.row() < 0) return;
    bool again = false;
    try {
        again = import_numbers(form);
    } catch (const RuntimeError& failure) {
        keep_what_was_written(form);
        if (failure.number() != error::resource_not_found) return;
        form.platform.message("Impossibile importare numeri superiori\r\n      al 32 per le squadre nazionali",
                              Icon::stop, Buttons::ok);
        form.ListNum.clear();
        again = true;
    }
    if (again) cboSQNum_Click(form);
}

void connect_numbers(frmKalco& form) {
    form.cboSQNum.set_items(short_team_rows());
    form.cboSQNum.click = [&form] { cboSQNum_Click(form); };
    form.ListName.click = [&form] { ListName_Click(form); };
    form.ListNum.click = [&form] { ListNum_Click(form); };
    form.txtNumMod.lost_focus = [&form] { txtNumMod_LostFocus(form); };
    form.txtNumMod.key_filter = [](char character) { return character >= '0' && character <= '9'; };
    form.cmdModNum.click = [&form] { cmdModNum_Click(form); };
    form.cmdSaveNum.click = [&form] { cmdSaveNum_Click(form); };
    form.cmdExpNum.click = [&form] { cmdExpNum_Click(form); };
    form.cmdImpNum.click = [&form] { cmdImpNum_Click(form); };
}

}  // namespace kalco
