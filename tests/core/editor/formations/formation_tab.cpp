#include "core/editor/formations/formation_tab.h"

#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "disc/formation.h"

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
    for (int row = 0; row < 87; ++row) put(image, printed_formation(row), record_of_row(row).bytes());
    for (int row = 0; row < 86; ++row) {
        std::string bars;
        for (int i = 0; i < 5; ++i) bars += static_cast<char>((row * 7 + i * 3) % 11);
        put(image, printed_bars(row), bars);
    }
    return image;
}

}  // namespace

Stretches printed_formation(int row) {
    if (row == 32) return {{2304661, 20}, {2304985, 10}};
    if (row == 86) return {{2306857, 30}};
    if (row <= 31) return {{2303701 + 30 * row, 30}};
    if (row <= 53) return {{2304995 + 30 * (row - 33), 30}};
    return {{2305895 + 30 * (row - 54), 30}};
}

Stretches printed_bars(int row) {
    if (row == 3) return {{2328200, 1}, {2328505, 4}};
    if (row <= 2) return {{2328185 + 5 * row, 5}};
    if (row <= 53) return {{2328509 + 5 * (row - 4), 5}};
    return {{2328804 + 5 * (row - 54), 5}};
}

Stretches places_of(const Pieces& field) {
    Stretches places;
    for (const Piece& piece : field) places.push_back({piece.position, piece.bytes});
    return places;
}

ImagePos user_byte_position(UserOffset offset) {
    ImagePos position = 25;
    for (; offset >= 2048; offset -= 2048) position += 2352;
    return position + offset;
}

const std::string& filled_image() {
    static const std::string image = make_image();
    return image;
}

std::string Record::bytes() const {
    std::string text;
    for (const auto* column : {&roles, &x, &y}) {
        for (const int value : *column) text += static_cast<char>(value);
    }
    return text;
}

Record record_of_row(int row) {
    Record record{};
    for (std::size_t i = 0; i < 10; ++i) {
        const int k = static_cast<int>(i);
        record.roles[i] = 2 + (row + 3 * k) % 20;
        record.x[i] = 1 + (row + 5 * k) % 48;
        record.y[i] = 1 + (2 * row + 11 * k) % 110;
    }
    return record;
}

std::string bytes_of(const std::string& hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 2 <= hex.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

std::string hex_of(const std::string& bytes) {
    std::string hex;
    for (const char byte : bytes) {
        std::array<char, 3> pair{};
        std::snprintf(pair.data(), pair.size(), "%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        hex += pair.data();
    }
    return hex;
}

void put(std::string& image, ImagePos position, const std::string& bytes) {
    image.replace(static_cast<std::size_t>(position - 1), bytes.size(), bytes);
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
    for (const Stretch& place : places) {
        bytes += image.substr(static_cast<std::size_t>(place.position - 1), static_cast<std::size_t>(place.bytes));
    }
    return bytes;
}

::testing::AssertionResult same_bytes(const std::string& actual, const std::string& expected) {
    if (actual == expected) return ::testing::AssertionSuccess();
    const auto positions = test::differences(expected, actual);
    auto result = ::testing::AssertionFailure() << positions.size() << " bytes differ, the first at";
    for (std::size_t i = 0; i < positions.size() && i < 8; ++i) result << ' ' << positions[i];
    return result;
}

int error_of(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
    return 0;
}

Home::Home() {
    static std::atomic<int> count{0};
    const auto name = "kalco-formations-" + std::to_string(::getpid()) + '-' + std::to_string(count++);
    const auto path = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path);
    path_ = path.string();
}

Home::~Home() {
    std::error_code failure;
    std::filesystem::remove_all(path_, failure);
}

std::string Home::write(const std::string& name, const std::string& contents) const {
    std::ofstream(path_ + '/' + name, std::ios::binary) << contents;
    return path_ + '/' + name;
}

bool Home::has(const std::string& name) const {
    return std::filesystem::exists(path_ + '/' + name);
}

std::string Home::read(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(path_ + '/' + name, std::ios::binary).rdbuf();
    return text.str();
}

FormationTab::FormationTab(std::string image) : editor(platform, test::opener_of(disc)) {
    disc.bytes = std::move(image);
    platform.home = home.path();
    platform.choices.emplace_back("disc.bin");
    user::start(form);
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

std::vector<std::string> FormationTab::told() {
    std::vector<std::string> texts;
    for (const auto& message : platform.messages) texts.push_back(message.text);
    platform.messages.clear();
    return texts;
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

void expect_record_shown(const FormationTab& tab, const Record& record) {
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

std::string image_with(int row, const Record& record) {
    std::string image = filled_image();
    put(image, printed_formation(row), record.bytes());
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
