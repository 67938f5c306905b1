#include "core/editor/formations/formation_tab.h"

#include <cstdint>
#include <utility>

namespace kalco::formation_tests {
namespace {

constexpr std::size_t image_bytes = 2'400'000;

std::string full_width(const std::string& letters) {
    std::string bytes;
    for (const char c : letters) {
        bytes += '\x82';
        bytes += static_cast<char>(c >= 'a' ? c - 'a' + 0x81 : c - 'A' + 0x60);
    }
    return bytes;
}

std::string make_image() {
    std::string image(image_bytes, '\0');
    std::uint32_t state = 12345;
    for (char& byte : image) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(0x21 + (state >> 16) % 0xDF);
    }
    put(image, 2003981, full_width("Ireland"));
    put(image, 2003937, full_width("England"));
    put(image, 2003621, full_width("Po"));
    put(image, 2003929, full_width("rto"));
    put(image, 2003269, full_width("Egypt"));
    put(image, 2003549, full_width("Italy"));
    put(image, 2002681, full_width("AstonVi"));
    put(image, 2002317, full_width("BocaJ"));
    for (int row = 0; row < 87; ++row) put(image, printed_formation(row), pack_formation(record_of_row(row)));
    for (int row = 0; row < 86; ++row) {
        std::string bars;
        for (int i = 0; i < 5; ++i) bars += static_cast<char>((row * 7 + i * 3) % 11);
        put(image, printed_bars(row), bars);
    }
    return image;
}

}  // namespace

ImagePos user_byte_position(UserOffset offset) {
    ImagePos position = 25;
    for (; offset >= 2048; offset -= 2048) position += 2352;
    return position + offset;
}

const std::string& filled_image() {
    static const std::string image = make_image();
    return image;
}

Formation record_of_row(int row) {
    Formation record;
    for (std::size_t i = 0; i < 10; ++i) {
        const int k = static_cast<int>(i);
        record.roles[i] = static_cast<std::uint8_t>(2 + (row + 3 * k) % 20);
        record.x[i] = static_cast<std::uint8_t>(1 + (row + 5 * k) % 48);
        record.y[i] = static_cast<std::uint8_t>(1 + (2 * row + 11 * k) % 110);
    }
    return record;
}

void put(std::string& image, const Stretches& places, const std::string& bytes) {
    std::size_t done = 0;
    for (std::size_t i = 0; i < places.size() && done < bytes.size(); ++i) {
        const bool last = i + 1 == places.size();
        const std::size_t count = last ? std::string::npos : static_cast<std::size_t>(places[i].bytes);
        const std::string piece = bytes.substr(done, count);
        put(image, places[i].position, piece);
        done += piece.size();
    }
}

std::string bytes_at(const std::string& image, const Stretches& places) {
    std::string bytes;
    for (const Piece& place : places) {
        bytes += image.substr(static_cast<std::size_t>(place.position - 1), static_cast<std::size_t>(place.bytes));
    }
    return bytes;
}

FormationTab::FormationTab(const std::string& image) : EditorRun(image) {
    select_tab(tab::formations);
}

int FormationTab::press_until_refused(CommandButton& arrow) {
    for (int moves = 0; moves < 1000; ++moves) {
        const PitchMarker& marker = form.lblGioc(form.SelectedMarker);
        const auto before = std::pair(marker.left(), marker.top());
        click(arrow);
        if (before == std::pair(marker.left(), marker.top())) return moves;
    }
    ADD_FAILURE() << arrow.name() << " never refuses";
    return -1;
}

std::string FormationTab::captions() const {
    std::string texts;
    for (int k = first_marker; k <= last_marker; ++k)
        texts += (k > first_marker ? "," : "") + form.lblGioc(k).caption();
    return texts;
}

std::string FormationTab::bar_values() const {
    std::string texts;
    for (int i = 1; i <= 5; ++i) texts += (i > 1 ? " " : "") + std::to_string(form.pbFZ(i).value());
    return texts;
}

std::string FormationTab::bar_captions() const {
    std::string texts;
    for (int i = 1; i <= 5; ++i) texts += (i > 1 ? " " : "") + form.pbFZ(i).caption();
    return texts;
}

std::size_t at(int marker) {
    return static_cast<std::size_t>(marker - first_marker);
}

void expect_record_shown(const FormationTab& tab, const Formation& record) {
    for (int k = first_marker; k <= last_marker; ++k) {
        const PitchMarker& marker = tab.form.lblGioc(k);
        const int code = record.roles[at(k)];
        const bool known = code >= 0x02 && code <= 0x15;
        EXPECT_EQ(marker.caption(), known ? role_labels[static_cast<std::size_t>(code - 2)] : "???") << k;
        EXPECT_EQ(tab.form.FormationX[static_cast<std::size_t>(k)], record.x[at(k)]) << k;
        EXPECT_EQ(tab.form.FormationY[static_cast<std::size_t>(k)], record.y[at(k)]) << k;
        EXPECT_EQ(marker.left(), screen_left(record.x[at(k)])) << k;
        EXPECT_EQ(marker.top(), screen_top(record.y[at(k)])) << k;
    }
}

int selected_marker(const frmKalco& form) {
    int found = 0;
    for (int k = first_marker; k <= last_marker; ++k) {
        if (!form.lblGioc(k).selected()) continue;
        EXPECT_EQ(found, 0);
        found = k;
    }
    return found;
}

std::string image_with(int row, const Formation& record) {
    std::string image = filled_image();
    put(image, printed_formation(row), pack_formation(record));
    return image;
}

std::string image_after(std::string image, int row, const std::string& text) {
    if (row != 32) {
        put(image, printed_formation(row)[0].position, text);
        return image;
    }
    put(image, 2304661, text.substr(0, 20));
    put(image, 2304985, text.size() > 10 ? text.substr(text.size() - 10) : text);
    return image;
}

}  // namespace kalco::formation_tests
