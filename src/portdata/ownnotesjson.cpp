#include "portdata/ownnotesjson.h"

#include <array>
#include <cmath>

#include "portdata/jsonmembers.h"

namespace tarvane {
namespace {

using nlohmann::json;

constexpr std::array hows{"changed", "entered", "corrected", "derived", "fitted", "copied"};
constexpr std::array clocks{"zone", "port", "ut"};

FitFigures fitof(const JsonMembers& members) {
    FitFigures fit;
    members.take("readings", fit.readings);
    members.take("leftout", fit.leftout);
    members.take("before", fit.before);
    members.take("after", fit.after);
    members.take("greatest", fit.greatest);
    members.take("hours", fit.hours);
    members.take("day", fit.day);
    return fit;
}

OwnMade ownmadeof(const JsonMembers& members) {
    OwnMade made;
    members.take("how", hows, made.how);
    members.take("date", made.date);
    members.take("from", made.from);
    members.take("record", made.mark);
    if (const json* fit = members.at("fit")) made.fit = fitof({*fit, members.whole()});
    return made;
}

TableCheck tablecheckof(const JsonMembers& members) {
    TableCheck check;
    members.take("clock", clocks, check.clock);
    members.each("waters", [&](const json& element) {
        const JsonMembers line(element, members.whole());
        TableWater& water = check.waters.emplace_back();
        line.take("date", water.date);
        line.take("time", water.time);
        line.take("height", water.height);
        line.take("kind", water.kind);
    });
    return check;
}

json jsonof(const OwnMade& made) {
    json object{{"how", hows.at(static_cast<std::size_t>(made.how))},
                {"date", made.date},
                {"from", made.from},
                {"record", made.mark}};
    // What is no number would make the file one that isn't understood.
    const auto finite = [](double value) { return std::isfinite(value) ? value : 0; };
    if (const auto& fit = made.fit)
        object["fit"] = {{"readings", fit->readings},
                         {"leftout", fit->leftout},
                         {"before", finite(fit->before)},
                         {"after", finite(fit->after)},
                         {"greatest", finite(fit->greatest)},
                         {"hours", finite(fit->hours)},
                         {"day", fit->day}};
    return object;
}

json jsonof(const TableCheck& check) {
    json waters = json::array();
    for (const TableWater& water : check.waters)
        waters.push_back({{"date", water.date}, {"time", water.time}, {"height", water.height}, {"kind", water.kind}});
    return {{"clock", clocks.at(static_cast<std::size_t>(check.clock))}, {"waters", waters}};
}

void takeports(const json& object, OwnPorts& ports) {
    bool& whole = ports.state.whole;
    const JsonMembers file(object, whole);
    file.take("untold", ports.state.untold);
    const json none = json::object();
    const json* areas = file.at("areas");
    if (areas && !areas->is_object()) whole = false;
    for (const auto& [area, list] : (areas && areas->is_object() ? *areas : none).items()) {
        const json holder{{"ports", list}};
        JsonMembers(holder, whole).each("ports", [&, name = area](const json& element) {
            const JsonMembers members(element, whole);
            PortNote note;
            members.take("name", note.name);
            members.take("number", note.number);
            if (const json* made = members.at("own")) note.made = ownmadeof({*made, whole});
            if (const json* check = members.at("check")) note.check = tablecheckof({*check, whole});
            ports.areas[name].push_back(note);
        });
    }
}

}  // namespace

OwnPorts ownportsof(const std::string& text) {
    OwnPorts ports;
    if (!text.empty()) takeports(json::parse(text, nullptr, false), ports);
    return ports;
}

std::string ownportstext(const OwnPorts& ports) {
    json areas = json::object();
    for (const auto& [area, notes] : ports.areas) {
        json list = json::array();
        for (const PortNote& note : notes) {
            json object{{"name", note.name}, {"number", note.number}};
            if (note.made) object["own"] = jsonof(*note.made);
            if (note.check != TableCheck{}) object["check"] = jsonof(note.check);
            list.push_back(object);
        }
        areas[area] = list;
    }
    json file{{"areas", areas}};
    if (!ports.state.untold.empty()) file["untold"] = ports.state.untold;
    constexpr int indent = 2;
    return file.dump(indent, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace tarvane
