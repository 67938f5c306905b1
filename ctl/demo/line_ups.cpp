#include "ctl/demo/line_ups.h"

#include <string_view>
#include <utility>

#include "disc/formation.h"

namespace kalco::demo {
namespace {

/// How the labels on the pitch begin, and the role of a player who stands there.
constexpr std::array<std::pair<std::string_view, Role>, 8> roles_of_labels{{
    {"DC", Role::centre_back},
    {"SW", Role::centre_back},
    {"LIB", Role::centre_back},
    {"TER", Role::full_back},
    {"CC", Role::midfielder},
    {"CL", Role::wide_midfielder},
    {"CO", Role::playmaker},
    {"CA", Role::striker},
}};

Role role_at(std::string_view label) {
    for (const auto& [start, role] : roles_of_labels) {
        if (label.substr(0, start.size()) == start) return role;
    }
    return Role::winger;
}

}  // namespace

std::array<Role, outfield_players> line_up(const ModuleRow& module) {
    std::array<Role, outfield_players> roles{};
    for (std::size_t k = 0; k < roles.size(); ++k) roles[k] = role_at(role_label(module.roles.substr(2 * k, 2)));
    return roles;
}

}  // namespace kalco::demo
