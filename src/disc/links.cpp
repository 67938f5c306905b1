#include "disc/links.h"

#include "disc/codec/hextext.h"

namespace kalco {

void LinKML(TeamRow row, ImagePos& position1, ImagePos& position2) {
    const auto club = club_of(row);
    if (!club) return;
    const Pieces field = link_table_field(*club);
    position1 = field.position();
    if (field.split()) position2 = field[1].position;
}

Links read_links(const Image& image, Club club) {
    const std::string bytes = image.read(link_table_field(club));
    Links links;
    for (std::size_t slot = 0; slot < links.size(); ++slot) {
        links[slot] = {static_cast<std::uint8_t>(bytes[2 * slot]), static_cast<std::uint8_t>(bytes[2 * slot + 1])};
    }
    return links;
}

std::string bytes_of_links(const Links& links) {
    std::string bytes;
    for (const PlayerCode code : links) bytes += {static_cast<char>(code.team), static_cast<char>(code.number)};
    return bytes;
}

void write_links(Image& image, Club club, const Links& links) {
    image.write(link_table_field(club), bytes_of_links(links));
}

void write_link_table(Image& image, Club club, std::string_view digits) {
    image.write(link_table_field(club), bytes_of_digits(digits));
}

Links links_to_team(Team team) {
    Links links;
    for (std::size_t number = 0; number < links.size(); ++number) {
        links[number] = {static_cast<std::uint8_t>(team.value()), static_cast<std::uint8_t>(number)};
    }
    return links;
}

}  // namespace kalco
