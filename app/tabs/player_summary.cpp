#include "app/tabs/player_summary.h"

#include <algorithm>

#include "app/text.h"
#include "disc/codec/decimal.h"
#include "disc/player_codes.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"
#include "disc/team_file.h"

namespace kalco::app {
namespace {

void add_fact(PlayerSummary& summary, std::string_view caption, const std::optional<std::string>& value) {
    if (value) summary.facts << qt_text(caption) + QStringLiteral(": ") + qt_text(*value);
}

PlayerSummary summary_of_line(const PlayerLine& line) {
    Words words{};
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = number_of(line.words[i]);
    const DecodedPlayer player = decode_player(words);
    PlayerSummary summary;
    summary.name = qt_text(line.name);
    if (player.role) summary.facts << qt_text(*player.role);
    add_fact(summary, out_of_role_bits.caption, player.out_of_role);
    add_fact(summary, age_bits.caption, player.age);
    add_fact(summary, height_bits.caption, player.height);
    add_fact(summary, "Piede", player.foot);
    for (std::size_t i = 0; i < skill_count; ++i) {
        if (player.skills[i])
            summary.skills.push_back({qt_text(skill_bits[i].caption), qt_text(*player.skills[i]).toInt()});
    }
    return summary;
}

}  // namespace

PlayerSummary summary_of(const ListBox& lines, int row) {
    if (row < 0) return {};
    const auto index = static_cast<std::size_t>(row);
    try {
        return summary_of_line(split_player_line(lines.item(static_cast<int>(index + head_lines)), index));
    } catch (const RuntimeError&) {
        return {};
    }
}

std::function<RowNote(int row)> pool_notes(const frmKalco& form) {
    std::vector<QString> nations;
    for (const std::string& code : pool_codes()) {
        const auto nation = nationality_of(std::string_view(code).substr(0, 2));
        nations.push_back(nation ? qt_text(*nation) : QString());
    }
    return [&form, nations](int row) {
        RowNote note;
        if (row >= 0 && row < static_cast<int>(nations.size())) note.note = nations[static_cast<std::size_t>(row)];
        note.muted = std::find(DefaultSlots.begin(), DefaultSlots.end(), PoolRow(row)) != DefaultSlots.end();
        const auto& picks = form.ListAppIDX.items();
        note.marked = std::find(picks.begin(), picks.end(), std::to_string(row)) != picks.end();
        if (note.muted) note.note += QStringLiteral(" · Default");
        if (note.marked) note.note += QStringLiteral(" ✓");
        return note;
    };
}

}  // namespace kalco::app
