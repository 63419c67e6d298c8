#include "adjust/weighting.h"

#include <cmath>

#include "portdata/coordinates.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr double kilometresperdegree = 111.195;  ///< of a great circle on a globe of 6371 km
constexpr double farthest = 5;                   ///< degrees beyond which a port tells nothing of a place

bool hasposition(const HarmonicRecord& port) {
    return port.PortLat != 0 || port.PortLong != 0;
}

/// Why the two ports can't be weighed; empty when they can.
std::string portsfault(const AdjustWorkspace& workspace) {
    if (workspace.name1.empty() || workspace.name2.empty()) return "two ports are needed to weigh between.";
    for (const auto& [port, name] :
         {std::pair{&workspace.first, &workspace.name1}, {&workspace.second, &workspace.name2}})
        if (!hasposition(*port)) return *name + " has no position: nothing can be weighed by distance.";
    return "";
}

/// A coordinate in the edit form: digits, points, and one of the two letters at the end.
bool edited(const std::string& text, const char* letters) {
    if (text.size() < 4 || std::string_view(letters).find(text.back()) == std::string_view::npos) return false;
    return text.find_first_not_of("0123456789.") == text.size() - 1 && text.find('.') != std::string::npos;
}

/// Hours as the engine takes them.
int zoneof(const std::string& letter) {
    HarmonicRecord port;
    port.TimeZoneLetter = letter;
    return zonehoursof(port);
}

std::string zonetext(const std::string& letter) {
    return numbertext(zoneof(letter));
}

std::string kilometres(double degrees) {
    return format(degrees * kilometresperdegree, degrees * kilometresperdegree < 10 ? "0.0" : "0") + " km from ";
}

}  // namespace

PlaceTexts placetexts(const AdjustWorkspace& workspace) {
    if (workspace.place) {
        const GivenPlace& place = *workspace.place;
        return {place.name, LatitudeEditText(place.latitude), LongitudeEditText(place.longitude),
                place.zoneletter.empty() ? "" : zonetext(place.zoneletter)};
    }
    const bool shared = workspace.first.TimeZoneLetter == workspace.second.TimeZoneLetter;
    return {"", "", "", shared ? zonetext(workspace.first.TimeZoneLetter) : ""};
}

PlaceUnderstood understandplace(const AdjustWorkspace& workspace, const PlaceTexts& texts) {
    PlaceUnderstood understood;
    const auto wants = [&](const std::string& words) {
        understood.words = words;
        return understood;
    };
    if (!edited(texts.latitude, "NS")) return wants("Latitude as 50.45.00N: degrees, minutes, hundredths.");
    if (!edited(texts.longitude, "EW")) return wants("Longitude as 001.30.00W: degrees, minutes, hundredths.");
    GivenPlace& place = understood.place;
    place.name = trim(texts.name);
    place.latitude = ParseLatitude(texts.latitude);
    place.longitude = ParseLongitude(texts.longitude);
    if (std::abs(place.latitude) > 90 || std::abs(place.longitude) > 180)
        return wants("There is no such place on the globe.");
    if (const std::string zone = trim(texts.zone); !zone.empty()) {
        place.zoneletter = zoneletter(val(zone));
        if (zoneof(place.zoneletter) != val(zone))
            return wants("The zone is a whole number of hours, as the tables of ports have it.");
    }
    understood.good = true;
    const std::string position = LatitudeText(place.latitude) + LongitudeText(place.longitude) + ": ";
    if (const std::string fault = portsfault(workspace); !fault.empty()) return wants(position + fault);
    const double to1 = globeangle(place.latitude, place.longitude, workspace.first);
    const double to2 = globeangle(place.latitude, place.longitude, workspace.second);
    const double weight = distanceweight(to1, to2);
    understood.weighable = true;
    understood.words = position + kilometres(to1) + workspace.name1 + " (weight " + format(weight, "0.00") + "), " +
                       kilometres(to2) + workspace.name2 + " (weight " + format(1 - weight, "0.00") + ").";
    if (std::min(to1, to2) > farthest) understood.words += " That is far from both.";
    return understood;
}

void weighbydistance(AdjustWorkspace& workspace, const GivenPlace& place) {
    workspace.place = place;
    fillboxes(workspace, distancemeans(workspace.first, workspace.second, place.latitude, place.longitude));
    workspace.madefrom = workspace.name1 + " and " + workspace.name2;
}

std::string circlemeantext(const AdjustWorkspace& workspace, const ConstantRow& row) {
    const double mean = circlemean(workspace.first.*row.field, workspace.second.*row.field);
    return numbertext(std::fmod(std::round(mean * 100) / 100, 360));
}

void takecirclemean(AdjustWorkspace& workspace, std::size_t row) {
    ConstantTexts texts = workspace.boxes;
    texts[row] = circlemeantext(workspace, constantrows[row]);
    fillboxes(workspace, texts);
}

std::string takecirclemeans(AdjustWorkspace& workspace) {
    if (workspace.name1.empty() || workspace.name2.empty()) return "Two ports are needed: load them first.";
    std::string taken;
    const ConstantTexts before = workspace.boxes;
    for (std::size_t row = 0; row < constantrows.size(); ++row) {
        if (!acrossnorth(constantrows[row], workspace.first, workspace.second)) continue;
        takecirclemean(workspace, row);
        taken += (taken.empty() ? "" : ", ") + std::string(constantrows[row].textbox).substr(3);
    }
    if (taken.empty()) return "No phases of the two ports lie across north: their plain means stand.";
    workspace.undo = before;
    return "Mean on the circle: " + taken + ". Press Calculate.";
}

}  // namespace tarvane
