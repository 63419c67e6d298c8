#include "atlas/aboutlines.h"

#include <cmath>
#include <cstdio>

#include "dates/dateformats.h"
#include "dates/englishlocale.h"
#include "engine/constituents.h"
#include "engine/springs.h"
#include "portdata/aboutwords.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::minutes;

std::string metrestext(double value) {
    return fixed(value, 2) + " m";
}

std::string angle(double degrees, const char* positive, const char* negative) {
    const long whole = std::lround(std::abs(degrees) * 60);
    char text[32];
    std::snprintf(text, sizeof text, "%ld\u00B0%02ld'%s", whole / 60, whole % 60, degrees < 0 ? negative : positive);
    return text;
}

/// In English, as the sentence around it.
std::string daytext(Date date) {
    return formatdate(EnglishLocale(), date, "dddd d mmmm yyyy");
}

/// "GMT (UT)", "UT+3"
std::string offsettext(const ClockTime& time) {
    const std::string ahead = utname(time.ahead);
    return time.name == ahead ? ahead : time.name + " (" + ahead + ")";
}

/// The first moment from which a clock is ahead by another offset, within some days more than a year.
std::optional<Moment> nextchange(const PortClock& clock, Moment now) {
    constexpr int most = 400;
    const auto ahead = clock.at(now).ahead;
    for (int day = 1; day <= most; ++day) {
        Moment from = now + days(day - 1), to = now + days(day);
        if (clock.at(to).ahead == ahead) continue;
        while (to - from > minutes(1)) {
            const Moment middle = from + std::chrono::floor<minutes>((to - from) / 2);
            (clock.at(middle).ahead == ahead ? from : to) = middle;
        }
        return std::chrono::floor<minutes>(to);
    }
    return std::nullopt;
}

std::string clocksays(const AboutOf& of, Moment now, const Zones& zones) {
    const PortClock clock(ClockChoice::port, zonehoursof(of.port), of.known.iana(), zones);
    const ClockTime shown = clock.at(now);
    std::string words = "The " + clock.description() + " shows " + clocktext(shown) + " " + offsettext(shown) + " on " +
                        daytext(shown.date);
    const auto change = nextchange(clock, now);
    if (!change) return words + "; it isn't changed in the year to come";
    const ClockTime next = clock.at(*change);
    words += next.ahead < shown.ahead ? ", summer time" : ", not summer time";
    return words + "; it goes over to " + offsettext(next) + " on " + daytext(next.date);
}

/// By the form factor, the heights of K1 and O1 over those of M2 and S2.
std::string characterof(const HarmonicRecord& port) {
    const double twice = std::abs(port.M2Hm) + std::abs(port.S2Hm), once = std::abs(port.K1Hm) + std::abs(port.O1Hm);
    if (!std::isfinite(twice) || !std::isfinite(once) || twice + once <= 0) return "None by these constants";
    if (once > 3 * twice) return "One high water a day";
    if (once > 1.5 * twice) return "Mostly one high water a day";
    if (once > 0.25 * twice) return "Two high waters a day of unequal heights";
    return "Two high waters a day, much alike";
}

std::string rangesof(const AboutOf& of) {
    std::string words = metrestext(meanspringrange(of.port)) + " at springs, " +
                        metrestext(std::abs(meanneaprange(of.port))) + " at neaps, by M2 and S2";
    if (const auto about = of.known.trusted(); about && about->meanrange > 0)
        words += "; " + metrestext(about->meanrange) + " in a full prediction for 2026";
    return words;
}

std::string goodness(const PortKnown& known, bool checked) {
    if (const auto about = known.trusted()) return std::string(gradeword(gradeof(*about))) + ": " + errorwords(*about);
    return known.own && checked ? ownwords(*known.own) : trustwords(known);
}

/// Whose the constants were, as those that ship are to be credited.
std::string sourcewords(const std::string& source) {
    constexpr const char* byway = ", by way of the Neaps tide database";
    if (source == "TICON-4")
        return source + ": Hart-Davis, Dettmering, Seitz (2025), SEANOE, https://doi.org/10.17882/109129" + byway;
    const bool ships = source.starts_with("US National Oceanic") || source.starts_with("Kartverket");
    return source + (ships ? byway : "");
}

void addsource(const PortAbout& about, std::vector<AboutLine>& lines) {
    const std::string datum = datumwords(about.datum);
    lines.push_back({"Heights above", about.datum + (datum.empty() ? "" : ", " + datum) +
                                          ", as the gauge's record has it: not official chart datum"});
    lines.push_back({"Source", sourcewords(about.source)});
    lines.push_back({"Licence", about.licence + ", modified"});
    std::string record = recordwords(about);
    if (!about.recordfrom.empty() && !about.recordto.empty())
        record = daywords(about.recordfrom) + " to " + daywords(about.recordto);
    lines.push_back({"Gauge's record", record});
    if (!about.country.empty()) lines.push_back({"Country", about.country + ", as the source has it"});
}

}  // namespace

AboutOf aboutof(const ProgramFolders& folders, const std::string& hcfile, int number) {
    AboutOf of{hcfile, hcfile.substr(hcfile.find_last_of('/') + 1),
               number, readport(hcfile, static_cast<std::int16_t>(number)),
               {},     {}};
    const AreaKnown area = knownarea(folders, hcfile);
    of.known = whatisknown(area, of.port, number);
    of.check = checkof(area.notes, hcfile, of.port, number);
    return of;
}

AboutSheet aboutsheet(const AboutOf& of, Moment now, const Zones& zones) {
    AboutSheet sheet;
    sheet.name = trimmedname(of.port);
    sheet.place = "port " + numbertext(of.number) + " of " + of.areaname + ", " + angle(of.port.PortLat, "N", "S") +
                  " " + angle(of.port.PortLong, "E", "W");
    sheet.trust = trustof(of.known);
    const CheckResult checked = checkwaters(of.port, of.known.iana(), of.check, zones);
    sheet.lines.push_back({"How good", goodness(of.known, checked.compared > 0)});
    if (checked.compared > 0)
        sheet.lines.push_back({"Check", checkwords(checked) + (checked.hint.empty() ? "" : ". " + checked.hint)});
    if (const auto about = of.known.trusted())
        addsource(*about, sheet.lines);
    else
        sheet.lines.push_back({"Heights above", "What the constants' own source reckons from, which isn't known here"});
    sheet.lines.push_back({"Clock", clocksays(of, now, zones)});
    sheet.lines.push_back({"Tides", characterof(of.port)});
    sheet.lines.push_back({"Mean range", rangesof(of)});
    for (const Constituent& constituent : constituents) {
        std::string value = trim(constituent.constant(of.port));
        // Without the brackets that set it apart behind a name.
        if (value.starts_with('(') && value.ends_with(')')) value = value.substr(1, value.size() - 2);
        sheet.constants.push_back({constituent.name, value});
    }
    return sheet;
}

std::string sheettext(const AboutSheet& sheet) {
    std::string text = sheet.name + ", " + sheet.place + "\n";
    for (const AboutLine& line : sheet.lines)
        text += line.caption + ": " + line.text + "\n";
    for (const AboutLine& line : sheet.constants)
        text += line.caption + " " + line.text + "\n";
    return text;
}

}  // namespace tarvane
