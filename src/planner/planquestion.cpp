#include "planner/planquestion.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "planner/planlimits.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

struct FieldRule {
    const char* name;
    PlanLimit limit;
    const char* unit;
    double step, usual;  ///< where an empty field begins
    bool optional = false;
};

constexpr std::array<FieldRule, planfields> rules{{{"Draught", planlimits::draught, "metres", 0.1, 0},
                                                   {"Clearance", planlimits::clearance, "metres", 0.1, 0},
                                                   {"Bottom", planlimits::bottom, "metres", 0.1, 0},
                                                   {"Bridge", planlimits::bridge, "metres", 0.1, 20, true},
                                                   {"Mast", planlimits::airdraught, "metres", 0.1, 15, true},
                                                   {"Bridge's level", planlimits::bridgelevel, "metres", 0.1, 5, true},
                                                   {"Least time", planlimits::leastminutes, "minutes", 15, 15, true}}};

std::string fieldtext(double value) {
    // Stored singles read as they were typed.
    return numbertext(std::round(value * 1000) / 1000);
}

}  // namespace

std::optional<double> typednumber(std::string_view text) {
    std::string typed = trim(std::string(text));
    if (typed.size() > 1 && typed.back() == 'm') typed = trim(typed.substr(0, typed.size() - 1));
    if (typed.starts_with("\u2212")) typed = "-" + typed.substr(3);
    if (typed.starts_with("+")) typed.erase(0, 1);
    if (std::count(typed.begin(), typed.end(), ',') == 1) std::replace(typed.begin(), typed.end(), ',', '.');
    if (typed.find_first_not_of("0123456789.-") != std::string::npos) return std::nullopt;
    double value = 0;
    const auto read = std::from_chars(typed.data(), typed.data() + typed.size(), value);
    if (read.ec != std::errc{} || read.ptr != typed.data() + typed.size()) return std::nullopt;
    return value;
}

QuestionRead readquestion(const PlanQuestion& question) {
    QuestionRead read;
    std::array<std::optional<double>, planfields> values;
    for (std::size_t i = 0; i < planfields && read.refusal.empty(); ++i) {
        const FieldRule& rule = rules[i];
        const bool ofbridge = i == static_cast<std::size_t>(PlanField::airdraught) ||
                              i == static_cast<std::size_t>(PlanField::bridgelevel);
        // Without a bridge nobody reads what else stands there of one.
        if (ofbridge && !values[static_cast<std::size_t>(PlanField::bridge)]) continue;
        if (rule.optional && trim(question[i]).empty()) continue;
        values[i] = typednumber(question[i]);
        if (values[i] && rule.limit.holds(*values[i])) continue;
        read.refused = static_cast<PlanField>(i);
        read.refusal = std::string(rule.name) + ": write " + rule.unit + " from " + fieldtext(rule.limit.least) +
                       " to " + fieldtext(rule.limit.most) + ", not \u201C" + trim(question[i]) + "\u201D";
    }
    if (!read.refusal.empty()) return read;
    const auto value = [&](PlanField field) { return values[static_cast<std::size_t>(field)]; };
    read.passage.draught = *value(PlanField::draught);
    read.passage.clearance = *value(PlanField::clearance);
    read.passage.bottom = *value(PlanField::bottom);
    read.passage.bridge = value(PlanField::bridge);
    read.passage.airdraught = value(PlanField::airdraught).value_or(0);
    read.passage.bridgelevel = value(PlanField::bridgelevel).value_or(0);
    read.leastminutes = static_cast<int>(std::ceil(value(PlanField::least).value_or(0)));
    constexpr auto mast = static_cast<std::size_t>(PlanField::airdraught);
    read.mastempty = trim(question[mast]).empty();
    read.mast = typednumber(question[mast]);
    if (read.mast && !rules[mast].limit.holds(*read.mast)) read.mast.reset();
    const bool bridge = read.passage.bridge.has_value();
    if (bridge && !value(PlanField::airdraught)) {
        read.refused = PlanField::airdraught;
        read.refusal = "Mast: write how high it stands above the water, in metres";
    } else if (bridge && !value(PlanField::bridgelevel)) {
        read.refused = PlanField::bridgelevel;
        read.refusal =
            "Bridge's level: write how many metres above chart datum the level lies that its height is given for";
    }
    return read;
}

std::string stepped(const std::string& text, PlanField field, int steps) {
    const FieldRule& rule = rules[static_cast<std::size_t>(field)];
    if (trim(text).empty()) return steps > 0 ? fieldtext(rule.usual) : text;
    const auto value = typednumber(text);
    if (!value) return text;
    // What lies between two steps goes to the next one, as reckoned in whole steps.
    constexpr double tolerance = 1e-6;
    const double at = *value / rule.step;
    const double wanted = (steps > 0 ? std::floor(at + tolerance) : std::ceil(at - tolerance)) + steps;
    if (rule.optional && *value <= rule.limit.least && steps < 0) return "";
    std::string then = fieldtext(std::clamp(wanted * rule.step, rule.limit.least, rule.limit.most));
    if (text.find(',') != std::string::npos) std::replace(then.begin(), then.end(), '.', ',');
    return then;
}

PlanQuestion prefilledquestion(const PlanSettings& settings, const Settings& stored, const std::string& port) {
    const auto kept = settings.bottoms.find(port);
    const double depth = static_cast<double>(stored.userdepth);
    const auto bridge = settings.bridges.find(port);
    const bool bridged = bridge != settings.bridges.end();
    return {fieldtext(settings.draught.value_or(static_cast<double>(stored.currentdraught))),
            fieldtext(settings.clearance.value_or(static_cast<double>(stored.currentukc))),
            fieldtext(kept == settings.bottoms.end() ? depth : kept->second),
            bridged ? fieldtext(bridge->second.height) : "",
            settings.airdraught ? fieldtext(*settings.airdraught) : "",
            bridged ? fieldtext(bridge->second.level) : "",
            settings.leastminutes > 0 ? numbertext(settings.leastminutes) : ""};
}

void keepquestion(const QuestionRead& read, const Settings& stored, const std::string& port, bool bottomtyped,
                  PlanSettings& settings) {
    // What is as stored for the classic window goes on following that.
    const auto differing = [](double typed, float as) {
        return fieldtext(typed) == fieldtext(static_cast<double>(as)) ? std::nullopt : std::optional(typed);
    };
    settings.draught = differing(read.passage.draught, stored.currentdraught);
    settings.clearance = differing(read.passage.clearance, stored.currentukc);
    // A sill that was typed must not come to lie deeper with a depth for the main window's heights.
    if (bottomtyped) settings.bottoms[port] = read.passage.bottom;
    if (read.mast || read.mastempty) settings.airdraught = read.mast;
    settings.bridges.erase(port);
    if (read.passage.bridge) settings.bridges[port] = {*read.passage.bridge, read.passage.bridgelevel};
    settings.leastminutes = read.leastminutes;
}

}  // namespace tarvane
