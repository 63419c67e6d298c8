#include "tides/streamscommand.h"

#include <filesystem>

#include "dates/isomoments.h"
#include "diamonds/daystreams.h"
#include "portdata/coordinates.h"
#include "portdata/datafolder.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/options.h"
#include "tides/portchoice.h"
#include "tides/runtides.h"
#include "tides/streamsoptions.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

/// All that the forms of a result are written from.
struct StreamsInHand {
    std::string filename;
    DiamondRecord diamond;
    std::string doubt;  ///< what was chosen among several; empty when there was no choice
    ViewContext context;
    Prediction prediction;
    DayStreams day;
};

std::string lettersof(const std::vector<DiamondRecord>& diamonds) {
    std::string text;
    for (const DiamondRecord& diamond : diamonds)
        text += (text.empty() ? "" : ", ") + diamond.DiamondID;
    return text;
}

std::string takediamond(const StreamsOptions& options, const ProgramFolders& folders, StreamsInHand& streams) {
    std::string path = options.diamondfile;
    if (!canopen(path)) path = datafile(folders, path);
    if (!canopen(path)) path = options.diamondfile;
    streams.filename = std::filesystem::path(path).filename().string();
    const DiamondFile file = readdiamonds(path);
    if (!file.read) return "the diamonds " + path + " can't be read: " + file.read.reason();
    if (file.diamonds.empty()) return streams.filename + " holds no diamond";
    int count = 0;
    for (const DiamondRecord& diamond : file.diamonds) {
        if (diamond.DiamondID != options.letter) continue;
        if (count++ == 0) streams.diamond = diamond;
    }
    if (count == 0)
        return streams.filename + " has no diamond " + inquotes(options.letter) + "; it has " +
               lettersof(file.diamonds);
    if (count > 1)
        streams.doubt = streams.filename + " has " + numbertext(count) + " diamonds " + options.letter +
                        ", of which the first is taken";
    return "";
}

std::string takereference(const StreamsOptions& options, const ProgramFolders& folders, StreamsInHand& streams) {
    Settings& settings = streams.context.settings;
    std::string fault = readsettings(folders, settings);
    if (!fault.empty()) return fault;
    if (options.summer) settings.summerflag2 = *options.summer ? -1 : 0;
    AreaInHand area;
    fault = options.area ? readtypedarea(folders, *options.area, area) : readarea(settings.hcfile, area);
    if (!fault.empty()) return fault;
    settings.hcfile = area.path;
    streams.context.areaname = area.name;
    const std::string wanted = options.port.value_or(numbertext(settings.currentport));
    const PortChoice choice = chooseports(area.names, wanted, area.name);
    if (!choice.fault.empty()) return choice.fault;
    if (choice.numbers.size() != 1) return "--port takes one port here, not " + inquotes(wanted);
    const auto index = static_cast<std::size_t>(choice.numbers[0] - 1);
    const std::string& name = area.names[index];
    streams.context.ports.push_back(
        {name,
         portsubject(name, choice.numbers[0]),
         {area.records[index], choice.numbers[0], 0, 1},
         whatisknown(knownarea(folders, area.path), area.records[index], choice.numbers[0])});
    return "";
}

std::string preparestreams(const StreamsOptions& options, const TidesEnvironment& environment, StreamsInHand& streams) {
    const ProgramFolders folders = foldersof(environment);
    streams.context.plan.zones = environment.zones;
    std::string fault = takediamond(options, folders, streams);
    if (fault.empty()) fault = takereference(options, folders, streams);
    if (!fault.empty()) return fault;
    streams.context.dateonshow = options.date.value_or(environment.today);
    const PortInHand& port = streams.context.ports.front();
    predictport(streams.context, port, streams.context.dateonshow, streams.prediction);
    streams.day = daystreams(streams.diamond, streams.prediction);
    if (streams.day.whynot.empty()) return "";
    return "no streams by " + port.name + " on " + isodate(streams.context.dateonshow) + ": " + streams.day.whynot;
}

void rangetext(const DayStreams& day, std::ostream& out) {
    out << "Range " << format(day.range, "0.00") << " m; mean neaps " << format(day.means.neap, "0.00")
        << " m, mean springs " << format(day.means.spring, "0.00") << " m";
    if (day.beyond != Beyond::nothing) out << ": rates are extrapolated beyond " << beyondword(day.beyond);
    out << "\n";
}

void streamsastext(const StreamsInHand& streams, std::ostream& out) {
    const Date date = streams.context.dateonshow;
    const PortInHand& port = streams.context.ports.front();
    out << "Diamond " << plaintext(streams.diamond.DiamondID) << " of " << plaintext(streams.filename) << ", "
        << LatitudeEditText(streams.diamond.DiamondLat) << "  " << LongitudeEditText(streams.diamond.DiamondLong)
        << "\n\n";
    portheading(streams.context, port, out);
    out << "\n" << longdate(date) << "\n" << dayline(streams.context, port, date) << "\n";
    rangetext(streams.day, out);
    for (const TideStreams& tide : streams.day.tides) {
        out << "\nHigh water " << timetext(tide.highwater.time)
            << (tide.highwater.date == date ? "" : ", " + longdate(tide.highwater.date)) << "\n"
            << padleft("Hour", 6) << padleft("Time", 7) << padleft("Direction", 11) << padleft("Rate", 8) << "\n";
        for (const StreamRow& row : tide.rows)
            out << padleft(hourtext(row.hour), 6) << padleft(timetext(row.moment.time), 7)
                << padleft(directiontext(row.direction), 11) << padleft(format(row.rate, "0.00"), 8)
                << (row.moment.date == date ? "" : "  on " + longdate(row.moment.date)) << "\n";
    }
    out << "\nStreams are means over an hour, rates in the unit of the file; all data are derived and should be "
           "considered as approximate\n";
}

void streamsasrows(const StreamsInHand& streams, OutputFormat format, std::ostream& out) {
    std::vector<Column> columns;
    for (const std::string& name : streamcolumns())
        columns.push_back({name, name == "hour" || name == "direction" || name == "rate"});
    RowWriter writer(out, format, columns);
    for (const auto& cells : streamcells(streams.day))
        writer.row(cells);
    writer.finish();
}

}  // namespace

int runstreams(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
               std::ostream& err) {
    StreamsOptions options;
    StreamsInHand streams;
    std::string fault = parsestreamsoptions(arguments, options);
    if (fault.empty() && !options.answer.empty()) return printanswer(options.answer, out, err);
    if (fault.empty()) fault = preparestreams(options, environment, streams);
    if (fault.empty()) {
        if (!streams.doubt.empty()) err << "tides: " << plaintext(streams.doubt) << "\n";
        if (options.format == OutputFormat::text)
            streamsastext(streams, out);
        else
            streamsasrows(streams, options.format, out);
        if (out.flush()) return 0;
        fault = "the result could not be written";
    }
    err << "tides: " << plaintext(fault) << "\n";
    return refused;
}

}  // namespace tarvane
