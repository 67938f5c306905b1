#pragma once

#include <compare>
#include <cstddef>
#include <optional>

/// The four ways of counting teams and players. Each is a type of its own, so that one can't be passed for another.
namespace kalco {

/// A 0-based place in a list of `size` things. A list without a chosen row gives -1: such an index exists nowhere, and
/// exists() is how to tell.
template <typename Tag, int size>
class Index {
public:
    static constexpr int count = size;

    constexpr Index() = default;
    constexpr explicit Index(int value) : value_(value) {}

    constexpr int value() const { return value_; }
    /// For arrays that have an element for each.
    constexpr std::size_t place() const { return static_cast<std::size_t>(value_); }
    constexpr bool exists() const { return value_ >= 0 && value_ < size; }

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes what the compiler writes here for a pointer
    friend constexpr auto operator<=>(const Index&, const Index&) = default;
    constexpr Index& operator++() {
        ++value_;
        return *this;
    }

private:
    int value_ = 0;
};

/// A team of the disc: 54 nations, 9 all-star and classic teams, 32 clubs, and the list of the Master League's default
/// players. The rows of cboSeqSQ.
using Team = Index<struct TeamTag, 96>;
/// A row of the lists without the all-star and classic teams: the nations, the clubs, the default team.
using TeamRow = Index<struct TeamRowTag, 87>;
/// A club of the Master League.
using Club = Index<struct ClubTag, 32>;
/// A row of the pool, the players outside all rosters.
using PoolRow = Index<struct PoolRowTag, 462>;

/// All values of an index, for a loop.
template <typename I>
class Every {
public:
    class Iterator {
    public:
        constexpr explicit Iterator(I index) : index_(index) {}
        constexpr I operator*() const { return index_; }
        constexpr Iterator& operator++() {
            ++index_;
            return *this;
        }
        friend constexpr bool operator==(const Iterator&, const Iterator&) = default;

    private:
        I index_;
    };
    constexpr Iterator begin() const { return Iterator(I(0)); }
    constexpr Iterator end() const { return Iterator(I(I::count)); }
};

template <typename I>
constexpr Every<I> every() {
    return {};
}

inline constexpr int nation_count = 54;
/// Teams with a roster of 23 of their own: nations, all-star and classic teams.
inline constexpr int roster_team_count = 63;

inline constexpr Team last_roster_team{roster_team_count - 1};
inline constexpr Team first_club_team{roster_team_count};
inline constexpr Team default_list{Team::count - 1};
inline constexpr TeamRow default_team_row{TeamRow::count - 1};

constexpr bool is_nation(Team team) {
    return team.value() >= 0 && team.value() < nation_count;
}
constexpr bool has_roster(Team team) {
    return team.value() >= 0 && team.value() < roster_team_count;
}
constexpr bool is_club(Team team) {
    return team >= first_club_team && team < default_list;
}
constexpr bool is_nation(TeamRow row) {
    return row.value() >= 0 && row.value() < nation_count;
}
constexpr bool is_club(TeamRow row) {
    return row.value() >= nation_count && row < default_team_row;
}

constexpr Team team_of(Club club) {
    return Team(first_club_team.value() + club.value());
}
/// The default team's row gives the default list.
constexpr Team team_of(TeamRow row) {
    return Team(row.value() < nation_count ? row.value() : row.value() + roster_team_count - nation_count);
}
constexpr TeamRow row_of(Club club) {
    return TeamRow(nation_count + club.value());
}
/// None for an all-star or classic team, which the lists of 87 rows lack.
constexpr std::optional<TeamRow> row_of(Team team) {
    if (!team.exists() || (has_roster(team) && !is_nation(team))) return std::nullopt;
    return TeamRow(is_nation(team) ? team.value() : team.value() - (roster_team_count - nation_count));
}
constexpr std::optional<Club> club_of(Team team) {
    if (!is_club(team)) return std::nullopt;
    return Club(team.value() - first_club_team.value());
}
constexpr std::optional<Club> club_of(TeamRow row) {
    if (!is_club(row)) return std::nullopt;
    return Club(row.value() - nation_count);
}

}  // namespace kalco
