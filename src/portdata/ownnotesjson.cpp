#include "portdata/ownnotesjson.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

namespace tarvane {
namespace {

using nlohmann::json;

constexpr std::array hows{"changed", "entered", "corrected", "derived", "fitted", "copied"};
constexpr std::array clocks{"zone", "port", "ut"};

/// Takes the members of an object one by one and remembers whether each was what it should be.
class Members {
  public:
    Members(const json& object, bool& whole) : object_(object), whole_(whole) {
        if (!object.is_object()) whole_ = false;
    }

    /// Null when there is none.
    const json* at(const char* name) const {
        const auto found = object_.is_object() ? object_.find(name) : object_.end();
        return found == object_.end() ? nullptr : &*found;
    }

    void take(const char* name, std::string& text) const {
        const json* value = at(name);
        if (value && value->is_string()) text = value->get<std::string>();
        whole_ = whole_ && (!value || value->is_string());
    }

    void take(const char* name, double& number) const {
        const json* value = at(name);
        const bool good = value && value->is_number() && std::isfinite(value->get<double>());
        if (good) number = value->get<double>();
        whole_ = whole_ && (!value || good);
    }

    void take(const char* name, int& number) const {
        constexpr double most = 1e6;
        double read = number;
        take(name, read);
        if (std::abs(read) <= most)
            number = static_cast<int>(read);
        else
            whole_ = false;
    }

    /// One of some words, as its place among them.
    template <typename Choice, typename Words>
    void take(const char* name, const Words& words, Choice& choice) const {
        std::string word = words[static_cast<std::size_t>(choice)];
        take(name, word);
        const auto place = std::find(words.begin(), words.end(), word);
        if (place == words.end())
            whole_ = false;
        else
            choice = static_cast<Choice>(place - words.begin());
    }

    /// Every element of a list.
    template <typename Act>
    void each(const char* name, Act act) const {
        const json* list = at(name);
        whole_ = whole_ && (!list || list->is_array());
        if (list && list->is_array())
            for (const json& element : *list)
                act(element);
    }

    bool& whole() const { return whole_; }

  private:
    const json& object_;
    bool& whole_;
};

FitFigures fitof(const Members& members) {
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

OwnMade ownmadeof(const Members& members) {
    OwnMade made;
    members.take("how", hows, made.how);
    members.take("date", made.date);
    members.take("from", made.from);
    members.take("record", made.mark);
    if (const json* fit = members.at("fit")) made.fit = fitof({*fit, members.whole()});
    return made;
}

TableCheck tablecheckof(const Members& members) {
    TableCheck check;
    members.take("clock", clocks, check.clock);
    members.each("waters", [&](const json& element) {
        const Members line(element, members.whole());
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

}  // namespace

OwnPorts ownportsof(const std::string& text) {
    OwnPorts ports;
    if (text.empty()) return ports;
    const json object = json::parse(text, nullptr, false);
    const Members file(object, ports.whole);
    const json none = json::object();
    const json* areas = file.at("areas");
    if (areas && !areas->is_object()) ports.whole = false;
    for (const auto& [area, list] : (areas && areas->is_object() ? *areas : none).items()) {
        const json holder{{"ports", list}};
        Members(holder, ports.whole).each("ports", [&, name = area](const json& element) {
            const Members members(element, ports.whole);
            PortNote note;
            members.take("name", note.name);
            members.take("number", note.number);
            if (const json* made = members.at("own")) note.made = ownmadeof({*made, ports.whole});
            if (const json* check = members.at("check")) note.check = tablecheckof({*check, ports.whole});
            ports.areas[name].push_back(note);
        });
    }
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
    constexpr int indent = 2;
    return json{{"areas", areas}}.dump(indent, ' ', false, json::error_handler_t::replace) + "\n";
}

}  // namespace tarvane
