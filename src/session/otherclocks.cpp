#include "session/otherclocks.h"

#include <algorithm>
#include <cstdlib>

#include "portdata/portknown.h"
#include "session/statusline.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

using std::chrono::duration_cast;
using std::chrono::minutes;
using std::chrono::seconds;

std::string counted(long long count, const char* unit) {
    return numbertext(static_cast<double>(count)) + " " + unit + (count == 1 ? "" : "s");
}

std::string amountof(seconds difference) {
    const auto whole = std::abs(duration_cast<minutes>(difference).count());
    if (whole == 60) return "one hour";
    if (whole == 30) return "half an hour";
    if (whole < 60) return counted(whole, "minute");
    return counted(whole / 60, "hour") + (whole % 60 == 0 ? "" : " " + counted(whole % 60, "minute"));
}

}  // namespace

std::string otherclocks(Date day, seconds shownahead, const std::string& iana, const Zones& zones) {
    const Moment begins = Moment(day) - shownahead, ends = begins + std::chrono::days(1);
    const auto shown = [&](Moment at) {
        const ClockTime time{day, static_cast<int>(duration_cast<minutes>(at - begins).count()), {}, ""};
        return clocktext(time);
    };
    std::string told;
    for (Moment at = begins; at < ends;) {
        const auto there = zones.offsetat(iana, at);
        if (!there) return "";
        const Moment until = std::min<Moment>(there->until, ends);
        if (there->ahead != shownahead) {
            told += (told.empty() ? "clocks there read " : ", ") + amountof(there->ahead - shownahead) +
                    (there->ahead > shownahead ? " more (" : " less (") + zonename(*there) + ")";
            if (at > begins) told += " from " + shown(at);
            if (until < ends) told += " until " + shown(until);
        }
        at = until;
    }
    return told;
}

PlaceOf placeof(const MainContext& context, const Prediction& prediction, const std::string& area) {
    const HarmonicRecord& port = prediction.port.record;
    const PortKnown known = whatisknown(knownarea(context.session.folders, area), port, prediction.port.number);
    const seconds ahead = std::chrono::hours(-zonehoursof(port) + (prediction.day.summer == -1 ? 1 : 0));
    return {known.datum(), otherclocks(dateof(prediction.day), ahead, known.iana(), context.services.zones)};
}

}  // namespace tarvane
