#include "app/tabs/club_links.h"

#include <QStringList>
#include <algorithm>

#include "app/text.h"
#include "disc/links.h"
#include "disc/runtime_error.h"

namespace kalco::app {
namespace {

/// More would not be read.
constexpr std::size_t sources_told = 4;

struct Source {
    QString name;
    int players = 0;
};

/// Where a linked player stands.
QString source_of(const frmKalco& form, PlayerCode code) {
    const auto place = player_of(code);
    if (!place) return QStringLiteral("???");
    const auto* const roster = std::get_if<RosterPlace>(&*place);
    if (roster == nullptr) return QStringLiteral("No-Contact");
    return qt_text(form.cboSeqSQ.items().at(roster->team.place()));
}

std::vector<Source> sources_of(const frmKalco& form, const Links& links) {
    std::vector<Source> sources;
    for (const PlayerCode code : links) {
        const QString name = source_of(form, code);
        auto found = std::find_if(sources.begin(), sources.end(), [&](const Source& one) { return one.name == name; });
        if (found == sources.end()) found = sources.insert(sources.end(), {name, 0});
        ++found->players;
    }
    std::stable_sort(sources.begin(), sources.end(),
                     [](const Source& one, const Source& other) { return one.players > other.players; });
    return sources;
}

std::string linked_name(const Image& image, PlayerCode code) {
    if (code == vardal_code) return std::string(vardal_name);
    const auto place = player_of(code);
    return place ? read_player_name(image, *place) : std::string();
}

std::string name_of(const Image& image, TeamRow row, int player) {
    const auto place = place_of(row, player);
    return place ? read_player_name(image, *place) : std::string();
}

}  // namespace

QString links_told(const frmKalco& form, Club club) {
    std::vector<Source> sources;
    try {
        sources = sources_of(form, read_links(form.image, club));
    } catch (const RuntimeError&) {
        return {};
    }
    QStringList parts;
    for (std::size_t i = 0; i < sources.size() && i < sources_told; ++i) {
        const QString number = sources.size() == 1 ? QString() : QStringLiteral(" (%1)").arg(sources[i].players);
        parts << sources[i].name + number;
    }
    if (sources.size() > sources_told) parts << QStringLiteral("altre %1").arg(sources.size() - sources_told);
    const QString name = qt_text(form.listDefault.item(club.value())).trimmed();
    return QStringLiteral("%1 gioca con: %2").arg(name, parts.join(QStringLiteral(", ")));
}

std::vector<std::string> player_names(const Image& image, TeamRow row, int players) {
    std::vector<std::string> names;
    try {
        if (const auto club = club_of(row)) {
            const Links links = read_links(image, *club);
            for (int i = 0; i < players; ++i)
                names.push_back(linked_name(image, links.at(static_cast<std::size_t>(i))));
        } else {
            for (int i = 0; i < players; ++i) names.push_back(name_of(image, row, i));
        }
    } catch (const RuntimeError&) {
        // The names that could be read stay.
    }
    return names;
}

}  // namespace kalco::app
