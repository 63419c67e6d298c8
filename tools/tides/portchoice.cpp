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

PortChoice choosename(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    if (foldname(wanted).empty()) return {{}, "--port needs a number, a name or all"};
    const std::vector<PortHit> hits = findports(names, wanted);
    // a whole name is meant before those that it is a part of; a slip of the finger is asked about, not acted on
    const int last = !hits.empty() && hits[0].rank == PortHit::whole ? PortHit::whole : PortHit::within;
    std::vector<std::size_t> fits;
    for (const PortHit& hit : hits)
        if (hit.rank <= last) fits.push_back(hit.place);
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

}  // namespace

PortChoice chooseports(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    if (names.empty()) return {{}, areaname + " holds no ports"};
    const std::string text = trim(wanted);
    if (foldname(text) == U"all") {
        PortChoice every;
        for (std::size_t i = 1; i <= names.size(); ++i)
            every.numbers.push_back(static_cast<std::int16_t>(i));
        return every;
    }
    const bool isnumber = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isnumber ? choosenumber(names, text, areaname) : choosename(names, text, areaname);
}

}  // namespace tarvane
