// Any bytes as a file of bars and formation: the first one chooses the team and the answer, the others are the file.
// The import ends with a message or a run-time error and writes nothing beyond the team's two records.

#include "disc/bars.h"
#include "disc/formation.h"
#include "fuzz/desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const int first = bytes.next();
    const TeamRow row(first % bar_teams);
    constexpr Answer answers[] = {Answer::yes, Answer::no, Answer::cancel};
    const Answer answer = answers[first / bar_teams];
    const std::string file = bytes.rest();

    static fuzz::FormationDesk desk;
    desk.begin();
    user::pick(desk.form, desk.form.cboSeqSQ2, row.value());
    desk.choose_file(file);
    desk.platform.answers.push_back(answer);
    const int failure = fuzz::attempt([&] { desk.click(desk.form.cmdImport); });
    fuzz::require(failure == (file.empty() ? error::past_end_of_file : 0), "only an empty file fails");

    std::vector<Piece> places;
    for (const Piece& piece : bars_field(row)) places.push_back(piece);
    for (const Piece& piece : formation_field(row)) places.push_back(piece);
    if (answer == Answer::no) places.resize(bars_field(row).size());
    if (answer == Answer::cancel)
        places.erase(places.begin(), places.begin() + static_cast<int>(bars_field(row).size()));
    fuzz::require(desk.wrote_within(places), "only the team's records change");
    if (failure == 0) desk.click(desk.form.cmdExport);
    return 0;
}
