#include "ctl/check_report.h"

#include <array>
#include <nlohmann/json.hpp>

namespace kalco::ctl {
namespace {

using Json = nlohmann::ordered_json;

struct FieldName {
    bool CheckFields::*field;
    const char* text;
    const char* json;
};
constexpr std::array<FieldName, 3> fields{
    {{&CheckFields::edc, "EDC", "edc"}, {&CheckFields::p, "P", "p"}, {&CheckFields::q, "Q", "q"}}};

struct KindName {
    SectorKind kind;
    const char* text;
    const char* json;
};
constexpr std::array<KindName, sector_kinds> kinds{{{SectorKind::mode1, "Mode 1", "mode1"},
                                                    {SectorKind::form1, "Mode 2 Form 1", "form1"},
                                                    {SectorKind::form2, "Form 2", "form2"},
                                                    {SectorKind::other, "others", "other"}}};

ImagePos position(const check::BadSector& bad) {
    return bad.sector * sector_bytes + 1;
}

}  // namespace

std::string line_of(const check::BadSector& bad, bool json) {
    if (json) {
        Json names = Json::array();
        for (const FieldName& name : fields) {
            if (bad.bad.*name.field) names.push_back(name.json);
        }
        return Json{{"sector", bad.sector}, {"position", position(bad)}, {"bad", names}}.dump();
    }
    std::string names;
    for (const FieldName& name : fields) {
        if (bad.bad.*name.field) names.append(names.empty() ? "" : ", ").append(name.text);
    }
    return "sector " + std::to_string(bad.sector) + " (" + disc_time(bad.sector) + ") at " +
           std::to_string(position(bad)) + ": " + names;
}

std::string line_of(const check::Summary& summary, bool json) {
    const auto count = [&summary](const KindName& name) {
        return summary.of_kind[static_cast<std::size_t>(name.kind)];
    };
    if (json) {
        Json object{{"sectors", summary.sectors}, {"bad", summary.bad}};
        for (const KindName& name : kinds) object[name.json] = count(name);
        return object.dump();
    }
    std::string counts;
    for (const KindName& name : kinds) {
        counts.append(counts.empty() ? "" : ", ").append(std::to_string(count(name))).append(" ").append(name.text);
    }
    return std::to_string(summary.sectors) + " sectors (" + counts + "), " + std::to_string(summary.bad) + " bad";
}

}  // namespace kalco::ctl
