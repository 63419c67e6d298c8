#include "tides/portchoice.h"

#include <charconv>

#include "portdata/portsearch.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

namespace {

constexpr std::size_t nearestcount = 3;
constexpr std::size_t candidatecount = 8;

std::string listed(const std::vector<std::string>& names, const std::vector<std::size_t>& picked, std::size_t most) {
    std::string text;
    for (std::size_t i = 0; i < picked.size() && i < most; ++i) {
        text += (i ? ", " : "") + numbertext(static_cast<int>(picked[i] + 1)) + " " + names[picked[i]];
    }
    if (picked.size() > most) text += " and " + numbertext(static_cast<int>(picked.size() - most)) + " more";
    return text;
}

PortChoice choosenumber(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    std::size_t number = 0;
    const auto read = std::from_chars(wanted.data(), wanted.data() + wanted.size(), number);
    const bool past = read.ec != std::errc{} || number > names.size();
    if (!past && number > 0) return {{static_cast<std::int16_t>(number)}, ""};
    const std::size_t nearest = past ? names.size() - 1 : 0;
    return {{},
            areaname + " has no port " + wanted + ", its ports run from 1 to " +
                numbertext(static_cast<int>(names.size())) + "; the nearest is " +
                listed(names, {nearest}, nearestcount)};
}

/// The places of the names that a text means: a whole name before those that it is a part of; a slip of the finger is
/// asked about, not acted on.
std::vector<std::size_t> fitting(const std::vector<std::string>& names, const std::string& wanted) {
    const std::vector<PortHit> hits = findports(names, wanted);
    const int last = !hits.empty() && hits[0].rank == PortHit::whole ? PortHit::whole : PortHit::within;
    std::vector<std::size_t> fits;
    for (const PortHit& hit : hits)
        if (hit.rank <= last) fits.push_back(hit.place);
    return fits;
}

PortChoice choosename(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    if (foldname(wanted).empty()) return {{}, "--port needs a number, a name or all"};
    const std::vector<std::size_t> fits = fitting(names, wanted);
    if (fits.size() == 1) return {{static_cast<std::int16_t>(fits[0] + 1)}, ""};
    if (fits.empty()) {
        return {{},
                areaname + " has no port '" + wanted + "'; the nearest names are " +
                    listed(names, nearestports(names, wanted, nearestcount), nearestcount)};
    }
    return {{},
            "'" + wanted + "' fits " + numbertext(static_cast<int>(fits.size())) + " ports of " + areaname + ": " +
                listed(names, fits, candidatecount)};
}

bool isall(const std::string& wanted) {
    return foldname(wanted) == U"all";
}

bool isnumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

/// Every port of an area.
std::vector<std::int16_t> every(std::size_t count) {
    std::vector<std::int16_t> numbers;
    for (std::size_t i = 1; i <= count; ++i)
        numbers.push_back(static_cast<std::int16_t>(i));
    return numbers;
}

/// Every port of several areas, one after another.
struct PortsOfAreas {
    std::vector<std::string> names, withareas;        ///< "Dover", "Dover of UK.hc"
    std::vector<std::pair<std::size_t, int>> places;  ///< which area and which record number
};

PortsOfAreas portsof(std::span<const AreaInHand> areas) {
    PortsOfAreas all;
    for (std::size_t area = 0; area < areas.size(); ++area)
        for (std::size_t i = 0; i < areas[area].names.size(); ++i) {
            all.names.push_back(areas[area].names[i]);
            all.withareas.push_back(areas[area].names[i] + " of " + areas[area].name);
            all.places.emplace_back(area, static_cast<int>(i + 1));
        }
    return all;
}

std::string joined(const std::vector<std::string>& names, const std::vector<std::size_t>& picked, std::size_t most) {
    std::string text;
    for (std::size_t i = 0; i < picked.size() && i < most; ++i)
        text += (i ? ", " : "") + names[picked[i]];
    if (picked.size() > most) text += " and " + numbertext(static_cast<int>(picked.size() - most)) + " more";
    return text;
}

}  // namespace

PortChoice chooseports(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    if (names.empty()) return {{}, areaname + " holds no ports"};
    const std::string text = trim(wanted);
    if (isall(text)) return {every(names.size()), ""};
    return isnumber(text) ? choosenumber(names, text, areaname) : choosename(names, text, areaname);
}

AreasChoice choosewithin(std::span<const AreaInHand> areas, const std::string& wanted) {
    AreasChoice choice;
    choice.numbers.resize(areas.size());
    const std::string text = trim(wanted);
    if (isall(text)) {
        for (std::size_t i = 0; i < areas.size(); ++i)
            choice.numbers[i] = every(areas[i].names.size());
        return choice;
    }
    if (isnumber(text)) return {{}, "a port's number is one of an area: --area all goes with a name or with all"};
    if (foldname(text).empty()) return {{}, "--port needs a name or all with --area all"};
    const PortsOfAreas all = portsof(areas);
    std::vector<std::size_t> fits = fitting(all.names, text), exact;
    for (const std::size_t place : fits)
        if (all.names[place] == text) exact.push_back(place);
    if (exact.size() == 1) fits = exact;
    if (fits.empty()) {
        return {{},
                "no area has a port '" + text + "'; the nearest names are " +
                    joined(all.withareas, nearestports(all.names, text, nearestcount), nearestcount)};
    }
    if (fits.size() > 1) {
        return {{},
                "'" + text + "' fits " + numbertext(static_cast<int>(fits.size())) +
                    " ports: " + joined(all.withareas, fits, candidatecount)};
    }
    const auto [area, number] = all.places[fits[0]];
    choice.numbers[area].push_back(static_cast<std::int16_t>(number));
    return choice;
}

}  // namespace tarvane
