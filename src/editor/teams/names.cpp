#include "editor/teams/names.h"

#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"
#include "disc/teams.h"

namespace kalco {
namespace {

/// The last club's entry is cleared with one byte more than it has.
constexpr int last_club_cleared_bytes = 11;

int whole_bytes(const Pieces& pieces, std::size_t piece) {
    return pieces[piece].bytes;
}

/// What is written over the old full-width name before the new one: nothing unless the name gets shorter.
std::string full_width_fill(const frmKalco& form, std::string fill) {
    const std::string& old_name = form.old_names.full_width;
    if (trim(form.txtSqHEX.text()).size() < trim(old_name).size()) fill = zero_bytes(2 * old_name.size());
    return fill;
}

void write_split_full_width_name(Image& image, std::string_view fill, std::string_view coded) {
    const auto first_bytes = static_cast<std::size_t>(whole_bytes(split_full_width_name, 0));
    const auto second_bytes = static_cast<std::size_t>(whole_bytes(split_full_width_name, 1));
    const ImagePos second = split_full_width_name[1].position;
    image.write(split_full_width_name[0].position, left(coded, first_bytes));
    image.write(second, right(fill, second_bytes));
    if (coded.size() < first_bytes) throw RuntimeError(error::invalid_call);
    image.write(second, coded.substr(first_bytes));
}

void write_full_width_name(frmKalco& form, int team) {
    std::string fill;
    if (team == last_club) {
        fill = zero_bytes(last_club_cleared_bytes);
        form.image.write(Off_Name_HEX(team)->position, fill);
    }
    fill = full_width_fill(form, fill);
    const auto entry = Off_Name_HEX(team);
    if (!entry && team != split_full_width_team) return;
    const std::string encoded = form.letters.encode(form.txtSqHEX.text());
    const std::string_view coded = trim(encoded);
    if (team == split_full_width_team) {
        write_split_full_width_name(form.image, fill, coded);
    } else {
        form.image.write(entry->position, fill);
        form.image.write(entry->position, coded);
    }
}

void write_table_name(Image& image, const NameEntry& entry, std::string_view name) {
    const auto length = static_cast<std::size_t>(entry.length);
    image.write(entry.position, zero_bytes(length));
    image.write(entry.position, left(name, length));
}

void write_split_t2_name(Image& image, std::string_view name) {
    std::size_t place = 1;
    for (const Piece& piece : split_t2_name) {
        const auto length = static_cast<std::size_t>(piece.bytes);
        write_table_name(image, {piece.position, piece.bytes}, mid(name, place, length));
        place += length;
    }
}

void write_table_names(Image& image, int team, std::string_view name) {
    enum Table { t1, t2, t3, t4, t5, t6 };
    const NameEntries entries = Call_Name(team);
    for (const Table table : {t1, t2, t3, t5, t4, t6}) {
        if (table == t2 && team == split_t2_team) {
            write_split_t2_name(image, name);
        } else if (entries[table]) {
            write_table_name(image, *entries[table], name);
        }
    }
}

}  // namespace

void SAVE_NAME_SQ(frmKalco& form) {
    const int team = form.cboSeqSQ.row();
    form.image.write(short_name_position(team), upper(form.txtSqShort.text()));
    write_full_width_name(form, team);
    write_table_names(form.image, team, upper(form.txtSqDec.text()));
    form.txtSqShort.set_text(upper(form.txtSqShort.text()));
    form.txtSqDec.set_text(upper(form.txtSqDec.text()));
}

void cmdName_Click(frmKalco& form) {
    if (form.cboSeqSQ.row() < 0) return;
    SAVE_NAME_SQ(form);
    form.tell_saved("Nomi squadra: " + form.cboSeqSQ.text(), "Nome squadra modificato");
    form.reopen_image();
}

int full_width_letters(int team) {
    if (team == split_full_width_team) return split_full_width_name.bytes() / 2;
    const auto entry = Off_Name_HEX(team);
    if (!entry) return 0;
    const int half = entry->length / 2;
    return entry->length % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

void txtSqHEX_Change(frmKalco& form) {
    form.txtSqHEX.set_max_length(full_width_letters(form.cboSeqSQ.row()));
}

void txtSqShort_Change(frmKalco& form) {
    form.txtSqShort.set_max_length(short_name_bytes);
}

void connect_teams(frmKalco& form) {
    form.cboSeqSQ.set_items(all_team_rows());
    form.slots.team_name = [&form](int team) { return read_table_name(form.image, team); };
    form.txtSqHEX.change = [&form] { txtSqHEX_Change(form); };
    form.txtSqShort.change = [&form] { txtSqShort_Change(form); };
    form.cmdName.click = [&form] { cmdName_Click(form); };
}

}  // namespace kalco
