#include "ctl/demo/line_ups.h"

namespace kalco::demo {

std::array<Role, 10> line_up(int module) {
    // By stored role value, in the order of the module catalogue.
    constexpr std::array<std::string_view, line_up_count> modules{
        "1122344556", "1122334456", "1122344566", "1122334466", "1122355677", "1122335677", "1113445556", "1113344556",
        "1113445566", "1113344566", "1113445677", "1113344677", "1112234456", "1112233446", "1112235566", "1112233566"};
    std::array<Role, 10> roles{};
    for (std::size_t k = 0; k < roles.size(); ++k) {
        roles[k] = static_cast<Role>(modules[static_cast<std::size_t>(module)][k] - '0');
    }
    return roles;
}

}  // namespace kalco::demo
