#include "session/statusline.h"

#include "dates/dateformats.h"
#include "dates/summertime.h"
#include "portdata/aboutwords.h"
#include "portdata/recordfiles.h"
#include "session/otherclocks.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

bool shifted(const Prediction& prediction) {
    return prediction.day.summer == -1;
}

std::string portof(const PredictedPort& port) {
    const std::string name = trimmedname(port.record);
    const std::string number = numbertext(int{port.number});
    return name.empty() ? "port " + number + " (not in the sea area)" : name + " (" + number + ")";
}

std::string zoneof(const Prediction& prediction) {
    const std::string& letter = prediction.port.record.TimeZoneLetter;
    const bool known = letter.size() == 1 && letter[0] >= 'A' && letter[0] <= 'Z';
    const int ahead = -zonehoursof(prediction.port.record) + (shifted(prediction) ? 1 : 0);
    std::string text = "the port's zone time";
    if (known) text = ahead == 0 ? "UT" : (ahead > 0 ? "UT+" : "UT") + numbertext(ahead);
    return text + (shifted(prediction) ? " (summer time)" : "");
}

std::string heightsof(const PredictedPort& port, const std::string& datum) {
    if (port.currentoutput == 1 || port.userdepth == 0) return "heights above " + chartdatum(datum);
    return "heights over your depth of " + format(port.userdepth, "0.0#") + " m";
}

std::string nameof(const FileOrigin& area) {
    return area.path.substr(area.path.find_last_of('/') + 1);
}

void noteport(const Session& session, std::vector<std::string>& notes) {
    const std::string name = trimmedname(session.prediction.port.record);
    if (trim(session.view.portbox) != trim(portboxof(name)))
        notes.emplace_back("the name above is another port's");
    else if (trim(session.port.portname) != name)
        notes.push_back("copies and files are named " + trim(session.port.portname));
}

void noteheights(const Session& session, std::vector<std::string>& notes) {
    const PredictedPort& port = session.prediction.port;
    const Settings& settings = session.settings;
    const bool datum = port.currentoutput == 1;
    if (datum != (settings.currentoutput == 1) || (!datum && settings.userdepth != port.userdepth))
        notes.emplace_back("these heights are not yet those of the settings");
    const std::string other = depthofanother(port);
    if (session.prediction.defined && !other.empty())
        notes.push_back("the depth of " + format(port.userdepth, "0.0#") + " m stands under the name of " + other);
}

/// The date that the clipboard's texts carry, which steps of the day leave behind.
void notecopies(const Session& session, Date date, std::vector<std::string>& notes) {
    const DateOnShow& onshow = session.onshow;
    if (onshow.tideday != dayof(date) || onshow.tidemonth != monthof(date) || onshow.tideyear != yearof(date))
        notes.push_back("copies are dated " + slashdate(onshow.tideday, onshow.tidemonth, onshow.tideyear));
}

void notemonth(const Session& session, const Locale& locale, Date date, std::vector<std::string>& notes) {
    const int month = session.prediction.day.tidemonth;
    if (month != monthof(date) && month >= 1 && month <= 12)
        notes.push_back("the month's corrections are those of " + locale.monthname(month));
}

/// The contributions beside the constituents stay those of the last mouse move.
void notelayers(const Session& session, std::vector<std::string>& notes) {
    const Prediction& prediction = session.prediction;
    const bool shown = session.layersmode == 1 && !session.layervalues.sum.empty();
    if (!shown) return;
    if (session.layersday != prediction.day || session.layersport != prediction.port.number ||
        session.layersarea != session.settings.hcfile)
        notes.emplace_back("the contributions are an earlier curve's");
    if (prediction.port.currentoutput != 1 && prediction.port.userdepth != 0)
        notes.emplace_back("Height and Sum leave your depth out");
}

void notesun(const Session& session, Date date, std::vector<std::string>& notes) {
    const SunOf& drawn = session.sundrawn;
    const HarmonicRecord& port = session.prediction.port.record;
    if (drawn.latitude != port.PortLat || drawn.longitude != port.PortLong || drawn.zonehours != zonehoursof(port))
        notes.emplace_back("the sun's lines are another port's");
    else if (drawn.day != dayof(date) || drawn.month != monthof(date) || drawn.year != yearof(date))
        notes.push_back("the sun's lines are of " + slashdate(drawn.day, drawn.month, drawn.year));
    else if (drawn.summer != session.prediction.day.summer)
        notes.emplace_back("the sun's lines are an hour off");
}

/// The month's list stands until it is asked for again, and one shift serves all its days.
void notelist(const Session& session, const Locale& locale, Date date, std::vector<std::string>& notes) {
    if (session.month.monthspredictions.empty()) return;
    const MonthMade& made = session.month.made;
    const Prediction& prediction = session.prediction;
    const PredictedPort& port = prediction.port;
    const Date first = makedate(made.year, made.month, 1);
    if (made.portnumber != port.number || made.hcfile != session.settings.hcfile)
        notes.push_back("the month list is " + trim(made.portname) + "'s");
    else if (made.year != yearof(date) || made.month != monthof(date))
        notes.push_back("the month list is of " + formatdate(locale, first, "mmmm yyyy"));
    else if (made.currentoutput != port.currentoutput || made.userdepth != port.userdepth)
        notes.emplace_back("the month list has other heights");
    else if (made.summer != prediction.day.summer)
        notes.emplace_back("the month list is an hour off");
    else if (session.settings.summerflag2 != 0 &&
             IsSummerDate(first) != IsSummerDate(makedate(made.year, made.month + 1, 0)))
        notes.emplace_back("the month list keeps one hour for all its days");
}

/// The texts that are saved and copied name the kind of time by the month's number.
void notetime(const Session& session, std::vector<std::string>& notes) {
    const bool named = session.settings.currentsummer != 0 && issummermonth(session.onshow.tidemonth);
    if (session.prediction.defined && named != shifted(session.prediction))
        notes.push_back(std::string("texts call these times ") + (named ? "Summer Time" : "Standard Time"));
}

}  // namespace

Date dateof(const TideDay& day) {
    return makedate(day.tideyear, 1, 1) + std::chrono::days{day.dayofyear - 1};
}

std::string statusline(const Prediction& prediction, const FileOrigin& area, const std::string& datum,
                       const Locale& locale) {
    const std::string what =
        portof(prediction.port) + ", " + formatdate(locale, dateof(prediction.day), "dddd d mmmm yyyy");
    if (!prediction.defined) return "No tides of " + what + ": " + prediction.whynot;
    return "Tides of " + what + ", " + zoneof(prediction) + ", " + heightsof(prediction.port, datum) +
           (area.own ? ", your own " + nameof(area) : "");
}

std::vector<std::string> statusnotes(const Session& session, const Locale& locale) {
    std::vector<std::string> notes;
    const Date date = dateof(session.prediction.day);
    if (session.prediction.defined && !session.place.otherclocks.empty()) notes.push_back(session.place.otherclocks);
    noteport(session, notes);
    noteheights(session, notes);
    notecopies(session, date, notes);
    notemonth(session, locale, date, notes);
    notelist(session, locale, date, notes);
    notetime(session, notes);
    notelayers(session, notes);
    notesun(session, date, notes);
    if (session.areaorigin.shippedanother)
        notes.push_back("your " + nameof(session.areaorigin) + " was made of an older one than the program's now");
    return notes;
}

void refreshstatus(MainContext& context) {
    Session& session = context.session;
    // Asked at every move of the mouse: the disk is looked at for another area alone.
    const std::string& area = session.prediction.port.area;
    if (session.areaorigin.path != area) session.areaorigin = originof(session.folders, area);
    const PlaceFor wanted{area, session.prediction.port.number, session.prediction.day,
                          trimmedname(session.prediction.port.record)};
    if (session.placefor != wanted) {
        session.placefor = wanted;
        session.place = placeof(context, session.prediction, area);
    }
    session.view.statusline =
        statusline(session.prediction, session.areaorigin, session.place.datum, context.services.locale);
    session.view.notes = statusnotes(session, context.services.locale);
}

}  // namespace tarvane
