#include "almanac/sunview.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "dates/summertime.h"
#include "portdata/coordinates.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// How one of the two position boxes is read.
struct PositionRule {
    std::size_t longest;  ///< characters
    std::string_view letters;
    double (*parse)(std::string_view);
    double limit;  ///< degrees, itself refused
};

constexpr PositionRule latituderule{9, "NS", ParseLatitude, 90};
constexpr PositionRule longituderule{10, "WE", ParseLongitude, 180};

std::optional<double> position(const std::string& typed, const PositionRule& rule) {
    const std::string text = trim(typed);
    const auto isletter = [&](char c) { return rule.letters.find(c) != std::string_view::npos; };
    if (text.empty() || charactercount(text) > rule.longest) return std::nullopt;
    if (!isletter(text.back()) || isletter(text.front())) return std::nullopt;
    const double degrees = rule.parse(text);
    if (!(std::fabs(degrees) < rule.limit)) return std::nullopt;
    return degrees;
}

char32_t positionkey(char32_t key, char32_t first, char32_t second) {
    const char32_t capital = key >= U'a' && key <= U'z' ? key - U'a' + U'A' : key;
    if (capital == first || capital == second) return capital;
    const bool taken = (key >= U'0' && key <= U'9') || key == U'.' || key == 8 || key == 127;
    return taken ? key : 0;
}

int yearonshow(const Session& session) {
    return static_cast<int>(session.onshow.tideyear);
}

int monthonshow(const Session& session) {
    return static_cast<int>(session.onshow.tidemonth);
}

}  // namespace

const char* const userentry = "User entry";

void preparesunview(Session& session) {
    LunarPhases(monthonshow(session), yearonshow(session), session.lunar);
}

SunInput portsuninput(const Session& session) {
    const HarmonicRecord port = readport(session.settings.hcfile, session.settings.currentport);
    return {rtrim(port.PortName), LatitudeText(port.PortLat), LongitudeText(port.PortLong)};
}

char32_t latitudekey(char32_t key) {
    return positionkey(key, U'N', U'S');
}

char32_t longitudekey(char32_t key) {
    return positionkey(key, U'E', U'W');
}

SunOutcome calculatesun(MainContext& context, const SunInput& input) {
    Session& session = context.session;
    clearsuntable(session.suntable);
    const std::optional<double> longitude = position(input.longitude, longituderule);
    const std::optional<double> latitude = position(input.latitude, latituderule);
    if (!longitude || !latitude) {
        context.services.messages.beep();
        return longitude ? SunOutcome::badlatitude : SunOutcome::badlongitude;
    }
    session.suntable.titles = {{{}, rtrim(input.port), rtrim(input.longitude), rtrim(input.latitude)}};
    const SunMonthOnShow month{yearonshow(session), monthonshow(session),
                               summershift(session.onshow.tidedate, session.settings.summerflag2),
                               session.port.zonehours};
    fillsuntable(session.suntable, month, {*latitude, *longitude}, context.services.locale);
    return SunOutcome::calculated;
}

DayScroll opensunresults(Session& session, int height) {
    session.view.stepbuttonsvisible = true;
    const int days = daysonshow(session);
    double& day = session.onshow.tideday;
    day = std::min(day, static_cast<double>(days));
    DayScroll scroll{height / 5, height / 3, days * (height / 5), 0};
    scroll.value = scrollfromday(static_cast<int>(day), scroll.maximum, days);
    return scroll;
}

int daysonshow(const Session& session) {
    return DaysInMonth(yearonshow(session), monthonshow(session));
}

void leavesunresults(Session& session) {
    session.view.stepbuttonsvisible = true;
}

}  // namespace tarvane
