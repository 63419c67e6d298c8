#include "planner/planview.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "dates/dateformats.h"
#include "planner/planlimits.h"
#include "planner/plantexts.h"
#include "portdata/aboutwords.h"
#include "portdata/recordfiles.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::hours;

constexpr int leastyear = 1, mostyear = 9999;

std::string filename(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

std::array<float, 3> storedvalues(const Settings& settings) {
    // What is no number in a broken file must not differ from itself.
    const auto number = [](float value) { return std::isfinite(value) ? value : HUGE_VALF; };
    return {number(settings.currentdraught), number(settings.currentukc), number(settings.userdepth)};
}

std::string portkey(const PlanView& view) {
    const bool shared = std::count(view.ports.begin(), view.ports.end(), view.portname) > 1;
    // Several of a name are told apart by where they stand.
    return filename(view.area) + "/" + view.portname + (shared ? "#" + std::to_string(view.number) : "");
}

std::vector<std::string> portnames(const std::string& area) {
    std::vector<std::string> names;
    for (const HarmonicRecord& each : readports(area))
        names.push_back(trim(each.PortName));
    return names;
}

const char* whynoport(const std::string& area, std::int16_t number, const std::vector<std::string>& names) {
    if (!canopen(area)) return noareafile;
    return number < 1 || static_cast<std::size_t>(number) > names.size() ? nosuchport : "";
}

/// Whether the area's file and the settings are still what the view was made from.
bool asbefore(const Settings& settings, const PlanView& view) {
    if (view.area != settings.hcfile || view.number != settings.currentport || view.stored != storedvalues(settings))
        return false;
    const std::vector<std::string> names = portnames(view.area);
    return names == view.ports && view.whynot == whynoport(view.area, view.number, names) &&
           (!view.whynot.empty() || encode(readport(view.area, view.number)) == encode(view.port));
}

/// Makes the plan of what is in hand.
void replan(const MainContext& context, PlanView& view) {
    view.plan.reset();
    view.access = {};
    if (!view.whynot.empty()) return;
    const Date last = makedate(mostyear, 12, 31);
    view.first = std::clamp(view.first, makedate(leastyear, 1, 2), last);
    // The last days of all times are fewer than were asked for.
    const int count = std::min(view.settings.days, static_cast<int>((last - view.first).count()) + 1);
    view.plan = std::make_shared<Plan>(PlanOf{view.port, view.known.iana(), view.first, count, view.settings.clock},
                                       context.services.zones);
    answeranew(view);
}

void takeport(const MainContext& context, PlanView& view) {
    const Settings& settings = context.session.settings;
    view.area = settings.hcfile;
    view.number = settings.currentport;
    view.ports = portnames(view.area);
    view.whynot = whynoport(view.area, view.number, view.ports);
    view.port = view.whynot.empty() ? readport(view.area, view.number) : HarmonicRecord{};
    view.portname = trim(view.port.PortName);
    view.known = whatisknown(knownarea(context.session.folders, view.area), view.port, view.number);
    view.stored = storedvalues(settings);
    view.bottomtyped = false;
    view.question = prefilledquestion(view.settings, settings, portkey(view));
    view.read = readquestion(view.question);
    view.refusal = view.read.refusal;
}

/// She passes at times, and it is the days chosen that all lie outside the plan.
bool nochosenday(const PlanView& view) {
    const PlannedAccess& access = view.access;
    if (!access.greatestheight || access.never || !access.windows.empty()) return false;
    for (Date date = view.first; date < view.first + days(view.plan->planof().days); date += days(1))
        if (view.settings.weekdays >> std::chrono::weekday(date).c_encoding() & 1U) return false;
    return true;
}

void keepinside(PlanView& view) {
    const auto shown = std::min(view.to - view.from, view.plan->ends() - view.plan->begins());
    view.from = std::clamp(view.from, view.plan->begins(), view.plan->ends() - shown);
    view.to = view.from + shown;
}

}  // namespace

PlanView openplanview(const MainContext& context) {
    PlanView view;
    view.settings = view.kept = readplansettings(plansettingspath(context.session.folders));
    view.first = context.session.onshow.tidedate;
    takeport(context, view);
    view.today = todayof(context, view);
    // Where the port keeps another date than this computer.
    if (view.first == context.services.clock.now().today) view.first = view.today;
    replan(context, view);
    showwhole(view);
    return view;
}

bool followport(const MainContext& context, PlanView& view) {
    if (asbefore(context.session.settings, view)) return false;
    const Date before = view.today;
    takeport(context, view);
    // Where the other port keeps another date.
    view.today = todayof(context, view);
    if (view.first == before) view.first = view.today;
    replan(context, view);
    showwhole(view);
    return true;
}

void showdays(const MainContext& context, PlanView& view, Date first, int count) {
    view.first = first;
    view.settings.days = std::clamp(count, 1, mostplandays);
    replan(context, view);
    showwhole(view);
}

void stepdays(const MainContext& context, PlanView& view, int by) {
    const bool part = view.plan && (view.from > view.plan->begins() || view.to < view.plan->ends());
    const Moment from = view.from, to = view.to;
    showdays(context, view, view.first + days(by), view.settings.days);
    if (!part || !view.plan) return;
    const PortClock& clock = view.plan->clock();
    const auto moved = [&](Moment at) {
        const Date date = clock.at(at).date;
        return clock.startof(date + days(by)) + (at - clock.startof(date));
    };
    if (moved(from) >= moved(to)) return;
    view.from = moved(from);
    view.to = moved(to);
    keepinside(view);
}

void showclock(const MainContext& context, PlanView& view, ClockChoice clock) {
    view.settings.clock = clock;
    replan(context, view);
    showwhole(view);
    view.today = todayof(context, view);
}

Date todayof(const MainContext& context, const PlanView& view) {
    if (!view.whynot.empty()) return context.services.clock.now().today;
    const PortClock clock(view.settings.clock, zonehoursof(view.port), view.known.iana(), context.services.zones);
    return clock.at(context.services.clock.moment()).date;
}

bool followmidnight(const MainContext& context, PlanView& view) {
    const Date before = std::exchange(view.today, todayof(context, view));
    // After a sleep it may be several.
    if (view.first != before || view.today <= before) return false;
    showdays(context, view, view.today, view.settings.days);
    return true;
}

void askquestion(const MainContext& context, PlanView& view, const PlanQuestion& question) {
    const std::size_t bottom = static_cast<std::size_t>(PlanField::bottom);
    view.bottomtyped = view.bottomtyped || question[bottom] != view.question[bottom];
    view.question = question;
    const QuestionRead read = readquestion(question);
    view.refusal = read.refusal;
    if (!read.refusal.empty()) return;
    view.read = read;
    keepquestion(read, context.session.settings, portkey(view), view.bottomtyped, view.settings);
    answeranew(view);
}

void answeranew(PlanView& view) {
    view.access = {};
    const auto passage = passageof(view);
    if (!view.plan || !passage) return;
    const PlanSettings& wishes = view.settings;
    view.access = view.plan->access(*passage, {wishes.daylight, wishes.leastminutes, wishes.weekdays}, wishes.twilight);
}

bool keepsettings(MainContext& context, PlanView& view) {
    const std::string path = plansettingspath(context.session.folders);
    const WriteOutcome written = changeplansettings(path, view.kept, view.settings);
    if (written)
        view.kept = view.settings;
    else
        answer(context, "The planner's settings could not be kept: " + path + ": " + written.reason());
    return written;
}

PlanView yearview(const MainContext& context, const PlanView& view) {
    PlanView whole = view;
    whole.first = makedate(yearof(view.first), 1, 1);
    whole.settings.days = static_cast<int>((makedate(yearof(view.first), 12, 31) - whole.first).count()) + 1;
    replan(context, whole);
    return whole;
}

void zoomplan(PlanView& view, double factor, Moment about) {
    if (!view.plan || view.from == view.to) return;
    const double shown = static_cast<double>((view.to - view.from).count());
    const double least = 3 * 3600, most = static_cast<double>((view.plan->ends() - view.plan->begins()).count());
    const double wanted = std::clamp(shown * factor, std::min(least, most), most);
    const double before = static_cast<double>((about - view.from).count()) * wanted / shown;
    view.from = about - std::chrono::seconds(std::llround(before));
    view.to = view.from + std::chrono::seconds(std::llround(wanted));
    keepinside(view);
}

void moveplan(PlanView& view, std::chrono::seconds by) {
    if (!view.plan) return;
    view.from += by;
    view.to += by;
    keepinside(view);
}

void showday(PlanView& view, Date date) {
    if (!view.plan || !hasday(view.plan->clock(), date)) return;
    view.from = view.plan->clock().startof(date);
    view.to = view.plan->clock().startof(date + days(1));
    keepinside(view);
}

void showwhole(PlanView& view) {
    if (!view.plan) return;
    view.from = view.plan->begins();
    view.to = view.plan->ends();
    if (view.cursor && (*view.cursor < view.from || *view.cursor > view.to)) view.cursor.reset();
}

void putcursor(PlanView& view, Moment at) {
    if (!view.plan) return;
    view.cursor = std::clamp(at, view.plan->begins(), view.plan->ends());
    const auto shown = view.to - view.from, before = view.from - *view.cursor, behind = *view.cursor - view.to;
    if (std::max(before, behind) <= std::chrono::seconds(0)) return;
    // From step to step it stays at the edge; what is leapt to is seen with what is about it.
    const bool leap = std::max(before, behind) > shown / 4;
    moveplan(view, leap ? *view.cursor - view.from - shown / 2 : before > behind ? -before : behind);
}

std::optional<Passage> passageof(const PlanView& view) {
    return view.settings.asked && view.read.refusal.empty() ? std::optional(view.read.passage) : std::nullopt;
}

std::string plantitle(const PlanView& view, const Locale& locale) {
    if (!view.plan) return view.portname;
    const Date first = view.first, last = first + days(view.plan->planof().days - 1);
    std::string dates = formatdate(locale, last, "d mmmm yyyy");
    if (first != last) {
        const bool month = monthof(first) == monthof(last), year = yearof(first) == yearof(last);
        dates = formatdate(locale, first, month && year ? "d" : year ? "d mmmm" : "d mmmm yyyy") + " to " + dates;
    }
    return view.portname + ", " + dates + ", " + view.plan->clock().description();
}

std::string answertext(const PlanView& view, const Locale& locale, std::optional<Moment> now) {
    if (!view.plan) return view.whynot;
    if (view.settings.asked && !view.refusal.empty()) return "\u26A0 " + view.refusal;
    if (view.settings.asked && nochosenday(view)) return "None of these days is one of those chosen.";
    return view.settings.asked ? accesstext(*view.plan, view.access, view.read.passage, locale, now) : "";
}

std::string planfoot(const PlanView& view) {
    if (!view.plan) return view.whynot;
    // How good a port is that ships its mark tells, beside the name.
    const std::string trust = view.known.own ? trustclause(view.known) : "";
    std::string clock = timesby(view.plan->clock());
    clock.front() = 'T';
    return clock + "; heights in metres above " + chartdatum(view.known.datum()) + (trust.empty() ? "" : "; " + trust) +
           ". Predictions: weather isn't counted.";
}

}  // namespace tarvane
