// Any bytes as a file of bars and formation: the first one chooses the team and the answer, the others are the file.
// The import ends with a message or a run-time error and writes nothing beyond the team's two records.

#include <cstddef>
#include <cstdint>
#include <fstream>

#include "formation_desk.h"

namespace {

using namespace kalco;

void forget(std::string& tables, const Pieces& field) {
    for (const Piece& piece : field) {
        tables.replace(fuzzing::FormationDesk::place(piece.position), static_cast<std::size_t>(piece.bytes),
                       static_cast<std::size_t>(piece.bytes), '\0');
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    static fuzzing::FormationDesk desk;
    desk.begin();
    const int row = data[0] % default_team_row.value();
    constexpr Answer answers[] = {Answer::yes, Answer::no, Answer::cancel};
    const Answer answer = answers[data[0] / default_team_row.value()];

    const std::string path = (desk.home / "any.bfr").string();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data) + 1, static_cast<std::streamsize>(size - 1));
    std::string before = desk.tables();
    user::pick(desk.form, desk.form.cboSeqSQ2, row);
    desk.platform.choices.push_back(path);
    desk.platform.answers.push_back(answer);
    int failure = 0;
    try {
        desk.click(desk.form.cmdImport);
    } catch (const RuntimeError& error) {
        failure = error.number();
    }
    fuzzing::require(failure == (size == 1 ? error::past_end_of_file : 0), "only an empty file fails");

    std::string after = desk.tables();
    fuzzing::require(after.size() == before.size(), "the image keeps its size");
    for (std::string* tables : {&before, &after}) {
        if (answer != Answer::cancel) forget(*tables, bars_field(TeamRow(row)));
        if (answer != Answer::no) forget(*tables, formation_field(TeamRow(row)));
    }
    fuzzing::require(before == after, "only the team's records change");
    if (failure == 0) desk.click(desk.form.cmdExport);
    return 0;
}
