#include "editor/league/club_names.h"

#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "editor/window/general.h"

namespace kalco {
namespace {

constexpr int last_club_index = club_count - 1;
/// The last club's entry is cleared with one byte more than it has: that is the end of the table.
constexpr std::size_t last_club_cleared_bytes = 11;

/// What a renaming writes.
struct ClubNames {
    std::string short_name;
    std::string long_name;  ///< Becomes the full-width name, cut to what the entry holds.
    std::string copy_text;  ///< Becomes the six copies.
};

void write_copies(Image& image, int club, const std::string& text) {
    const auto copies = Call_Name_ML(club);
    for (const std::size_t copy : {0U, 1U, 2U, 4U, 3U, 5U}) {
        const auto capacity = static_cast<std::size_t>(copies[copy].length);
        image.write(copies[copy].position, zero_bytes(capacity));
        image.write(copies[copy].position, left(text, capacity));
    }
}

/// `fill_of` gives the clearing bytes from the cut name and the letters that the entry holds.
template <typename Fill>
void rename_club(frmKalco& form, int club, const ClubNames& names, Fill fill_of) {
    form.image.write(club_short_name_position(club), upper(names.short_name));
    ImagePos position = 0;
    int length = 0;
    Off_Name_ML(club, position, length);
    if (club == last_club_index) form.image.write(position, zero_bytes(last_club_cleared_bytes));
    const auto letters = static_cast<std::size_t>(length / 2);
    const std::string cut(trim(left(names.long_name, letters)));
    const std::string coded = form.letters.encode(cut);
    form.image.write(position, fill_of(cut, letters));
    form.image.write(position, coded);
    write_copies(form.image, club, upper(names.copy_text));
}

bool is_club_index(int club) {
    return club >= 0 && club < club_count;
}

}  // namespace

void Off_Name_ML(int club, ImagePos& position, int& length) {
    if (!is_club_index(club)) return;
    const auto entry = Off_Name_HEX(first_club + club);
    position = entry->position;
    length = entry->length;
}

std::array<NameEntry, name_table_count> Call_Name_ML(int club) {
    std::array<NameEntry, name_table_count> copies{};
    if (!is_club_index(club)) return copies;
    const NameEntries entries = Call_Name(first_club + club);
    for (std::size_t copy = 0; copy < copies.size(); ++copy) copies[copy] = *entries[copy];
    return copies;
}

void NameSqML(frmKalco& form) {
    ImagePos position = 0;
    int length = 0;
    Off_Name_ML(form.cboSqNC.row(), position, length);
    form.lblNameML.set_caption(decode_letters(form.image.read(position, length)));
}

void SAVE_NAME_ML(frmKalco& form) {
    const std::string& old_name = form.lblNameML.caption();
    const ClubNames names{form.txtSqShort.text(), form.txtSqHEX.text(), form.txtSqDec.text()};
    rename_club(form, form.cboSqNC.row(), names, [&old_name](const std::string& cut, std::size_t) {
        return cut.size() < old_name.size() ? zero_bytes(2 * old_name.size()) : std::string();
    });
}

void SAVE_NAME_ML2(frmKalco& form) {
    std::string long_name = form.txtNmLgML.text();
    ProperCase(long_name);
    const ClubNames names{form.txtNmShML.text(), long_name, form.txtNmLgML.text()};
    rename_club(form, form.listDefault.row(), names,
                [](const std::string&, std::size_t letters) { return zero_bytes(2 * letters); });
}

}  // namespace kalco
