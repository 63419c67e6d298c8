#include "planner/plansettings.h"

#include <cmath>
#include <tuple>

#include "planner/planlimits.h"
#include "portdata/jsonmembers.h"

namespace tarvane {
namespace {

using nlohmann::json;

constexpr double mostmetres = 1000;
constexpr int unset = -1;  // a paper

/// A whole number within the limit, also of an enumeration; another leaves the value, as null does.
template <typename Whole>
void take(const JsonMembers& members, const char* name, PlanLimit limit, Whole& value) {
    const json* member = members.at(name);
    if (!member || member->is_null()) return;
    const bool good = member->is_number_integer() && limit.holds(member->get<double>());
    if (good) value = static_cast<Whole>(member->get<int>());
    members.whole() = members.whole() && good;
}

std::optional<double> metresof(const json& value) {
    if (!value.is_number()) return std::nullopt;
    const double number = value.get<double>();
    return std::abs(number) <= mostmetres ? std::optional(number) : std::nullopt;
}

/// Null where it isn't set.
void take(const JsonMembers& members, const char* name, std::optional<double>& value) {
    const json* member = members.at(name);
    if (!member) return;
    value = metresof(*member);
    members.whole() = members.whole() && (value || member->is_null());
}

/// Every member of an object that has one a port; `take` says whether it is what it should be.
template <typename Take>
void takeports(const JsonMembers& members, const char* name, Take take) {
    const json* all = members.at(name);
    if (!all) return;
    members.whole() = members.whole() && all->is_object();
    if (!all->is_object()) return;
    for (const auto& [port, value] : all->items())
        if (!take(port, value)) members.whole() = false;
}

void takebottoms(const JsonMembers& members, std::map<std::string, double>& bottoms) {
    takeports(members, "bottoms", [&](const std::string& port, const json& value) {
        const auto bottom = metresof(value);
        if (bottom) bottoms[port] = *bottom;
        return bottom.has_value();
    });
}

void takebridges(const JsonMembers& members, std::map<std::string, Bridge>& bridges) {
    takeports(members, "bridges", [&](const std::string& port, const json& value) {
        const JsonMembers bridge(value, members.whole());
        std::optional<double> height, level;
        take(bridge, "height", height);
        take(bridge, "level", level);
        if (height && level) bridges[port] = {*height, *level};
        return height && level;
    });
}

void takesettings(const json& object, PlanSettings& settings) {
    const JsonMembers members(object, settings.state.whole);
    const auto upto = [](auto last) { return PlanLimit{0, static_cast<double>(last)}; };
    members.take("openatstart", settings.openatstart);
    members.take("night", settings.night);
    take(members, "days", planlimits::days, settings.days);
    take(members, "clock", upto(ClockChoice::computer), settings.clock);
    int paper = unset;
    take(members, "paper", {unset, static_cast<double>(Paper::letter)}, paper);
    if (paper != unset) settings.paper = static_cast<Paper>(paper);
    members.take("asked", settings.asked);
    members.take("twilight", settings.twilight);
    take(members, "daylight", upto(Daylight::whole), settings.daylight);
    take(members, "leastminutes", planlimits::leastminutes, settings.leastminutes);
    take(members, "weekdays", PlanLimit{1, everyweekday}, settings.weekdays);
    take(members, "draught", settings.draught);
    take(members, "clearance", settings.clearance);
    take(members, "airdraught", settings.airdraught);
    takebottoms(members, settings.bottoms);
    takebridges(members, settings.bridges);
    members.take("untold", settings.state.untold);
}

json orlack(const std::optional<double>& value) {
    return value ? json(*value) : json(nullptr);
}

json bridgesof(const PlanSettings& settings) {
    json bridges = json::object();
    for (const auto& [port, bridge] : settings.bridges)
        bridges[port] = {{"height", bridge.height}, {"level", bridge.level}};
    return bridges;
}

template <typename Value>
void takechange(const Value& before, const Value& now, Value& stands) {
    if (now != before) stands = now;
}

/// Port by port.
template <typename Value>
void takechange(const std::map<std::string, Value>& before, const std::map<std::string, Value>& now,
                std::map<std::string, Value>& stands) {
    for (const auto& [port, value] : before)
        if (!now.contains(port)) stands.erase(port);
    for (const auto& [port, value] : now)
        if (const auto was = before.find(port); was == before.end() || was->second != value) stands[port] = value;
}

constexpr auto eachsetting =
    std::tuple(&PlanSettings::openatstart, &PlanSettings::night, &PlanSettings::days, &PlanSettings::clock,
               &PlanSettings::paper, &PlanSettings::asked, &PlanSettings::twilight, &PlanSettings::daylight,
               &PlanSettings::leastminutes, &PlanSettings::weekdays, &PlanSettings::draught, &PlanSettings::clearance,
               &PlanSettings::airdraught, &PlanSettings::bottoms, &PlanSettings::bridges);

KeptText textof(const PlanSettings& settings) {
    return [settings](const std::string& untold) {
        json object{{"openatstart", settings.openatstart},
                    {"night", settings.night},
                    {"days", settings.days},
                    {"clock", static_cast<int>(settings.clock)},
                    {"paper", settings.paper ? static_cast<int>(*settings.paper) : unset},
                    {"asked", settings.asked},
                    {"twilight", settings.twilight},
                    {"daylight", static_cast<int>(settings.daylight)},
                    {"leastminutes", settings.leastminutes},
                    {"weekdays", settings.weekdays},
                    {"draught", orlack(settings.draught)},
                    {"clearance", orlack(settings.clearance)},
                    {"airdraught", orlack(settings.airdraught)},
                    {"bottoms", settings.bottoms},
                    {"bridges", bridgesof(settings)}};
        if (!untold.empty()) object["untold"] = untold;
        constexpr int indent = 2;
        return object.dump(indent, ' ', false, json::error_handler_t::replace) + "\n";
    };
}

}  // namespace

std::string plansettingspath(const ProgramFolders& folders) {
    return folders.configfolder() + "/Planner.json";
}

PlanSettings readplansettings(const std::string& path) {
    PlanSettings settings;
    const std::string text = readkept(path, settings.state);
    if (!text.empty()) takesettings(json::parse(text, nullptr, false), settings);
    return settings;
}

WriteOutcome changeplansettings(const std::string& path, const PlanSettings& before, const PlanSettings& now) {
    PlanSettings stands = readplansettings(path);
    std::apply([&](auto... member) { (takechange(before.*member, now.*member, stands.*member), ...); }, eachsetting);
    return writekept(path, stands.state, textof(stands));
}

std::string tellplansettings(const std::string& path) {
    const PlanSettings settings = readplansettings(path);
    return tellkept(path, settings.state, "the planner begins as at its first start", textof(settings));
}

}  // namespace tarvane
