#include "diamonds/streamsview.h"

#include <algorithm>
#include <cmath>

#include "dates/isomoments.h"
#include "dates/summertime.h"
#include "dates/typeddate.h"
#include "files/filenames.h"
#include "portdata/coordinates.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "session/documents.h"
#include "session/otherclocks.h"
#include "session/refresh.h"
#include "session/statusline.h"
#include "text/csvrows.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr const char* caution =
    "Streams are means over an hour, rates in the unit of the diamond's data; all is derived and approximate.";

std::string listed(const DiamondRecord& diamond) {
    return diamond.DiamondID + "  " + LatitudeText(diamond.DiamondLat) + "  " + LongitudeText(diamond.DiamondLong);
}

bool among(int index, std::size_t count) {
    return index >= 0 && static_cast<std::size_t>(index) < count;
}

std::string howtogetdiamonds(const ProgramFolders& folders) {
    const std::string& folder = folders.ownfolder.empty() ? folders.programfolder : folders.ownfolder;
    return "There is no tidal diamond file (.l20, .l30 or .l40). One is made with Maintenance, Copy Tidal Diamonds, or "
           "taken from chart media with Maintenance, Import Charts; Enable Harmonic Correction Menu of the Program "
           "Options shows that menu. A file from elsewhere goes into " +
           folder + ".";
}

std::string metres(double range) {
    return format(range, "0.00") + " m";
}

std::string rangenote(const DayStreams& day) {
    const std::string range = "Range of the day " + metres(day.range) + ", ";
    if (day.beyond == Beyond::springs)
        return range + "beyond the mean spring range of " + metres(day.means.spring) + ": rates are extrapolated.";
    if (day.beyond == Beyond::neaps)
        return range + "below the mean neap range of " + metres(day.means.neap) + ": rates are extrapolated.";
    return range + "between the mean neap range of " + metres(day.means.neap) + " and the mean spring range of " +
           metres(day.means.spring) + ".";
}

/// What has to be said of a diamond whose file is broken; empty for any other.
std::string brokennote(const DayStreams& day) {
    for (const StreamRow& row : day.tides.front().rows)
        if (!std::isfinite(row.direction) || !std::isfinite(row.rate))
            return " The file has directions or rates that are no numbers.";
    return {};
}

/// Why no streams can be had with what is in hand; empty when they can.
std::string missing(const MainContext& context, const StreamsView& view) {
    if (view.files.empty()) return howtogetdiamonds(context.session.folders);
    if (!among(view.file, view.files.size())) return "Choose a diamond file.";
    if (view.records.empty()) return view.note.empty() ? "The file holds no diamond." : view.note;
    if (!among(view.diamond, view.records.size())) return "Choose a diamond.";
    if (view.ports.empty()) return std::string(noareafile) + ": " + context.session.settings.hcfile;
    return among(view.port, view.ports.size()) ? "" : "Choose a reference port.";
}

void reckon(const MainContext& context, StreamsView& view) {
    view.streams = {};
    view.about.clear();
    view.note = missing(context, view);
    if (!view.note.empty()) return;
    const auto port = static_cast<std::size_t>(view.port);
    const TideDay day{yearof(view.date), monthof(view.date), static_cast<std::int16_t>(dayofyear(view.date)),
                      summershift(view.date, context.session.settings.summerflag2)};
    Prediction prediction;
    predictday({view.portrecords[port], static_cast<std::int16_t>(view.port + 1), 0, 1}, day, prediction);
    findturningpoints(prediction);
    const auto diamond = static_cast<std::size_t>(view.diamond);
    view.streams = daystreams(view.records[diamond], prediction);
    const PlaceOf place = placeof(context, prediction, context.session.settings.hcfile);
    view.about = "Diamond " + view.diamonds[diamond] + ". " +
                 statusline(prediction, context.session.areaorigin, place.datum, context.services.locale) +
                 (place.otherclocks.empty() ? "" : "; " + place.otherclocks);
    view.note = view.streams.whynot;
    if (view.note.empty()) view.note = rangenote(view.streams) + " " + caution + brokennote(view.streams);
}

std::string timeof(const ClockMoment& moment) {
    return timetext(moment.time);
}

}  // namespace

StreamsView openstreams(const MainContext& context) {
    const Session& session = context.session;
    StreamsView view;
    for (const char* ending : {".l20", ".l30", ".l40"})
        for (const std::string& name : datafiles(session.folders, ending))
            view.files.push_back(name);
    view.portrecords = readports(session.settings.hcfile);
    for (const HarmonicRecord& port : view.portrecords)
        view.ports.push_back(trimmedname(port));
    view.port = session.settings.currentport - 1;
    view.date = session.onshow.tidedate;
    choosestreamfile(context, view, view.files.empty() ? -1 : 0);
    return view;
}

void choosestreamfile(const MainContext& context, StreamsView& view, int file) {
    view.file = file;
    view.records.clear();
    view.diamonds.clear();
    view.note.clear();
    if (among(file, view.files.size())) {
        const std::string path = datafile(context.session.folders, view.files[static_cast<std::size_t>(file)]);
        DiamondFile read = readdiamonds(path);
        view.records = std::move(read.diamonds);
        if (!read.read) view.note = "The file " + path + " can't be read: " + read.read.reason();
    }
    for (const DiamondRecord& diamond : view.records)
        view.diamonds.push_back(listed(diamond));
    view.diamond = view.records.empty() ? -1 : 0;
    reckon(context, view);
}

void choosediamond(const MainContext& context, StreamsView& view, int diamond) {
    view.diamond = diamond;
    reckon(context, view);
}

void choosestreamport(const MainContext& context, StreamsView& view, int port) {
    view.port = port;
    reckon(context, view);
}

void choosestreamdate(const MainContext& context, StreamsView& view, Date date) {
    view.date = std::clamp(date, makedate(firsttypedyear, 1, 1), makedate(lasttypedyear, 12, 31));
    reckon(context, view);
}

std::vector<std::string> streamheadings() {
    return {"High water", "Hour", "Time", "Direction", "Rate", "Beyond"};
}

std::vector<std::vector<std::string>> streamtable(const MainContext& context, const StreamsView& view) {
    const auto told = [&](const ClockMoment& moment) {
        return timeof(moment) +
               (moment.date == view.date ? "" : formatdate(context.services.locale, moment.date, " (ddd d mmm)"));
    };
    std::vector<std::vector<std::string>> rows;
    for (const TideStreams& tide : view.streams.tides)
        for (const StreamRow& row : tide.rows)
            rows.push_back({told(tide.highwater), hourtext(row.hour), told(row.moment), directiontext(row.direction),
                            format(row.rate, "0.00"), beyondword(view.streams.beyond)});
    return rows;
}

std::string streamsentence(const StreamsView& view, int row) {
    const std::size_t tide = static_cast<std::size_t>(row) / streamhours,
                      hour = static_cast<std::size_t>(row) % streamhours;
    if (row < 0 || tide >= view.streams.tides.size()) return {};
    const StreamRow& shown = view.streams.tides[tide].rows[hour];
    const Stream& stream = view.records[static_cast<std::size_t>(view.diamond)].streams[hour];
    return (shown.hour == 0 ? "High water, " : "HW " + hourtext(shown.hour) + ", ") + timeof(shown.moment) + ": " +
           directiontext(shown.direction) + " degrees, rate " + format(shown.rate, "0.00") + " (springs " +
           format(stream.SpringRate, "0.0#") + ", neaps " + format(stream.NeapRate, "0.0#") + ")";
}

void copystreams(MainContext& context, const StreamsView& view) {
    std::string text = view.about + "\r\n" + view.note + "\r\n\r\n";
    const auto addline = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            text += (i ? "\t" : "") + cells[i];
        text += "\r\n";
    };
    addline(streamheadings());
    for (const auto& row : streamtable(context, view))
        addline(row);
    context.services.clipboard.clear();
    context.services.clipboard.settext(text);
    answer(context, "Copied: the day's streams");
}

void savestreams(MainContext& context, const StreamsView& view) {
    FileRequest request;
    request.title = "Save Streams To CSV File";
    request.folder = context.session.folders.textoutputfolder;
    request.filename =
        safefilename("Diamond " + view.records[static_cast<std::size_t>(view.diamond)].DiamondID + " " +
                     view.ports[static_cast<std::size_t>(view.port)] + " " + isodate(view.date) + ".csv");
    request.filter = "Tables (*.csv)|*.csv";
    request.askoverwrite = true;
    const auto path = context.services.filedialogs.save(request);
    if (!path || path->empty()) return;
    std::string text = csvline(streamcolumns());
    for (const auto& row : streamcells(view.streams))
        text += csvline(row);
    writedocument(context, *path, text);
}

}  // namespace tarvane
