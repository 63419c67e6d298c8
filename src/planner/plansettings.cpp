#include "planner/plansettings.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "planner/planlimits.h"

namespace tarvane {
namespace {

using nlohmann::json;

constexpr double mostmetres = 1000;

void take(const json& object, const char* name, bool& value) {
    if (const auto at = object.find(name); at != object.end() && at->is_boolean()) value = at->get<bool>();
}

/// A whole number from `least` to `most`, also of an enumeration.
template <typename Whole>
void take(const json& object, const char* name, int least, int most, Whole& value) {
    const auto at = object.find(name);
    if (at == object.end() || !at->is_number_integer()) return;
    const auto number = at->get<std::int64_t>();
    if (number >= least && number <= most) value = static_cast<Whole>(number);
}

void take(const json& object, const char* name, PlanLimit limit, int& value) {
    take(object, name, static_cast<int>(limit.least), static_cast<int>(limit.most), value);
}

std::optional<double> metresof(const json& value) {
    if (!value.is_number()) return std::nullopt;
    const double number = value.get<double>();
    return std::abs(number) <= mostmetres ? std::optional(number) : std::nullopt;
}

void take(const json& object, const char* name, std::optional<double>& value) {
    if (const auto at = object.find(name); at != object.end()) value = metresof(*at);
}

void takebridges(const json& object, std::map<std::string, Bridge>& bridges) {
    const auto at = object.find("bridges");
    if (at == object.end() || !at->is_object()) return;
    for (const auto& [port, value] : at->items()) {
        std::optional<double> height, level;
        if (!value.is_object()) continue;
        take(value, "height", height);
        take(value, "level", level);
        if (height && level) bridges[port] = {*height, *level};
    }
}

json bridgesof(const PlanSettings& settings) {
    json bridges = json::object();
    for (const auto& [port, bridge] : settings.bridges)
        bridges[port] = {{"height", bridge.height}, {"level", bridge.level}};
    return bridges;
}

json orlack(const std::optional<double>& value) {
    return value ? json(*value) : json(nullptr);
}

}  // namespace

std::string plansettingspath(const ProgramFolders& folders) {
    return folders.configfolder() + "/Planner.json";
}

PlanSettings readplansettings(const std::string& path) {
    PlanSettings settings;
    const json object = json::parse(wholetext(path), nullptr, false);
    if (!object.is_object()) return settings;
    take(object, "openatstart", settings.openatstart);
    take(object, "night", settings.night);
    take(object, "days", planlimits::days, settings.days);
    take(object, "clock", 0, static_cast<int>(ClockChoice::computer), settings.clock);
    if (int paper = -1; take(object, "paper", 0, 1, paper), paper >= 0) settings.paper = static_cast<Paper>(paper);
    take(object, "asked", settings.asked);
    take(object, "twilight", settings.twilight);
    take(object, "daylight", 0, static_cast<int>(Daylight::whole), settings.daylight);
    take(object, "leastminutes", planlimits::leastminutes, settings.leastminutes);
    take(object, "weekdays", 1, static_cast<int>(everyweekday), settings.weekdays);
    take(object, "draught", settings.draught);
    take(object, "clearance", settings.clearance);
    take(object, "airdraught", settings.airdraught);
    takebridges(object, settings.bridges);
    if (const auto at = object.find("bottoms"); at != object.end() && at->is_object())
        for (const auto& [port, value] : at->items())
            if (const auto bottom = metresof(value)) settings.bottoms[port] = *bottom;
    return settings;
}

WriteOutcome writeplansettings(const std::string& path, const PlanSettings& settings) {
    const json object{{"openatstart", settings.openatstart},
                      {"night", settings.night},
                      {"days", settings.days},
                      {"clock", static_cast<int>(settings.clock)},
                      {"paper", settings.paper ? json(static_cast<int>(*settings.paper)) : json(nullptr)},
                      {"asked", settings.asked},
                      {"twilight", settings.twilight},
                      {"daylight", static_cast<int>(settings.daylight)},
                      {"leastminutes", settings.leastminutes},
                      {"weekdays", settings.weekdays},
                      {"draught", orlack(settings.draught)},
                      {"clearance", orlack(settings.clearance)},
                      {"airdraught", orlack(settings.airdraught)},
                      {"bridges", bridgesof(settings)},
                      {"bottoms", settings.bottoms}};
    constexpr int indent = 2;
    return replacefile(path, object.dump(indent, ' ', false, json::error_handler_t::replace) + "\n");
}

}  // namespace tarvane
